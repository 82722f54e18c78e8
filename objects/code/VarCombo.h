#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "objects/code/VarNames.h"

namespace velmora {

// The rows of a combo box of variables: row r shows variable r + 1, so the
// value of a row is its index + 1.
std::vector<std::string> VarComboRows(const cVarNameList& list);

// "%s %s": the number zero-padded to three digits, a blank, the name (CP932).
std::string VarComboRowText(int number, std::string_view name);

// The row to choose for a stored variable number: a number outside the
// rows snaps to the nearest one. -1 when the list has no rows.
int VarComboRow(const cVarNameList& list, int storedNumber);

inline int VarNumberOfRow(int row) { return row + 1; }

}  // namespace velmora
