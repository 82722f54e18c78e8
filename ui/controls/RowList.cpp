#include "ui/controls/RowList.h"

#include <QSignalBlocker>

#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtText.h"

namespace velmora {

cRowList::cRowList(cDialog& parent, QListWidget* list, int id, RowsFn rows, int activateId)
    : cList(parent, list, id), m_rows(std::move(rows)) {
  Listen(list, &QListWidget::itemDoubleClicked, [this, activateId] {
    Parent().SendCommand(MakeCommand(activateId, kNoticeClicked), 0);
  });
  Refresh();
}

void cRowList::Refresh() {
  QListWidget* list = ListWidget();
  const QSignalBlocker block(list);
  const int selected = list->currentRow();
  list->clear();
  for (const std::string& row : m_rows()) list->addItem(FromCp932(row));
  list->setCurrentRow(selected >= 0 && selected < list->count() ? selected : 0);
}

cFormRow RowListRow(int id, int shownRows, const char* label) {
  return {label, cCustomDesc{id, [shownRows](QWidget* parent) -> QWidget* {
                               return NewListWidget(parent, 0, shownRows);
                             }}};
}

}  // namespace velmora
