// e_data\SheetSize.dat: the measured scale of the property pages.
#include "core/SheetSize.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::LoadAndSaveBack<velmora::SheetSize>(data, size);
  return 0;
}
