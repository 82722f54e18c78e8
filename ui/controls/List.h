#pragma once
#include <QListWidget>

#include "ui/controls/Control.h"

namespace velmora {

// The part of a list control that every dialog sees: selection and focus
// reach it as commands, and after each command it takes its redraw back.
// What it shows and how it edits its elements belongs to the list pages.
class cList : public cControl {
 public:
  cList(cDialog& parent, QListWidget* list, int id);
  ~cList() override;
  void OnAfterCommand() override;
  int Selection() const { return m_pList->currentRow(); }
  QListWidget* ListWidget() const { return m_pList; }

 private:
  QListWidget* m_pList;
  QObject* m_pFocusFilter;
};

// A list widget with room for `rows` rows of `chars` characters; 0 chars
// leaves its width to the layout.
QListWidget* NewListWidget(QWidget* parent, int chars, int rows);

}  // namespace velmora
