#pragma once
#include "objects/Cond.h"
#include "ui/conditions/RuleDialog.h"

namespace velmora {

// One kind of condition: the table of its dialog and the rules between
// its controls.
struct cCondKindForm {
  int kind;
  cRuleForm<cEdCond> rules;
};

// The form of a kind; null for a kind that CondKindTable doesn't hold.
const cCondKindForm* CondKindForm(int kind);

// The dialog of one kind of condition, titled with the kind's label. A new
// record starts from the kind's values for a new condition; OK gives the
// copy back, Cancel leaves the record as it was.
class cCondDialog : public cRuleDialog<cEdCond> {
 public:
  cCondDialog(cDialogManager& manager, QWidget* parent, cEdCond& record, const cCondKindForm& form, bool isNew);
};

}  // namespace velmora
