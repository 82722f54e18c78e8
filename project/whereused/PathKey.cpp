#include "project/whereused/PathKey.h"

#include "platform/TextCodec.h"

namespace velmora {

std::string PathKey(const std::string& storedPath) {
  std::string key;
  key.reserve(storedPath.size());
  for (size_t i = 0; i < storedPath.size(); ++i) {
    const unsigned char byte = static_cast<unsigned char>(storedPath[i]);
    if (IsCp932LeadByte(byte) && i + 1 < storedPath.size()) {
      key += storedPath[i];
      key += storedPath[++i];
    } else if (byte == '/') {
      key += '\\';
    } else {
      key += static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
    }
  }
  if (key.starts_with(".\\")) key.erase(0, 2);
  return key;
}

}  // namespace velmora
