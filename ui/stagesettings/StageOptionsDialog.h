#pragma once
#include "ui/framework/Dialog.h"

namespace velmora {

// Dialog 195 "ステージオプション": the undo depth of the edit stage and the
// direction the wheel scrolls the stage window. A deeper history is
// measured against free memory at OK and refused when it wouldn't fit.
class cStageOptionsDialog : public cDialog {
 public:
  cStageOptionsDialog(cDialogManager& manager, QWidget* parent);

 protected:
  void OnInitDialog() override;
  bool OnApply() override;

 private:
  int m_nOldLevels = 0;
};

// Dialog 194 "エディットオプション": nothing to set yet, only OK and Cancel.
class cEditOptionsDialog : public cDialog {
 public:
  cEditOptionsDialog(cDialogManager& manager, QWidget* parent);
};

}  // namespace velmora
