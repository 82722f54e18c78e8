// A picture given to the bitmap conversion tool, converted with the
// project's palettes into the output folder.
#include "graphics/ProjectPalette.h"
#include "project/bitmap/BitmapConvert.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  cConvertOptions options;
  options.useTransparency = size % 2;
  options.replaceLineColour = size % 3 == 0;
  const std::string input = fuzz::PlaceInput("bmp\\fuzz.bmp", data, size);
  ConvertBitmap(input, "bmp\\fuzz-out.bmp", options, ProjectPalette(), SourcePalette());
  return 0;
}
