#include "project/whereused/StageFileList.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "core/ProjectPaths.h"
#include "platform/FileSystem.h"

namespace velmora {
namespace {

std::string Lowered(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// "Name.stg4_NNN" gives the stem "name" (lowered) and NNN; false for any
// other name.
bool SplitStageName(const std::string& name, std::string& stem, int& version) {
  const std::string marker = "." + ExtOf(eExt::Stage) + "_";
  const std::string lowered = Lowered(name);
  const size_t at = lowered.rfind(marker);
  if (at == std::string::npos || at == 0 || lowered.size() != at + marker.size() + 3) return false;
  const std::string digits = lowered.substr(at + marker.size());
  if (!std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) return false;
  stem = lowered.substr(0, at);
  version = std::stoi(digits);
  return true;
}

}  // namespace

std::vector<std::string> NewestStageFiles() {
  struct cNewest {
    int version = -1;
    std::string name;
  };
  std::map<std::string, cNewest> byStem;
  for (const cDirEntry& entry : ListDirectory(PathOf(ePath::Stage))) {
    std::string stem;
    int version = 0;
    if (entry.isDirectory || !SplitStageName(entry.name, stem, version)) continue;
    cNewest& newest = byStem[stem];
    if (version > newest.version) newest = {version, entry.name};
  }
  std::vector<std::string> paths;
  for (const auto& [stem, newest] : byStem) paths.push_back(PathOf(ePath::Stage) + newest.name);
  return paths;
}

std::string NewestStageFile(const std::string& name) {
  std::string wanted = Lowered(name), stem;
  int version = 0;
  if (SplitStageName(wanted, stem, version)) wanted = stem;
  for (const std::string& path : NewestStageFiles()) {
    if (SplitStageName(path.substr(PathOf(ePath::Stage).size()), stem, version) && stem == wanted) return path;
  }
  return {};
}

}  // namespace velmora
