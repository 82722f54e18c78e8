#include "ui/commands/CmdDialog.h"

#include <QSlider>
#include <algorithm>

#include "objects/CmdTable.h"
#include "objects/CondSummary.h"
#include "ui/commands/CmdIds.h"
#include "ui/conditions/EditCondition.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/QtText.h"
#include "ui/list/RecordListControl.h"

namespace velmora {
namespace {

constexpr int kMaxConditions = 99;
constexpr cRecordListIds kCondListIds{kIdCondList, kIdCondInsert, kIdCondEdit, kIdCondDelete, 1};

const char* TitleOf(const cCmdKindForm& form) {
  if (form.title) return form.title;
  const cCmdInfo* info = FindCmdInfo(false, form.kind);
  return info ? info->label : "";
}

}  // namespace

cCmdDialog::cCmdDialog(cDialogManager& manager, QWidget* parent, cCmdWork& work, const cCmdKindForm& form)
    : cRuleDialog(manager, parent, work, form.rules, form.open), m_kind(form) {
  SetTitle(Ui(TitleOf(form)));
  SetLogName("command");
  m_conds.m_nMax = kMaxConditions;
  m_conds.m_RowText = [](int, const cEdCond& cond) { return CondSummaryText(cond); };
  m_conds.m_Edit = [this](cEdCond& cond, bool isNew) { return EditCondition(cond, isNew, Manager(), Window()); };
}

void cCmdDialog::PrepareWork(cCmdWork& work) {
  cRuleDialog::PrepareWork(work);
  if (m_kind.condList) m_conds.SetData(&work.condList.m_vCond);
  BringListsNearTheirRows();
}

// A combo box reckons the row of its field by subtracting its offset, which
// a damaged value at the end of the 32-bit range would overflow. Such a
// value goes to the nearest row in any case; here it goes near first.
void cCmdDialog::BringListsNearTheirRows() {
  constexpr double kNear = 1 << 30;
  for (const cFormRow* row : ControlRows(m_form.rows)) {
    const auto* combo = std::get_if<cComboDesc>(&row->control);
    if (combo && combo->field.IsBound()) combo->field.Set(std::clamp(combo->field.Get(), -kNear, kNear));
  }
}

bool cCmdDialog::Validate(const cCmdWork& work) { return !m_kind.accept || m_kind.accept(work, OwnerOf(Window())); }

void cCmdDialog::BindOwnControls() {
  cRuleDialog::BindOwnControls();
  if (m_kind.condList) BindRecordList(*this, kCondListIds, m_conds);
}

void cCmdDialog::UpdateEnables() {
  cRuleDialog::UpdateEnables();
  ShowTexts();
}

void cCmdDialog::ShowTexts() {
  for (const cCmdKindForm::cText& rule : m_kind.texts) SetItemText(rule.id, rule.text(Work()));
  for (const cCmdKindForm::cShow& rule : m_kind.shows) {
    const bool shown = rule.shown(Work());
    for (int id : rule.ids) {
      if (QWidget* item = Item(id)) item->setVisible(shown);
    }
  }
}

void cCmdDialog::OnDialogCommand(int id, int notice) {
  for (const cCmdKindForm::cPress& rule : m_kind.presses) {
    if (rule.id != id || notice != kNoticeClicked) continue;
    ApplyAll();
    if (rule.press(Work(), OwnerOf(Window()))) RefreshAll();
    UpdateEnables();
    return;
  }
  const bool changed = FindChanged(MakeCommand(id, notice)) != 0;
  const cCmdWork before = Work();
  cRuleDialog::OnDialogCommand(id, notice);
  if (!changed) return;
  MoveSlidersOf(id);
  if (m_kind.reset && m_kind.reset(Work(), before)) RefreshAll();
}

// A number typed beside a slider moves the slider, so that the slider,
// which stores its own position, stores what was typed.
void cCmdDialog::MoveSlidersOf(int editId) {
  for (const cFormRow* row : ControlRows(m_form.rows)) {
    const auto* slider = std::get_if<cSliderDesc>(&row->control);
    if (!slider || slider->editId != editId) continue;
    if (auto* bar = qobject_cast<QSlider*>(Item(slider->id))) bar->setValue(static_cast<int>(slider->field.Get()));
  }
}

}  // namespace velmora
