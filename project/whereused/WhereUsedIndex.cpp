#include "project/whereused/WhereUsedIndex.h"

#include <algorithm>

#include "core/ProjectPaths.h"
#include "project/whereused/FileUses.h"
#include "project/whereused/StageFileList.h"

namespace velmora {
namespace {

// The files whose change alters what a stage holds once it is read.
constexpr ePath kDependencies[] = {ePath::CommonPalette, ePath::AnimeSet,    ePath::Anime,    ePath::BmpCharaExc,
                                   ePath::SwordType,     ePath::Effect,      ePath::CharaEffect, ePath::ScrEffect,
                                   ePath::Picture,       ePath::Sound,       ePath::Bgm};

bool ByTarget(const cUse& a, const cUse& b) { return a.target < b.target; }

}  // namespace

std::vector<cFileStamp> cWhereUsedIndex::DependencyStamps() const {
  std::vector<cFileStamp> stamps;
  for (ePath path : kDependencies) stamps.push_back(FileStampOf(PathOf(path)));
  return stamps;
}

bool cWhereUsedIndex::Refresh(const std::string& path, cCollect collect, bool force, std::vector<cFileUses>& fresh) {
  const cFileStamp stamp = FileStampOf(path);
  auto known = std::find_if(m_files.begin(), m_files.end(), [&](const cFileUses& file) { return file.path == path; });
  if (!force && known != m_files.end() && known->stamp == stamp) {
    fresh.push_back(std::move(*known));
    return false;
  }
  cFileUses& file = fresh.emplace_back();
  file.path = path;
  file.stamp = stamp;
  file.readable = collect(path, file.uses);
  std::stable_sort(file.uses.begin(), file.uses.end(), ByTarget);
  return true;
}

int cWhereUsedIndex::Update() {
  const std::vector<cFileStamp> dependencies = DependencyStamps();
  const bool rereadStages = dependencies != m_dependencies;
  m_dependencies = dependencies;
  std::vector<cFileUses> fresh;
  int read = Refresh(PathOf(ePath::CommonPalette), &CollectCommonPaletteUses, false, fresh);
  for (const std::string& stage : NewestStageFiles()) read += Refresh(stage, &CollectStageUses, rereadStages, fresh);
  read += Refresh(PathOf(ePath::WorldMap), &CollectWorldMapUses, false, fresh);
  read += Refresh(PathOf(ePath::System), &CollectSystemUses, false, fresh);
  m_files = std::move(fresh);
  return read;
}

std::vector<cWhereUsedIndex::cFound> cWhereUsedIndex::Find(const cUseTarget& target, const std::string& onlyFile) const {
  std::vector<cFound> found;
  cUse probe;
  probe.target = target;
  for (const cFileUses& file : m_files) {
    if (!onlyFile.empty() && file.path != onlyFile) continue;
    auto [first, last] = std::equal_range(file.uses.begin(), file.uses.end(), probe, ByTarget);
    for (auto use = first; use != last; ++use) found.push_back({&file.path, &*use});
  }
  return found;
}

std::vector<std::string> cWhereUsedIndex::UnreadableFiles() const {
  std::vector<std::string> paths;
  for (const cFileUses& file : m_files) {
    if (!file.readable) paths.push_back(file.path);
  }
  return paths;
}

}  // namespace velmora
