#pragma once
#include "ui/framework/Sheet.h"

namespace velmora {

class cStageWindow;

// "ステージの設定": three pages bound to the edit stage itself. Opening
// drops the undo history, so that the memory figures see memory free of
// it; OK applies the new size first, then the other pages, and marks the
// stage changed. Cancel leaves the stage as it was.
class cStageSettingsSheet : public cSheet {
 public:
  cStageSettingsSheet(cDialogManager& manager, QWidget* owner);

 protected:
  bool OnApply() override;
};

// The menu entries of the stage window that open the settings sheet and
// the stage and edit option dialogs.
void InstallStageSettings(cStageWindow& stage);

}  // namespace velmora
