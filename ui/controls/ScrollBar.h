#pragma once
#include <QScrollBar>

#include "ui/controls/Control.h"

namespace velmora {

// One of the two scroll bars of a window itself. It binds no field: the
// position stays in the bar until the window reads it. A right click on
// the bar does nothing, so it never opens the window's pop-up menu.
class cScrollBar : public cControl {
 public:
  cScrollBar(cDialog& parent, QScrollBar* bar, int id);
  ~cScrollBar() override;
  QScrollBar* Bar() const { return m_pBar; }
  void SetRange(int minimum, int maximum);
  void SetPage(int page);
  int Position() const { return m_pBar->value(); }
  void SetPosition(int position) { m_pBar->setValue(position); }

 private:
  QScrollBar* m_pBar;
  QObject* m_pRightFilter;
};

}  // namespace velmora
