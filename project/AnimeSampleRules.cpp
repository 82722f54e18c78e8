#include "project/AnimeSampleRules.h"

#include <algorithm>

#include "objects/PaletteTables.h"

namespace velmora {
namespace {

constexpr int kCharaCells = 19;
constexpr int kOwnBitmapCells = 239;

}  // namespace

cSampleLimits SampleLimits(int sampleKind, int charaBmpCount) {
  cSampleLimits limits;
  if (sampleKind == kGraphicKindChara) {
    limits.cellEnabled = true;
    limits.cellMax = kCharaCells;
  } else if (sampleKind == kGraphicKindOwnBmp) {
    // A list without bitmaps of its own still leaves the number 1 to show.
    limits.numberMax = std::max(1, charaBmpCount - 1);
    limits.cellEnabled = true;
    limits.cellMax = kOwnBitmapCells;
    limits.listEnabled = false;
  }
  return limits;
}

}  // namespace velmora
