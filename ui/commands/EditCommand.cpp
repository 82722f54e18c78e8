#include "ui/commands/EditCommand.h"

#include "core/Log.h"
#include "objects/ObjectList.h"
#include "ui/commands/CmdDialog.h"
#include "ui/commands/CmdKindSelector.h"

namespace velmora {
namespace {

// The item editor's objects are seen from the item while one of its
// commands is open: the first object is then 自分.
class cItemCommandContext {
 public:
  explicit cItemCommandContext(bool itemCmd) : m_before(CurrentObjectContext()) {
    if (itemCmd && m_before == eObjectContext::ItemEditor) SetObjectContext(eObjectContext::ItemCommandDialog);
  }
  ~cItemCommandContext() { SetObjectContext(m_before); }
  cItemCommandContext(const cItemCommandContext&) = delete;
  cItemCommandContext& operator=(const cItemCommandContext&) = delete;

 private:
  eObjectContext m_before;
};

}  // namespace

bool EditCommand(cEdCmd& cmd, cDialogManager& manager, QWidget* parent, ePalette entryPalette) {
  const cCmdKindForm* form = CmdKindForm(cmd.m_bItemCmd != 0, cmd.m_nKind);
  if (!form) {
    ReportLine("command: kind %d of %s has no dialog, nothing was opened", cmd.m_nKind,
               cmd.m_bItemCmd ? "ItemCmdTable" : "CmdTable");
    return false;
  }
  cCmdWork work = CmdWorkOf(cmd);
  work.commonEntry = entryPalette == ePalette::Common;
  cCmdDialog dialog(manager, parent, work, *form);
  if (dialog.DoModal(0) != 1) return false;
  StoreCmdWork(work, cmd);
  return true;
}

bool EditFlowCommand(cEdCmd& cmd, bool isNew, cDialogManager& manager, QWidget* parent, ePalette entryPalette) {
  const cItemCommandContext context(cmd.m_bItemCmd != 0);
  if (!isNew) return EditCommand(cmd, manager, parent, entryPalette);
  cCmdKindSelector selector(manager, parent, cmd, entryPalette);
  return selector.DoModal(0) == 1;
}

}  // namespace velmora
