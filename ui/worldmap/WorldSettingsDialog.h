#pragma once
#include "project/WorldMapEditor.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// Dialog 153 "ワールドマップの設定": size, start, background colour and
// picture of the world map. OK hands the settings back; the window applies
// them, since a new size also empties the history.
class cWorldSettingsDialog : public cRecordDialog<cWorldSettings> {
 public:
  cWorldSettingsDialog(cDialogManager& manager, QWidget* parent, cWorldSettings& settings);

 protected:
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;
};

}  // namespace velmora
