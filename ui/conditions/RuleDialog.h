#pragma once
#include <QAbstractButton>
#include <QComboBox>
#include <functional>
#include <map>
#include <vector>

#include "core/AppControl.h"
#include "objects/CondRules.h"
#include "stage/VarRename.h"
#include "ui/conditions/VarRows.h"
#include "ui/controls/Button.h"
#include "ui/controls/Combo.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/EditVal.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// A record dialog whose controls depend on each other, stated as data: the
// rows of the table, then the rules that keep the other controls in step
// while the author edits. Each rule reads the working copy, which every
// change made by the author reaches at once.
template <class Record>
struct cRuleForm {
  // Combo boxes whose rows follow other fields. A field that the new rows
  // don't hold is brought to the nearest row.
  struct cRows {
    int id;
    cComboRows (*rows)(const Record&);
  };
  // Numeric edits whose limits follow other fields; a value already
  // entered is brought into them.
  struct cRange {
    int id;
    cValueRange (*range)(const Record&);
  };
  // Controls that take part only while the test holds; a check box with
  // `clear` is also cleared while it is off.
  struct cEnable {
    int id;
    bool (*enabled)(const Record&);
    bool clear = false;
  };
  // A "_" button: renames the variable chosen in the combo box, of the
  // scope given; -1 while the box lists no variables.
  struct cRename {
    int button;
    int combo;
    int (*scope)(const Record&);
  };

  // The rows over the fields of the copy that the dialog edits.
  std::vector<cFormRow> (*rows)(Record& work) = nullptr;
  std::vector<cRows> lists = {};
  std::vector<cRange> ranges = {};
  std::vector<cEnable> enables = {};
  std::vector<cRename> renames = {};
  // What a change made by the author does to other fields; `before` is the
  // copy as it was just before.
  void (*follow)(Record& work, const Record& before) = nullptr;
};

template <class Record>
class cRuleDialog : public cRecordDialog<Record> {
  using Base = cRecordDialog<Record>;

 public:
  // `prepare` brings the copy into the shape the rows bind (a vector given
  // its length, the values of a new record); it runs on the copy that the
  // table is stated over and again each time the dialog opens.
  cRuleDialog(cDialogManager& manager, QWidget* parent, Record& record, const cRuleForm<Record>& form,
              std::function<void(Record&)> prepare = {})
      : Base(manager, parent, record), m_rules(form), m_prepare(std::move(prepare)) {
    if (m_prepare) m_prepare(this->Work());
    this->m_form.rows = form.rows(this->Work());
  }

 protected:
  void PrepareWork(Record& work) override {
    if (m_prepare) m_prepare(work);
  }

  void BindOwnControls() override {
    m_shownRows.clear();
    m_appliedRanges.clear();
    FitRuledWidgets();
    FollowRules();
  }

  void UpdateEnables() override {
    for (const auto& rule : m_rules.enables) {
      const bool on = rule.enabled(this->Work());
      this->EnableControl(rule.id, on);
      if (!on && rule.clear) ClearCheck(rule.id);
    }
  }

  void OnDialogCommand(int id, int notice) override {
    for (const auto& rule : m_rules.renames) {
      if (rule.button == id && notice == kNoticeClicked) return Rename(rule);
    }
    cControl* control = this->FindControl(id);
    if (!control || this->FindChanged(MakeCommand(id, notice)) == 0) return;
    const Record before = this->Work();
    control->Commit();
    if (m_rules.follow) {
      m_rules.follow(this->Work(), before);
      RefreshChoices();
    }
    FollowRules();
  }

 private:
  // A list that takes other rows grows to show the longest of them, and
  // "_" stays as small as its one character.
  void FitRuledWidgets() {
    for (const auto& rule : m_rules.lists) {
      if (auto* combo = qobject_cast<QComboBox*>(this->Item(rule.id))) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
      }
    }
    for (const auto& rule : m_rules.renames) {
      if (QWidget* button = this->Item(rule.button)) button->setFixedWidth(button->sizeHint().height() * 3 / 2);
    }
  }

  void FollowRules() {
    for (const auto& rule : m_rules.lists) ShowRows(rule.id, rule.rows(this->Work()));
    for (const auto& rule : m_rules.ranges) ApplyRange(rule.id, rule.range(this->Work()));
  }

  // Refilling is left out while the rows stay the same, so the list the
  // author is looking at doesn't jump.
  void ShowRows(int id, const cComboRows& rows) {
    auto* combo = this->template FindControlOf<cCombo>(id);
    if (!combo) return;
    const auto shown = m_shownRows.find(id);
    if (shown != m_shownRows.end() && shown->second.texts == rows.texts && shown->second.offset == rows.offset) return;
    m_shownRows[id] = rows;
    if (!combo->SetRows(rows) && !rows.texts.empty()) {
      combo->Adjust();
      combo->Refresh();
    }
  }

  // Applied only when the limits change, so the edit being typed in is
  // never rewritten under the caret.
  void ApplyRange(int id, cValueRange range) {
    auto* edit = this->template FindControlOf<cEditVal>(id);
    if (!edit) return;
    const auto applied = m_appliedRanges.find(id);
    if (applied != m_appliedRanges.end() && applied->second == range) return;
    m_appliedRanges[id] = range;
    edit->SetRange(range.min, range.max);
    edit->Commit();
  }

  // Combo boxes and check boxes show what the follow rule changed.
  void RefreshChoices() {
    for (const auto& control : this->Controls()) {
      if (control->Kind() == eControlKind::Combo || control->Kind() == eControlKind::Check) control->Refresh();
    }
  }

  void ClearCheck(int id) {
    auto* check = this->template FindControlOf<cCheck>(id);
    auto* box = check ? qobject_cast<QAbstractButton*>(check->Widget()) : nullptr;
    if (!box || !box->isChecked()) return;
    box->setChecked(false);
    check->Commit();
  }

  void Rename(const typename cRuleForm<Record>::cRename& rule) {
    auto* combo = this->template FindControlOf<cCombo>(rule.combo);
    const int scope = rule.scope(this->Work());
    if (!combo || scope < 0 || combo->Selection() < 0) {
      AppControl().Beep();
      return;
    }
    QWidget* window = this->Window();
    if (RenameVariable(OwnerOf(window), scope, combo->SelectedValue(), StringInputOf(window, this->Manager()))) {
      FollowRules();
    }
  }

  const cRuleForm<Record>& m_rules;
  std::function<void(Record&)> m_prepare;
  std::map<int, cComboRows> m_shownRows;
  std::map<int, cValueRange> m_appliedRanges;
};

}  // namespace velmora
