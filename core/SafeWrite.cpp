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

}  // namespace

cSafeWritePlaces PlacesBeside(const std::string& path) { return {path + kFreshSuffix, std::string()}; }

bool WriteFileSafely(const std::string& path, const std::function<bool(const std::string& to)>& write,
                     const cSafeWritePlaces& places) {
  if (!WriteAndSync(write, places.fresh)) {
    RemoveFile(places.fresh);
    return false;
  }
  const bool backedUp = !places.backup.empty() && FileExists(path) && MoveFileReplacing(path, places.backup);
  const bool placed = MoveFileReplacing(places.fresh, path) || WriteAndSync(write, path);
  RemoveFile(places.fresh);
  if (!placed) {
    if (backedUp) MoveFileReplacing(places.backup, path);
    return false;
  }
  if (backedUp && !RemoveFile(places.backup)) DebugBox("%s", SysText("バックアップファイルの削除に失敗しました！"));
  return true;
}

bool SaveRecordSafely(cSaveData& record, const std::string& path) {
  return WriteFileSafely(
      path, [&record](const std::string& to) { return record.SaveFile(to) != 0; }, PlacesBeside(path));
}

}  // namespace velmora
