// Feeds arbitrary bytes to the code validator as if typed or read from a
// file: it must end, in bounded stack and memory, whatever the text.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "objects/code/CodeEval.h"
#include "support/FuzzProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  velmora::fuzz::EnterProject();
  velmora::ValidateCode(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
