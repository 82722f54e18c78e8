#include "project/bitmap/BitmapList.h"

#include <strings.h>

#include <algorithm>

#include "platform/FileSystem.h"

namespace velmora {

bool HasBitmapExtension(const std::string& path) {
  const size_t dot = path.rfind('.');
  if (dot == std::string::npos || path.find('\\', dot) != std::string::npos) return false;
  return ::strcasecmp(path.c_str() + dot + 1, "bmp") == 0;
}

std::vector<std::string> BitmapsOfDropped(const std::string& stored) {
  std::vector<std::string> bitmaps;
  if (!IsDirectory(stored)) {
    if (HasBitmapExtension(stored) && FileExists(stored)) bitmaps.push_back(stored);
    return bitmaps;
  }
  std::vector<std::string> names;
  for (const cDirEntry& entry : ListDirectory(stored)) {
    if (!entry.isDirectory && HasBitmapExtension(entry.name)) names.push_back(entry.name);
  }
  std::sort(names.begin(), names.end());
  const std::string folder = stored.empty() || stored.back() == '\\' ? stored : stored + "\\";
  for (const std::string& name : names) bitmaps.push_back(folder + name);
  return bitmaps;
}

}  // namespace velmora
