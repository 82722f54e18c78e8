#include "core/SafeWrite.h"

#include "core/Log.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "platform/FileSync.h"
#include "platform/FileSystem.h"

namespace velmora {
namespace {

constexpr const char* kFreshSuffix = ".new";

bool WriteAndSync(const std::function<bool(const std::string&)>& write, const std::string& to) {
  return write(to) && SyncFile(to);
}

// A rename can't cross file systems (the work folder and a stage saved
// outside the project may lie on two): the file is then copied beside its
// target, forced to disk and renamed there, so the target still changes
// in one step.
bool MoveOver(const std::string& from, const std::string& to) {
  if (MoveFileReplacing(from, to)) return true;
  const std::string beside = to + kFreshSuffix;
  if (beside == from) return false;
  if (!CopyFileTo(from, beside, true) || !SyncFile(beside) || !MoveFileReplacing(beside, to)) {
    RemoveFile(beside);
    return false;
  }
  RemoveFile(from);
  return true;
}

// The old file stays where it is while its backup is made, so there is no
// moment in which the target is missing; a backup left by a killed save is
// replaced.
bool KeepBackup(const std::string& path, const std::string& backup) {
  if (backup.empty() || !FileExists(path)) return false;
  RemoveFile(backup);
  return LinkFileTo(path, backup) || CopyFileTo(path, backup, true);
}

}  // namespace

cSafeWritePlaces PlacesBeside(const std::string& path) { return {path + kFreshSuffix, std::string()}; }

bool WriteFileSafely(const std::string& path, const std::function<bool(const std::string& to)>& write,
                     const cSafeWritePlaces& places) {
  // A rename would put a plain file in the place of a device or a pipe
  // (an author may send a picture to one); they hold nothing a kill could
  // leave half written, so they are written straight through.
  if (IsDeviceOrPipe(path)) return write(path);
  if (!WriteAndSync(write, places.fresh)) {
    RemoveFile(places.fresh);
    return false;
  }
  const bool backedUp = KeepBackup(path, places.backup);
  const bool placed = MoveOver(places.fresh, path);
  RemoveFile(places.fresh);
  if (placed) SyncFolderOf(path);
  if (backedUp && !RemoveFile(places.backup)) DebugBox("%s", SysText("バックアップファイルの削除に失敗しました！"));
  return placed;
}

bool SaveRecordSafely(cSaveData& record, const std::string& path, const cSafeWritePlaces& places) {
  return WriteFileSafely(
      path, [&record](const std::string& to) { return record.WriteFileInPlace(to) != 0; }, places);
}

bool SaveRecordSafely(cSaveData& record, const std::string& path) {
  return SaveRecordSafely(record, path, PlacesBeside(path));
}

}  // namespace velmora
