#include "ui/conditions/VarRows.h"

#include "objects/code/VarCombo.h"
#include "stage/VarRename.h"
#include "ui/framework/StockDialogs.h"

namespace velmora {

cComboRows VarRows(int scope) { return {VarComboRows(cRecordVarNames<cStageVar>(ScopeVarNames(scope))), 1}; }

cStringInput StringInputOf(QWidget* parent, cDialogManager& manager) {
  return [parent, &manager](OwnerWindow, std::string& text, int limit, const char* caption) {
    return InputString(parent, manager, text, limit, false, caption) == 1;
  };
}

}  // namespace velmora
