#pragma once
#include "objects/Cmd.h"
#include "objects/RefSizes.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// Dialog 205 "コマンド" for a character's commands, or 216 for an item's: a
// button for each kind that has a dialog, labelled and ordered as CmdTable
// or ItemCmdTable. A button makes the command a new one of its kind and
// opens that kind's dialog; the selector closes with that dialog's result.
class cCmdKindSelector : public cDialog {
 public:
  cCmdKindSelector(cDialogManager& manager, QWidget* parent, cEdCmd& cmd, ePalette entryPalette);

 protected:
  void OnDialogCommand(int id, int notice) override;

 private:
  cEdCmd& m_cmd;
  ePalette m_entryPalette;
};

}  // namespace velmora
