#include "ui/list/FieldList.h"

namespace velmora {
namespace {

constexpr int kShownRows = 16;
constexpr int kShownChars = 22;

QWidget* MakeFieldListWidget(QWidget* parent) {
  QListWidget* list = NewListWidget(parent, kShownChars, kShownRows);
  // Thousands of rows of one height: the view needn't measure each.
  list->setUniformItemSizes(true);
  return list;
}

}  // namespace

cFormRow FieldListRow(int listId) { return {nullptr, cCustomDesc{listId, MakeFieldListWidget}}; }

}  // namespace velmora
