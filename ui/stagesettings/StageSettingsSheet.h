#pragma once
#include <string>

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

// Opens the sheet over the stage window and runs it to its end; with
// `startControl` on the page that holds that control, a list there on
// row `startRow`.
void OpenStageSettings(cStageWindow& stage, int startControl = 0, int startRow = -1);
// The sheet with background layer `layer` (from 0) selected in its list.
void OpenStageBackLayer(cStageWindow& stage, int layer);
// The control of a field as the search of uses names it ("BGM"); 0 for a
// label no page shows.
int StageSettingsControlOfField(const std::string& label);

// The menu entries of the stage window that open the settings sheet and
// the stage and edit option dialogs.
void InstallStageSettings(cStageWindow& stage);

}  // namespace velmora
