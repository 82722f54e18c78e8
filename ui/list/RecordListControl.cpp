#include "ui/list/RecordListControl.h"

namespace velmora {
namespace {

// Room for this many rows of condition or command text.
constexpr int kShownRows = 8;
constexpr int kShownChars = 48;

QWidget* MakeRecordListWidget(QWidget* parent, int chars, int rows) {
  return NewListWidget(parent, chars > 0 ? chars : kShownChars, rows > 0 ? rows : kShownRows);
}

}  // namespace

cFormRow RecordListRows(const cRecordListIds& ids) {
  auto make = [chars = ids.shownChars, rows = ids.shownRows](QWidget* parent) {
    return MakeRecordListWidget(parent, chars, rows);
  };
  std::vector<cFormRow> rows = {{nullptr, cCustomDesc{ids.list, make}}};
  const cButtonDesc buttons[] = {{ids.insert, "挿入"}, {ids.edit, "編集"}, {ids.remove, "削除"}};
  for (const cButtonDesc& button : buttons) {
    // The buttons stand in one line under the list.
    if (button.id != 0) rows.push_back({nullptr, button, nullptr, nullptr, rows.size() > 1});
  }
  return FormRows(std::move(rows));
}

}  // namespace velmora
