// Feeds arbitrary bytes to the code validator as if typed or read from a
// file: it must end, in bounded stack and memory, whatever the text.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "objects/code/CodeEval.h"

namespace {

// Error boxes are expected by the dozen; answering them silently keeps the
// fuzzer fast.
class cSilentPrompt : public velmora::cPrompt {
 public:
  velmora::eAnswer Ask(velmora::OwnerWindow, const std::string&, const std::string&, velmora::eButtons,
                       velmora::eIcon) override {
    return velmora::eAnswer::Ok;
  }
  bool OpenFile(velmora::OwnerWindow, const velmora::cFilePrompt&, std::string&) override { return false; }
  bool SaveFile(velmora::OwnerWindow, const velmora::cFilePrompt&, std::string&) override { return false; }
  bool BrowseFolder(velmora::OwnerWindow, const std::string&, std::string&) override { return false; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static cSilentPrompt prompt;
  velmora::SetPrompt(&prompt);
  velmora::ValidateCode(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
