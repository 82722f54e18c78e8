#include "ui/stagesettings/StageSettingsSheet.h"

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "ui/framework/DialogManager.h"
#include "ui/stage/StageWindow.h"
#include "ui/stagesettings/StageOptionsDialog.h"
#include "ui/stagesettings/StageSettingsIds.h"
#include "ui/stagesettings/StageSettingsPage.h"

namespace velmora {
namespace {

// The stage may have a new size: the window's bars and the palettes'
// follow it, and the history is made for it, empty.
void TakeOverAfterSettings(cStageWindow& stage) {
  EnableAll(stage.Manager(), true);
  EditStage().Normalize();
  RebuildHistory();
  if (stage.Window()) stage.Window()->show();
  stage.OnSize();
  if (cPaletteWindows* palettes = stage.Palettes()) {
    palettes->Refresh();
    palettes->ShowLayer(StageEdit().m_iLayer);
  }
  stage.UpdateStates();
}

void OpenStageOptions(cStageWindow& stage) {
  cStageOptionsDialog dialog(stage.Manager(), stage.Window());
  dialog.DoModal(cDialog::kDisableOthers);
  stage.UpdateStates();
}

void OpenEditOptions(cStageWindow& stage) {
  cEditOptionsDialog dialog(stage.Manager(), stage.Window());
  dialog.DoModal(cDialog::kDisableOthers);
}

}  // namespace

void OpenStageSettings(cStageWindow& stage, int startControl, int startRow) {
  cDialogManager& manager = stage.Manager();
  ShowAll(manager, false);
  EnableAll(manager, false);
  {
    cStageSettingsSheet sheet(manager, stage.Window());
    sheet.SetStartControl(startControl, startRow);
    sheet.Start();
  }
  TakeOverAfterSettings(stage);
}

void OpenStageBackLayer(cStageWindow& stage, int layer) { OpenStageSettings(stage, kIdBackList, layer); }

int StageSettingsControlOfField(const std::string& label) { return label == "BGM" ? kIdBgm : 0; }

cStageSettingsSheet::cStageSettingsSheet(cDialogManager& manager, QWidget* owner)
    : cSheet(manager, owner, QString::fromUtf8("ステージの設定"), true) {
  ClearHistory();
  cStage& stage = EditStage();
  AddPage(MakeBasicPage(manager, stage), QString::fromUtf8("基本設定"));
  AddPage(MakeAdvancedPage(manager, stage), QString::fromUtf8("高度な設定"));
  AddPage(MakeHitBoxPage(manager, stage), QString::fromUtf8("高度な設定2"));
}

bool cStageSettingsSheet::OnApply() {
  StageEdit().m_bStageChanged = 1;
  return true;
}

void InstallStageSettings(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::StageSettings, [&stage] { OpenStageSettings(stage); });
  stage.SetHandler(eMenuAction::StageOptions, [&stage] { OpenStageOptions(stage); });
  stage.SetHandler(eMenuAction::EditOptions, [&stage] { OpenEditOptions(stage); });
}

}  // namespace velmora
