#pragma once
#include "project/WorldMapEditor.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// Dialog 153 "ワールドマップの設定": size, start, background colour and
// picture of the world map. OK hands the settings back; the window applies
// them, since a new size also empties the history.
class cWorldSettingsDialog : public cRecordDialog<cWorldSettings> {
 public:
  // The controls of the settings dialog.
  enum eSettingsIds {
    kIdWidth = 1301, kIdHeight, kIdStartX, kIdStartY, kIdBackColor, kIdSwatch, kIdUseBackImage, kIdBackPath,
    kIdBrowse,
  };

  cWorldSettingsDialog(cDialogManager& manager, QWidget* parent, cWorldSettings& settings);

 protected:
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;
};

}  // namespace velmora
