// data\PrjOption.dat: the project options with the flag insertions of old
// versions.
#include "core/PrjOption.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::LoadAndSaveBack<velmora::PrjOption>(data, size);
  return 0;
}
