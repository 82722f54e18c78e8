#include "sound/SoundPath.h"

namespace velmora {

bool SoundExtension(const std::string& path, std::string& extension) {
  size_t dot = path.rfind('.');
  if (dot == std::string::npos) return false;
  extension = path.substr(dot + 1);
  return true;
}

void RewriteSoundExtension(std::string& path, const char* extension) {
  size_t dot = path.rfind('.');
  if (dot != std::string::npos) path.replace(dot + 1, std::string::npos, extension);
}

}  // namespace velmora
