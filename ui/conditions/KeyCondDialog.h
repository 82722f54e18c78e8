#pragma once
#include "objects/KeyCond.h"
#include "ui/conditions/RuleDialog.h"

namespace velmora {

// Dialog 204 "キー条件": the state of each key, the input time of the keys
// held (「押」) and how the keys combine. OK gives the copy back.
class cKeyCondDialog : public cRuleDialog<cEdKeyCond> {
 public:
  cKeyCondDialog(cDialogManager& manager, QWidget* parent, cEdKeyCond& record);
};

}  // namespace velmora
