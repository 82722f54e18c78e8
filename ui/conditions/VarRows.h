#pragma once
#include "objects/code/AskVarName.h"
#include "ui/controls/ComboRows.h"

class QWidget;

namespace velmora {

class cDialogManager;

// The rows of a combo box of the variables of a scope, variable 1 first,
// so that the field keeps the variable's own number.
cComboRows VarRows(int scope);

// Asks for a text through the dialog "文字列の入力" over `parent`; the way
// AskVarName reaches the author.
cStringInput StringInputOf(QWidget* parent, cDialogManager& manager);

}  // namespace velmora
