#include "ui/conditions/CondDialog.h"

#include "objects/CondTables.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

std::function<void(cEdCond&)> NewRecordOf(int kind, bool isNew) {
  if (!isNew) return {};
  return [kind](cEdCond& work) { work = NewCondition(kind); };
}

}  // namespace

cCondDialog::cCondDialog(cDialogManager& manager, QWidget* parent, cEdCond& record, const cCondKindForm& form,
                         bool isNew)
    : cRuleDialog(manager, parent, record, form.rules, NewRecordOf(form.kind, isNew)) {
  SetTitle(Ui(CondKindTable.Utf8(form.kind)));
  SetLogName("condition");
}

}  // namespace velmora
