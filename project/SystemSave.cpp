#include "project/SystemSave.h"

#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "core/SafeWrite.h"
#include "core/SystemText.h"
#include "project/SystemIniDefaults.h"
#include "project/SystemRecord.h"

namespace velmora {

bool SaveSystemSettings(const cEdSystem& edited) {
  cEdSystem saved = edited;
  saved.CheckBgmIndices();
  const std::string& path = PathOf(ePath::System);
  if (!SaveRecordSafely(saved, path)) {
    ErrorBox(SysText("%s の保存に失敗しました！"), path.c_str());
    return false;
  }
  SystemRecord() = saved;
  ReadProjectSystemIni();
  return true;
}

}  // namespace velmora
