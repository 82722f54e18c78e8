#pragma once
#include "project/SwordRecords.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// Dialog 223, "ソードの位置": one position of a sword swing.
class cSwordPosDialog : public cRecordDialog<cEdSwordPos> {
 public:
  cSwordPosDialog(cDialogManager& manager, QWidget* parent, cEdSwordPos& pos);
};

}  // namespace velmora
