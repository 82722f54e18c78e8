#include "objects/code/AskVarName.h"

#include "core/SystemText.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

std::string CutToBytes(const std::string& cp932, size_t limit) {
  size_t end = 0;
  while (end < cp932.size()) {
    const size_t width = (IsCp932LeadByte(static_cast<unsigned char>(cp932[end])) && end + 1 < cp932.size()) ? 2 : 1;
    if (end + width > limit) break;
    end += width;
  }
  return cp932.substr(0, end);
}

}  // namespace

bool AskVarName(OwnerWindow owner, std::string& name, const cStringInput& input) {
  std::string text = CutToBytes(name, kVarNameLimit);
  if (!input(owner, text, kVarNameLimit, SysText("変数名の入力"))) return false;
  name = CutToBytes(text, kVarNameLimit);
  return true;
}

}  // namespace velmora
