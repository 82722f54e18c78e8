#include "ui/conditions/EditCondition.h"

#include "ui/conditions/CondKindSelector.h"
#include "ui/conditions/KeyCondDialog.h"

namespace velmora {

bool EditCondition(cEdCond& record, bool isNew, cDialogManager& manager, QWidget* parent, eDistanceCond distance) {
  cCondKindSelector selector(manager, parent, record, distance == eDistanceCond::Allowed);
  return selector.Run(isNew);
}

bool EditKeyCondition(cEdKeyCond& record, cDialogManager& manager, QWidget* parent) {
  cKeyCondDialog dialog(manager, parent, record);
  return dialog.DoModal(0) == 1;
}

}  // namespace velmora
