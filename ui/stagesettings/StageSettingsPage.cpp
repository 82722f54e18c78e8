#include "ui/stagesettings/StageSettingsPage.h"

#include "ui/controls/Button.h"
#include "ui/controls/Combo.h"
#include "ui/controls/EditVal.h"
#include "ui/stagesettings/StageSettingsIds.h"

namespace velmora {

cStageSettingsPage::cStageSettingsPage(cDialogManager& manager, cStage& stage, const char* logName)
    : cDialog(manager, nullptr), m_stage(stage) {
  SetLogName(logName);
  m_form.okCancel = false;  // the sheet's
}

double cStageSettingsPage::ShownValue(int id) const {
  cEditVal* edit = FindControlOf<cEditVal>(id);
  return edit ? edit->Entry().Clamp(edit->GetValue()) : 0;
}

int cStageSettingsPage::ShownRow(int id) const {
  const cCombo* combo = FindControlOf<cCombo>(id);
  return combo ? combo->Selection() : -1;
}

cEditValDesc cStageSettingsPage::SpinEdit(int id, cValueField field, double minimum, double maximum, double step) {
  return cEditValDesc{id, field, minimum, maximum, id + kStageSpinOffset, step};
}

cFormRow cStageSettingsPage::CheckRow(int id, cValueField field, const char* text) {
  return {nullptr, cCheckDesc{id, field, text, true}};
}

cFormRow cStageSettingsPage::NoteRow(const char* text) { return {nullptr, cStaticDesc{0, text}}; }

}  // namespace velmora
