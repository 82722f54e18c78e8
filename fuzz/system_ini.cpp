// "System.ini", the game's text settings, read over the system record's
// defaults.
#include "core/SystemIni.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  const cSystemIniDefaults defaults;
  cSystemIni ini;
  LoadSystemIni(fuzz::PlaceInput("fuzz.ini", data, size), ini, defaults);
  return 0;
}
