#include "core/SystemText.h"

#include <mutex>
#include <string>
#include <unordered_map>

#include "platform/TextCodec.h"

namespace velmora {

const char* SysText(const char* utf8) {
  static std::mutex lock;
  static std::unordered_map<std::string, std::string> converted;
  std::lock_guard<std::mutex> guard(lock);
  auto [it, inserted] = converted.try_emplace(utf8);
  if (inserted) it->second = ToCp932(utf8);
  return it->second.c_str();
}

}  // namespace velmora
