// data\WorldMap.dat: chips, events and their upgrades.
#include "project/WorldMap.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::LoadAndSaveBack<velmora::cEdWorldMap>(data, size);
  return 0;
}
