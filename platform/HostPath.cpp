#include "platform/HostPath.h"

#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <vector>

namespace velmora {
namespace {

std::vector<std::string> SplitComponents(const std::string& path) {
  std::vector<std::string> parts;
  std::string current;
  for (char c : path) {
    if (c == '/') {
      if (!current.empty()) parts.push_back(current);
      current.clear();
    } else {
      current += c;
    }
  }
  if (!current.empty()) parts.push_back(current);
  return parts;
}

bool Exists(const std::string& path) {
  struct stat st;
  return ::stat(path.c_str(), &st) == 0;
}

// Finds a directory entry equal to `name` but for ASCII case. CP932 bytes
// above 0x7F are compared as they are, which is what Windows does for them.
bool FindEntryIgnoringCase(const std::string& dir, const std::string& name, std::string& found) {
  DIR* handle = ::opendir(dir.empty() ? "." : dir.c_str());
  if (!handle) return false;
  bool matched = false;
  while (dirent* entry = ::readdir(handle)) {
    if (::strcasecmp(entry->d_name, name.c_str()) == 0) {
      found = entry->d_name;
      matched = true;
      break;
    }
  }
  ::closedir(handle);
  return matched;
}

}  // namespace

std::string HostPath(const std::string& stored) {
  std::string slashed = stored;
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  const bool absolute = !slashed.empty() && slashed[0] == '/';
  const bool trailing = !slashed.empty() && slashed.back() == '/';

  std::string result = absolute ? "/" : "";
  bool onDisk = true;
  for (const std::string& part : SplitComponents(slashed)) {
    std::string name = part;
    if (onDisk && part != "." && part != "..") {
      std::string candidate = result + part;
      if (!Exists(candidate)) {
        std::string found;
        if (FindEntryIgnoringCase(result, part, found)) name = found;
        else onDisk = false;
      }
    }
    result += name;
    result += '/';
  }
  if (!result.empty() && result != "/" && !trailing) result.pop_back();
  return result;
}

std::string StoredPath(const std::string& host) {
  std::string stored = host;
  std::replace(stored.begin(), stored.end(), '/', '\\');
  return stored;
}

}  // namespace velmora
