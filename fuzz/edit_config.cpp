// e_data\EditConfig.dat: the editor's own state, window places clamped to
// the screen.
#include "core/EditConfig.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::LoadAndSaveBack<velmora::EditConfig>(data, size);
  return 0;
}
