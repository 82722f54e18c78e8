#include "ui/controls/FormScrollArea.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <climits>

namespace velmora {
namespace {

// What a window keeps beside its client's height: the title bar and frame
// of the window manager, and the tabs and buttons of a sheet around a page.
constexpr int kWindowAllowance = 128;
// The least the area shows when a window is made smaller by hand.
constexpr int kLeastViewLines = 4;

bool TakesTheWheel(const QObject* watched) {
  return qobject_cast<const QComboBox*>(watched) || qobject_cast<const QAbstractSlider*>(watched);
}

}  // namespace

cFormScrollArea::cFormScrollArea(QWidget* parent, QWidget* rows) : QScrollArea(parent), m_nViewHeight(INT_MAX) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  setWidget(rows);
  for (QWidget* child : rows->findChildren<QWidget*>()) {
    if (TakesTheWheel(child)) child->installEventFilter(this);
  }
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && widget() && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
  });
}

int cFormScrollArea::SideRoom() const {
  return 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

QSize cFormScrollArea::sizeHint() const {
  const QSize rows = widget() ? widget()->sizeHint() : QSize();
  return {rows.width() + SideRoom(), std::min(rows.height() + 2 * frameWidth(), m_nViewHeight)};
}

QSize cFormScrollArea::minimumSizeHint() const {
  const QSize rows = widget() ? widget()->minimumSizeHint() : QSize();
  const int least = kLeastViewLines * fontMetrics().height();
  return {rows.width() + SideRoom(), std::min(rows.height() + 2 * frameWidth(), least)};
}

void cFormScrollArea::LimitViewHeight(int height) {
  m_nViewHeight = std::max(height, minimumSizeHint().height());
  updateGeometry();
}

bool cFormScrollArea::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
    // Ignored, the wheel goes on to the parents and scrolls the rows.
    event->ignore();
    return true;
  }
  return QScrollArea::eventFilter(watched, event);
}

void FitFormToScreen(QWidget& client) {
  const QList<cFormScrollArea*> areas = client.findChildren<cFormScrollArea*>();
  if (areas.isEmpty() || !client.layout()) return;
  const QScreen* screen = client.screen() ? client.screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const int excess = client.layout()->sizeHint().height() + kWindowAllowance - screen->availableGeometry().height();
  if (excess <= 0) return;
  cFormScrollArea* tallest = *std::max_element(areas.begin(), areas.end(), [](const auto* a, const auto* b) {
    return a->sizeHint().height() < b->sizeHint().height();
  });
  tallest->LimitViewHeight(tallest->sizeHint().height() - excess);
  client.layout()->activate();
}

}  // namespace velmora
