#pragma once
#include <span>
#include <string>
#include <vector>

#include "core/OptionLists.h"
#include "core/SystemText.h"
#include "objects/LabelTable.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

// What a combo box lists and how its rows map to field values: without a
// conversion table the field holds offset + position; with one, the
// table's value of the position. Texts are CP932.
struct cComboRows {
  std::vector<std::string> texts;
  int offset = 0;
  const std::vector<int>* conversion = nullptr;  // owned by the dialog
};

inline constexpr int kAllRows = -1;

// Rows `firstRow` to `firstRow + count - 1` of a label table (all from
// `firstRow` on with kAllRows). The offset is the stored value of the first
// row shown, so the field keeps the table's own numbering. A range that
// reaches past the table is cut to it.
cComboRows LabelRows(const cLabelTable& table, int firstRow = 0, int count = kAllRows);

// The row range of a table of `size` rows that LabelRows shows: the first
// row and the number of rows.
struct cRowRange {
  int first = 0;
  int count = 0;
};
cRowRange ClampRowRange(int size, int firstRow, int count);

// The same for the tables whose rows are records with a UTF-8 `label`,
// stored by row number: CharaStatusTable, CharaFlagTable, CmdTable,
// ArrangeTable and their like.
template <class Row>
cComboRows LabelRows(std::span<const Row> table, int firstRow = 0, int count = kAllRows) {
  const cRowRange range = ClampRowRange(static_cast<int>(table.size()), firstRow, count);
  cComboRows rows;
  rows.offset = range.first;
  for (int row = range.first; row < range.first + range.count; ++row) {
    rows.texts.emplace_back(SysText(table[static_cast<size_t>(row)].label));
  }
  return rows;
}

// Rows that are CP932 already (names of database entries or variables),
// from `firstRow` on.
cComboRows TextRows(const std::vector<std::string>& texts, int firstRow = 0);

// The rows of one of the settings' option lists; the field holds
// `offset` + position (the hit level counts from 1).
cComboRows OptionRows(eOptionList list, int offset = 0);

// The descriptor of a combo box over `rows`. With `adjust` a field outside
// the rows, as a damaged file can leave it, is forced to the nearest row
// whenever the combo shows it (bind such a combo to a working copy, see
// cRecordDialog); rows with a conversion table are never adjusted.
cComboDesc ComboOf(int id, cValueField field, cComboRows rows, bool adjust = true);

}  // namespace velmora
