// data\System.dat: the system record with its repairs of old versions.
#include "project/SystemRecord.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::LoadAndSaveBack<velmora::cEdSystem>(data, size);
  return 0;
}
