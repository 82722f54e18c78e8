#pragma once
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/controls/Descriptors.h"
#include "ui/controls/List.h"

namespace velmora {

// A list whose rows the dialog works out from its record, with no element
// commands of its own (the fixed slots of an animation set): each Refresh
// reads the rows anew and keeps the selected row, and a double click on a
// row is a click of the button `activateId`.
class cRowList : public cList {
 public:
  using RowsFn = std::function<std::vector<std::string>()>;  // CP932

  cRowList(cDialog& parent, QListWidget* list, int id, RowsFn rows, int activateId);
  void Refresh() override;

 private:
  RowsFn m_rows;
};

// The list widget of a cRowList in a dialog's table, room for `shownRows`.
cFormRow RowListRow(int id, int shownRows, const char* label = nullptr);

}  // namespace velmora
