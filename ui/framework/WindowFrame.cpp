#include "ui/framework/WindowFrame.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QThread>
#include <QWidget>
#include <QWindow>
#include <optional>

#include "core/WindowPlace.h"

namespace velmora {
namespace {

// The margins of the first window seen framed, the stage window. They stand
// in for every window not framed now, the same when a place is kept as
// when it is taken again, though a manager may frame a window that can't
// be resized with a thinner bottom edge.
std::optional<QMargins> g_firstMargins;

}  // namespace

QMargins FrameMargins(const QWidget& window) {
  const QRect frame = window.frameGeometry();
  const QRect inner = window.geometry();
  if (frame == inner) return g_firstMargins.value_or(QMargins());
  const QMargins margins(inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
                         frame.bottom() - inner.bottom());
  if (!g_firstMargins) g_firstMargins = margins;
  return margins;
}

// Qt keeps a top-level window's position as the frame's, also while the
// frame is still to come.
QRect FrameOf(const QWidget& window) { return QRect(window.pos(), window.size().grownBy(FrameMargins(window))); }

void PlaceFrame(QWidget& window, const QRect& frame) {
  // The layout states the window's limits, which the size must keep to.
  if (window.layout()) window.layout()->activate();
  window.resize(frame.size().shrunkBy(FrameMargins(window)));
  MoveFrame(window, frame.topLeft());
}

void MoveFrame(QWidget& window, QPoint topLeft) { window.move(topLeft); }

QRect FrameOfPlace(const cWindowPlace& place) { return QRect(place.m_nX, place.m_nY, place.m_nWidth, place.m_nHeight); }

void KeepPlace(cWindowPlace& place, const QWidget& window) {
  const QRect frame = FrameOf(window);
  place.m_bStored = 1;
  place.m_nX = frame.x();
  place.m_nY = frame.y();
  place.m_nWidth = frame.width();
  place.m_nHeight = frame.height();
}

bool WaitUntilShown(QWidget& window, int limitMs) {
  QElapsedTimer clock;
  clock.start();
  auto shown = [&] { return window.windowHandle() && window.windowHandle()->isExposed(); };
  while (!shown() && clock.elapsed() < limitMs) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!shown()) QThread::msleep(1);
  }
  FrameMargins(window);
  return shown();
}

}  // namespace velmora
