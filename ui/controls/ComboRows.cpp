#include "ui/controls/ComboRows.h"

#include <algorithm>

namespace velmora {

cRowRange ClampRowRange(int size, int firstRow, int count) {
  const int first = std::clamp(firstRow, 0, std::max(size, 0));
  const int available = std::max(size, 0) - first;
  return {first, count == kAllRows ? available : std::clamp(count, 0, available)};
}

cComboRows LabelRows(const cLabelTable& table, int firstRow, int count) {
  const cRowRange range = ClampRowRange(table.Size(), firstRow, count);
  cComboRows rows;
  rows.offset = table.first + range.first;
  for (int row = range.first; row < range.first + range.count; ++row) {
    rows.texts.emplace_back(table.Label(table.first + row));
  }
  return rows;
}

cComboRows TextRows(const std::vector<std::string>& texts, int firstRow) {
  const cRowRange range = ClampRowRange(static_cast<int>(texts.size()), firstRow, kAllRows);
  cComboRows rows;
  rows.offset = range.first;
  rows.texts.assign(texts.begin() + range.first, texts.end());
  return rows;
}

cComboRows OptionRows(eOptionList list, int offset) {
  cComboRows rows;
  rows.offset = offset;
  for (const std::string& text : OptionList(list)) rows.texts.emplace_back(SysText(text.c_str()));
  return rows;
}

cComboDesc ComboOf(int id, cValueField field, cComboRows rows, bool adjust) {
  return cComboDesc{id, field, std::move(rows.texts), rows.offset, rows.conversion, adjust && !rows.conversion};
}

}  // namespace velmora
