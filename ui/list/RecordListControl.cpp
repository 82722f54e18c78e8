#include "ui/list/RecordListControl.h"

namespace velmora {
namespace {

// Room for this many rows of condition or command text.
constexpr int kShownRows = 8;
constexpr int kShownChars = 48;

QWidget* MakeRecordListWidget(QWidget* parent) {
  auto* list = new QListWidget(parent);
  const QFontMetrics metrics(list->font());
  list->setMinimumSize(metrics.averageCharWidth() * kShownChars, metrics.height() * kShownRows);
  return list;
}

}  // namespace

cFormRow RecordListRows(const cRecordListIds& ids) {
  return FormRows({
      {nullptr, cCustomDesc{ids.list, MakeRecordListWidget}},
      {nullptr, cButtonDesc{ids.insert, "挿入"}},
      {nullptr, cButtonDesc{ids.edit, "編集"}, nullptr, nullptr, true},
      {nullptr, cButtonDesc{ids.remove, "削除"}, nullptr, nullptr, true},
  });
}

}  // namespace velmora
