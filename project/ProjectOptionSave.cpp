#include "project/ProjectOptionSave.h"

#include "core/AppControl.h"
#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectPaths.h"
#include "core/SafeWrite.h"
#include "core/SaveData.h"
#include "core/SystemText.h"

namespace velmora {

bool SaveProjectOptions(const PrjOption& edited) {
  PrjOption saved = edited;
  // No page shows the time of the last backup; a backup taken while the
  // pages were open has set it since the copy was made.
  saved.m_nLastBackupMinute = ProjectOption().m_nLastBackupMinute;
  const std::string& path = PathOf(ePath::PrjOption);
  if (!SaveRecordSafely(saved, path)) {
    ErrorBox(SysText("%s の保存に失敗しました！"), path.c_str());
    return false;
  }
  ProjectOption() = saved;
  return true;
}

bool CheckInheritDefaults(const PrjOption& option) {
  if (option.FlagsHaveFullLength()) return true;
  ErrorBoxText(SysText("継承データの数が一致しません！(バグかデータファイルが破損しているかどちらか)"));
  ReportText(SysText("継承データの数が一致しません！"));
  g_bNoSave = 1;
  AppControl().DestroyMainWindow();
  return false;
}

}  // namespace velmora
