// data\CommonPalette.cplt4 read as the project load reads it, into the
// common palette that the stage and the summaries then look up.
#include "objects/Palette.h"
#include "objects/PaletteSources.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  CommonPalette() = cPalette();
  if (CommonPalette().LoadFile(fuzz::PlaceInput("data\\fuzz.cplt4", data, size))) {
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
    CommonPalette().SaveFile("data\\fuzz.out");
  }
  return 0;
}
