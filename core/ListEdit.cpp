#include "core/ListEdit.h"

namespace velmora {

std::string NumberedRowText(int rowNumber, int shownCount, const std::string& text) {
  const int digits = std::min(11, static_cast<int>(std::to_string(std::max(shownCount, 0)).size()));
  char number[24];
  std::snprintf(number, sizeof number, "%0*d", digits, rowNumber);
  return std::string(number) + " " + text;
}

}  // namespace velmora
