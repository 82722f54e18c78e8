#pragma once
#include "core/SheetSize.h"
#include "core/StartupReport.h"

namespace velmora {

struct cSheetRate {
  double x = 1.0;
  double y = 1.0;
};

// A stored measurement counts while the system and the font are the ones it
// was taken under and the file is new enough to hold a trusted figure.
bool StoredSheetRateFits(const SheetSize& stored, uint32_t fileVersion, int osMajor, int osMinor,
                         const cUiFont& font);

// The rate from a measuring page's client size; a size of 0 or less keeps 1.0.
cSheetRate SheetRateFromClient(int width, int height);

}  // namespace velmora
