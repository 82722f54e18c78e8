#pragma once
#include "core/RecordListEdit.h"
#include "objects/Cond.h"
#include "ui/commands/CmdForm.h"

namespace velmora {

// The dialog of one command: the family's base. It edits the work of the
// command through the form of the command's kind; the work takes the
// controls' values on an OK that the kind's check accepts, and only then.
class cCmdDialog : public cRuleDialog<cCmdWork> {
 public:
  cCmdDialog(cDialogManager& manager, QWidget* parent, cCmdWork& work, const cCmdKindForm& form);

  // The conditions of フローの操作, for the kinds that have them.
  const cRecordListEdit<cEdCond>& Conditions() const { return m_conds; }

 protected:
  void PrepareWork(cCmdWork& work) override;
  bool Validate(const cCmdWork& work) override;
  void BindOwnControls() override;
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;

 private:
  void ShowTexts();
  void MoveSlidersOf(int editId);
  void BringListsNearTheirRows();

  const cCmdKindForm& m_kind;
  cRecordListEdit<cEdCond> m_conds;
};

}  // namespace velmora
