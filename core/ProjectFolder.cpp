#include "core/ProjectFolder.h"

#include <strings.h>

#include <cstdio>

#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "core/SafeWrite.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "platform/FileSync.h"
#include "platform/FileSystem.h"

namespace velmora {
namespace {

std::string WithoutTrailingBackslash(std::string path) {
  while (!path.empty() && path.back() == '\\') path.pop_back();
  return path;
}

std::string FolderOf(const std::string& path) {
  size_t slash = path.find_last_of('\\');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

bool HasEntryIgnoringCase(const std::vector<cDirEntry>& entries, const std::string& name) {
  for (const cDirEntry& entry : entries) {
    if (!entry.isDirectory && ::strcasecmp(entry.name.c_str(), name.c_str()) == 0) return true;
  }
  return false;
}

}  // namespace

void CreateProjectFolders() {
  for (const std::string& folder : EditorFolders()) MakeDirectory(folder);
  for (const std::string& folder : ProjectFolders()) MakeDirectory(folder);
}

bool CreateDefaultData(OwnerWindow owner) {
  const std::string data = PathOf(ePath::Data);
  const std::string source = PathOf(ePath::Default);
  if (IsDirectory(data)) return true;
  if (!IsDirectory(source)) return false;
  eAnswer answer = Prompt().Ask(owner, SysText("デフォルトデータ作成の確認"),
                                SysText("データが存在しません！デフォルトデータを作成しますか？\n"),
                                eButtons::YesNo, eIcon::Question);
  if (answer != eAnswer::Yes) return false;
  return CopyFolder(owner, data, source);
}

bool FindVersioned(std::string& out, const std::string& path, const std::string& extension) {
  size_t dot = path.find_last_of('.');
  std::string stem = (dot == std::string::npos ? path : path.substr(0, dot)) + "." + extension;
  const std::string folder = FolderOf(stem);
  const std::string name = stem.substr(folder.size());
  // One look at the folder serves all thousand candidates.
  const std::vector<cDirEntry> entries = ListDirectory(folder);
  for (int suffix = 999; suffix >= 0; --suffix) {
    char candidate[16];
    std::snprintf(candidate, sizeof candidate, "_%d%d%d", suffix / 100, suffix / 10 % 10, suffix % 10);
    if (HasEntryIgnoringCase(entries, name + candidate)) {
      out = stem + candidate;
      return true;
    }
  }
  return false;
}

void EnsureDefaultStage() {
  const std::string& stageExt = ExtOf(eExt::Stage);
  std::string found;
  if (FindVersioned(found, PathOf(ePath::DefaultStage), stageExt)) return;
  if (!FindVersioned(found, PathOf(ePath::DefaultDefaultStage), stageExt)) return;
  const std::string& dataPattern = PathOf(ePath::DefaultStage);
  std::string stem = dataPattern.substr(0, dataPattern.find_last_of('.')) + "." + stageExt;
  const std::string target = stem + "_" + found.substr(found.size() - 3);
  WriteFileSafely(target, [&found](const std::string& to) { return CopyFileTo(found, to, true); }, PlacesBeside(target));
}

bool DeleteFolder(const std::string& path) {
  std::string folder = path;
  if (folder.empty() || folder.back() != '\\') folder += '\\';
  for (const cDirEntry& entry : ListDirectory(folder)) {
    const std::string inner = folder + entry.name;
    if (!(entry.isDirectory ? DeleteFolder(inner) : RemoveFile(inner))) return false;
  }
  return RemoveEmptyDirectory(folder);
}

// Copied under another name and put in place when whole, the old folder
// moving aside only then: a folder left half copied by a kill would pass
// for the project's data, or for a good backup, at the next start. A kill
// leaves the old folder in place, or the whole copy beside it.
bool CopyFolder(OwnerWindow, const std::string& destination, const std::string& source) {
  const std::string target = WithoutTrailingBackslash(destination);
  const std::string copying = target + ".new";
  const std::string old = target + ".old";
  if (IsDirectory(copying)) DeleteFolder(copying);
  if (!CopyTree(WithoutTrailingBackslash(source), copying)) {
    DeleteFolder(copying);
    return false;
  }
  if (IsDirectory(old)) DeleteFolder(old);
  if (IsDirectory(target) && !MoveFileReplacing(target, old)) {
    DeleteFolder(copying);
    return false;
  }
  if (!MoveFileReplacing(copying, target)) {
    MoveFileReplacing(old, target);
    DeleteFolder(copying);
    return false;
  }
  SyncFolderOf(target);
  if (IsDirectory(old) && !DeleteFolder(old)) DebugText(SysText("削除失敗！"));
  return true;
}

bool BackupData(OwnerWindow owner) {
  if (g_bNoSave || !IsDirectory(PathOf(ePath::Data))) return false;
  Prompt().ShowMessageWindow(owner, SysText("バックアップ"), SysText("エディットデータをバックアップしています..."));
  bool ok = CopyFolder(owner, PathOf(ePath::DataBackup), PathOf(ePath::Data));
  Prompt().CloseMessageWindow();
  return ok;
}

bool BackupEditData(OwnerWindow owner) {
  if (g_bNoSave || !IsDirectory(PathOf(ePath::EditData))) return false;
  return CopyFolder(owner, PathOf(ePath::EditDataBackup), PathOf(ePath::EditData));
}

}  // namespace velmora
