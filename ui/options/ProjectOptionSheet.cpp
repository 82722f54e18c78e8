#include "ui/options/ProjectOptionSheet.h"

#include "project/ProjectOptionSave.h"
#include "ui/options/OptionPages.h"
#include "ui/stage/StageWindow.h"

namespace velmora {

cProjectOptionSheet::cProjectOptionSheet(cDialogManager& manager, QWidget* owner)
    : cSheet(manager, owner, QString::fromUtf8("プロジェクトオプション"), true), m_work(ProjectOption()) {
  AddPage(MakeGeneralOptionPage(manager, m_work), QString::fromUtf8("全般"));
  AddPage(MakeInheritDefaultPage(manager, m_work), QString::fromUtf8("継承のデフォルト"));
}

bool cProjectOptionSheet::OnApply() { return SaveProjectOptions(m_work); }

void OpenProjectOptions(cDialogManager& manager, QWidget* owner) {
  if (!CheckInheritDefaults(ProjectOption())) return;
  cProjectOptionSheet sheet(manager, owner);
  sheet.Start();
}

void InstallProjectOptions(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::ProjectOptions,
                   [&stage] { OpenProjectOptions(stage.Manager(), stage.Window()); });
}

}  // namespace velmora
