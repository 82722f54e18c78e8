#include "ui/controls/ScrollBar.h"

#include <QMouseEvent>
#include <algorithm>

#include "ui/framework/Dialog.h"

namespace velmora {
namespace {

class cRightButtonFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const bool mouse = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonPress;
    return mouse && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
  }
};

}  // namespace

cScrollBar::cScrollBar(cDialog& parent, QScrollBar* bar, int id)
    : cControl(eControlKind::ScrollBar, id, parent, bar), m_pBar(bar), m_pRightFilter(new cRightButtonFilter(bar)) {
  bar->installEventFilter(m_pRightFilter);
  bar->setContextMenuPolicy(Qt::NoContextMenu);
  SetRange(0, 0);
  SetPage(0);
  Listen(bar, &QScrollBar::actionTriggered, [this](int action) { Parent().Scroll(m_pBar, action); });
}

cScrollBar::~cScrollBar() {
  if (Widget()) delete m_pRightFilter;
}

void cScrollBar::SetRange(int minimum, int maximum) {
  m_nMinimum = minimum;
  m_nMaximum = maximum;
  Apply();
}

void cScrollBar::SetPage(int page) {
  m_nPage = page;
  Apply();
}

void cScrollBar::Apply() {
  const int top = std::max(m_nMinimum, m_nMaximum - std::max(m_nPage, 1) + 1);
  m_pBar->setRange(m_nMinimum, top);
  m_pBar->setPageStep(std::max(m_nPage, 1));
}

}  // namespace velmora
