#pragma once
#include "stage/StageParts.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// Dialog 136 "背景": one background layer of the settings page's list, as
// a plain colour or a picture that scrolls at its own speeds. OK hands the
// edited copy back.
class cBackDialog : public cRecordDialog<cStageBack> {
 public:
  cBackDialog(cDialogManager& manager, QWidget* parent, cStageBack& back);

 protected:
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;
};

}  // namespace velmora
