#pragma once
#include <QAbstractButton>
#include <QComboBox>
#include <map>

#include "core/AppControl.h"
#include "objects/CondRules.h"
#include "stage/VarRename.h"
#include "ui/conditions/VarRows.h"
#include "ui/controls/Button.h"
#include "ui/controls/Combo.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/EditVal.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtPrompt.h"
#include "ui/whereused/VariableUsesMenu.h"

namespace velmora {

// The controls of a dialog that depend on each other, stated as data: the
// rows of the table, then the rules that keep the other controls in step
// while the author edits. Each rule reads the record the controls are bound
// to, which every change made by the author reaches at once.
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

  // The rows over the fields of the record that the dialog edits.
  std::vector<cFormRow> (*rows)(Record& work) = nullptr;
  std::vector<cRows> lists = {};
  std::vector<cRange> ranges = {};
  std::vector<cEnable> enables = {};
  std::vector<cRename> renames = {};
  // What a change made by the author does to other fields; `before` is the
  // record as it was just before.
  void (*follow)(Record& work, const Record& before) = nullptr;
};

// Runs the rules of a form in a dialog over the record its controls are
// bound to: a dialog of its own copy (cRuleDialog) or a page over a record
// that several pages share.
template <class Record>
class cFormRules {
 public:
  cFormRules(cDialog& dialog, const cRuleForm<Record>& rules) : m_dialog(dialog), m_rules(rules) {}

  // After the controls were bound: lists and limits as the record asks.
  void Bind(Record& work) {
    m_shownRows.clear();
    m_appliedRanges.clear();
    FitRuledWidgets();
    for (const auto& rule : m_rules.renames) {
      OfferVariableUses(m_dialog, rule.button, rule.combo, [&work, scope = rule.scope] { return scope(work); });
    }
    Follow(work);
  }

  void UpdateEnables(const Record& work) {
    for (const auto& rule : m_rules.enables) {
      const bool on = rule.enabled(work);
      m_dialog.EnableControl(rule.id, on);
      if (!on && rule.clear) ClearCheck(rule.id);
    }
  }

  // A command of the dialog: a rename button, or a change of a control,
  // which is committed to the record and followed. False when the command
  // was neither.
  bool OnCommand(Record& work, int id, int notice) {
    for (const auto& rule : m_rules.renames) {
      if (rule.button == id && notice == kNoticeClicked) {
        Rename(work, rule);
        return true;
      }
    }
    cControl* control = m_dialog.FindControl(id);
    if (!control || m_dialog.FindChanged(MakeCommand(id, notice)) == 0) return false;
    if (!m_rules.follow) {
      control->Commit();
      Follow(work);
      return true;
    }
    const Record before = work;
    control->Commit();
    m_rules.follow(work, before);
    RefreshChoices();
    Follow(work);
    return true;
  }

  // The lists and limits that follow other fields, shown anew.
  void Follow(const Record& work) {
    for (const auto& rule : m_rules.lists) ShowRows(rule.id, rule.rows(work));
    for (const auto& rule : m_rules.ranges) ApplyRange(rule.id, rule.range(work));
  }

 private:
  // A list that takes other rows grows to show the longest of them, and
  // "_" stays as small as its one character.
  void FitRuledWidgets() {
    for (const auto& rule : m_rules.lists) {
      if (auto* combo = qobject_cast<QComboBox*>(m_dialog.Item(rule.id))) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
      }
    }
    for (const auto& rule : m_rules.renames) {
      if (QWidget* button = m_dialog.Item(rule.button)) button->setFixedWidth(button->sizeHint().height() * 3 / 2);
    }
  }

  // Refilling is left out while the rows stay the same, so the list the
  // author is looking at doesn't jump.
  void ShowRows(int id, const cComboRows& rows) {
    auto* combo = m_dialog.FindControlOf<cCombo>(id);
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
    auto* edit = m_dialog.FindControlOf<cEditVal>(id);
    if (!edit) return;
    const auto applied = m_appliedRanges.find(id);
    if (applied != m_appliedRanges.end() && applied->second == range) return;
    m_appliedRanges[id] = range;
    edit->SetRange(range.min, range.max);
    edit->Commit();
  }

  // Combo boxes and check boxes show what the follow rule changed.
  void RefreshChoices() {
    for (const auto& control : m_dialog.Controls()) {
      if (control->Kind() == eControlKind::Combo || control->Kind() == eControlKind::Check) control->Refresh();
    }
  }

  void ClearCheck(int id) {
    auto* check = m_dialog.FindControlOf<cCheck>(id);
    auto* box = check ? qobject_cast<QAbstractButton*>(check->Widget()) : nullptr;
    if (!box || !box->isChecked()) return;
    box->setChecked(false);
    check->Commit();
  }

  void Rename(Record& work, const typename cRuleForm<Record>::cRename& rule) {
    auto* combo = m_dialog.FindControlOf<cCombo>(rule.combo);
    const int scope = rule.scope(work);
    if (!combo || scope < 0 || combo->Selection() < 0) {
      AppControl().Beep();
      return;
    }
    QWidget* window = m_dialog.Window();
    if (RenameVariable(OwnerOf(window), scope, combo->SelectedValue(), StringInputOf(window, m_dialog.Manager()))) {
      Follow(work);
    }
  }

  cDialog& m_dialog;
  const cRuleForm<Record>& m_rules;
  std::map<int, cComboRows> m_shownRows;
  std::map<int, cValueRange> m_appliedRanges;
};

}  // namespace velmora
