#pragma once
#include <functional>

namespace velmora {

class cDialog;

// The "_" beside a variable list also finds the variable's uses: a right
// click on it offers 使用箇所の検索, which lists the uses of the variable
// that the list `combo` shows, of the scope `scope` gives (-1 while the
// list holds no variables), over the dialog. The results stay with the
// search of the project menu, which opens them.
void OfferVariableUses(cDialog& dialog, int button, int combo, std::function<int()> scope);

}  // namespace velmora
