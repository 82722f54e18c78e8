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
  // Range and page as the window states them: the range covers the whole
  // content, and the highest position leaves a full page in view.
  void SetRange(int minimum, int maximum);
  void SetPage(int page);
  int Position() const { return m_pBar->value(); }
  void SetPosition(int position) { m_pBar->setValue(position); }

 private:
  void Apply();

  QScrollBar* m_pBar;
  int m_nMinimum = 0;
  int m_nMaximum = 0;
  int m_nPage = 0;
  QObject* m_pRightFilter;
};

}  // namespace velmora
