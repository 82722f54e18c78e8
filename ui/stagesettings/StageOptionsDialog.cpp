#include "ui/stagesettings/StageOptionsDialog.h"

#include "stage/HistoryMemory.h"
#include "stage/Stage.h"
#include "ui/controls/ComboRows.h"
#include "ui/framework/QtText.h"
#include "ui/stagesettings/StageSettingsIds.h"

namespace velmora {
namespace {

constexpr int kMaxUndoLevels = 9;

}  // namespace

cStageOptionsDialog::cStageOptionsDialog(cDialogManager& manager, QWidget* parent) : cDialog(manager, parent) {
  SetTitle(Ui("ステージオプション"));
  SetLogName("DLG_STAGEOPTION");
  cStage& stage = EditStage();
  m_form.rows = {
      {"元に戻せる回数",
       cEditValDesc{kIdUndoCount, &stage.m_iUndoCount, 0, kMaxUndoLevels, kIdUndoCount + kStageSpinOffset}},
      {"マウスホイールによるスクロール方向", ComboOf(kIdWheelDir, &stage.m_iWheelDir, OptionRows(eOptionList::WheelDirection)),
       nullptr, "☆Ctrlキーを押しながら動かすと垂直・水平が逆になる"},
  };
}

void cStageOptionsDialog::OnInitDialog() {
  m_nOldLevels = EditStage().m_iUndoCount;
  cDialog::OnInitDialog();
}

// The new depth is in the stage by now; a rise that memory refuses puts the
// old one back and says so, and the dialog closes all the same.
bool cStageOptionsDialog::OnApply() {
  ApplyUndoLevels(m_nOldLevels);
  return true;
}

cEditOptionsDialog::cEditOptionsDialog(cDialogManager& manager, QWidget* parent) : cDialog(manager, parent) {
  SetTitle(Ui("エディットオプション"));
  SetLogName("DLG_EDITOPTION");
}

}  // namespace velmora
