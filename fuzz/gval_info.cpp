// data\GValInfo.dat: the names of the common variables.
#include "objects/GValInfo.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  if (LoadCommonVars(fuzz::PlaceInput("data\\fuzz.dat", data, size))) SaveCommonVars("data\\fuzz.out");
  return 0;
}
