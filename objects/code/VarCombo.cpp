#include "objects/code/VarCombo.h"

#include <algorithm>

#include "objects/GValInfo.h"

namespace velmora {

std::vector<std::string> VarComboRows(const cVarNameList& list) {
  std::vector<std::string> rows;
  for (int element = 1; element < list.Count(); ++element) {
    rows.push_back(VarComboRowText(element, list.Name(element)));
  }
  return rows;
}

std::string VarComboRowText(int number, std::string_view name) {
  std::string text = VarNumberText(number);
  text += ' ';
  text += name;
  return text;
}

int VarComboRow(const cVarNameList& list, int storedNumber) {
  const int rows = list.Count() - 1;
  if (rows < 1) return -1;
  return std::clamp(storedNumber, 1, rows) - 1;
}

}  // namespace velmora
