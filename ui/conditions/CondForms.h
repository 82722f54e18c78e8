#pragma once
#include <vector>

#include "ui/conditions/CondDialog.h"

namespace velmora {

// The forms of the kinds, each in the file of its own rules.
extern const cCondKindForm kStatusCondForm;  // ステータス条件
extern const cCondKindForm kFlagCondForm;    // ステータス条件2

// Pieces that several kinds' tables share.

// A combo box over a label table, its field forced into the table's rows.
cComboDesc TableCombo(int id, cValueField field, const cLabelTable& table);
// A combo box whose rows a rule of the form gives; it adjusts the field
// once it has them.
cComboDesc ListCombo(int id, cValueField field);
// The objects a condition may name, as the editor in use calls the first.
cComboRows ObjectRows(bool withSystem);
// The row of the constant, with the relation behind it.
std::vector<cFormRow> ValueRelationRows(cEdCond& work);

}  // namespace velmora
