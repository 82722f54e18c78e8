#pragma once
#include "ui/framework/Dialog.h"

namespace velmora {

// Dialog 247: a new stage from a template and a choice of stage palette.
// Its values live in the editor settings and survive between runs.
class cNewStageDialog : public cDialog {
 public:
  cNewStageDialog(cDialogManager& manager, QWidget* parent);

 protected:
  bool OnApply() override;
  void OnDialogCommand(int id, int notice) override;
  void UpdateEnables() override;
};

}  // namespace velmora
