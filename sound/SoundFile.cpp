#include "sound/SoundFile.h"

#include <cstdio>

#include "platform/FileSystem.h"

namespace velmora {

bool ReadSoundFile(const std::string& path, std::vector<uint8_t>& bytes) {
  std::FILE* file = OpenFile(path, "rb");
  if (!file) return false;
  uint8_t chunk[1 << 14];
  size_t got;
  while ((got = std::fread(chunk, 1, sizeof chunk, file)) > 0) bytes.insert(bytes.end(), chunk, chunk + got);
  bool ok = !std::ferror(file);
  std::fclose(file);
  return ok;
}

bool WriteSoundFile(const std::string& path, const std::vector<uint8_t>& bytes) {
  std::FILE* file = OpenFile(path, "wb");
  if (!file) return false;
  bool ok = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && ok;
}

}  // namespace velmora
