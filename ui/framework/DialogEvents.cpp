#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QScrollBar>

#include "core/Log.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/Hook.h"
#include "ui/framework/Sheet.h"

// The common message order of every window: what happens to an event
// before and around the dialog's own handling.

namespace velmora {
namespace {

struct cKeyScroll {
  int key;
  bool vertical;
  QAbstractSlider::SliderAction action;
};

constexpr cKeyScroll kKeyScrolls[] = {
    {Qt::Key_PageUp, true, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_PageDown, true, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_End, false, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_Home, false, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_Left, false, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Up, true, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Right, false, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_Down, true, QAbstractSlider::SliderSingleStepAdd},
};

}  // namespace

bool cDialog::HandleEvent(QEvent& event) {
  LogEvent(event);
  FinishGeometryOnce();
  const bool mouseEvent = dynamic_cast<QMouseEvent*>(&event) != nullptr;
  if (!mouseEvent && m_pWindow) ReadMouse(false);
  // A window that another one took out of reach takes no input, and the
  // desktop's close box and Alt+F4 still reach it: the stage window would
  // end the program under an open editor.
  if (event.type() == QEvent::Close && m_pWindow && !m_pWindow->isEnabled()) {
    event.ignore();
    return true;
  }
  if (OnDialogMessage(event)) return true;
  return OnWindowMessage(event);
}

bool cDialog::OnWindowMessage(QEvent& event) {
  switch (event.type()) {
    case QEvent::Resize:
      UpdateGeometry();
      return false;
    default: break;
  }
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  if (key.Kind() != cHookKeyEvent::KeyUp) HandleKeyDown(key.Key(), key.Modifiers() & Qt::ControlModifier);
  return true;
}

void cDialog::HandleKeyDown(int key, bool ctrl) {
  for (const cKeyScroll& entry : kKeyScrolls) {
    if (entry.key == key) ScrollBy(entry.vertical, entry.action);
  }
  if (m_bModeless) return;
  for (size_t i = 0; i < m_vecControl.size(); ++i) m_vecControl[i]->OnKey(key, ctrl);
}

void cDialog::SizeAroundClient(QSize client, QSize minimum) {
  if (!m_pWindow) return;
  QWidget* area = m_pWindow->Client();
  area->setFixedSize(client);
  m_pWindow->adjustSize();
  area->setMinimumSize(minimum);
  area->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

int cDialog::ScrollX() const { return m_pHorzBar ? m_pHorzBar->Position() : 0; }

int cDialog::ScrollY() const { return m_pVertBar ? m_pVertBar->Position() : 0; }

void cDialog::ScrollTo(int x, int y) {
  if (m_pHorzBar) m_pHorzBar->SetPosition(x);
  if (m_pVertBar) m_pVertBar->SetPosition(y);
}

void cDialog::SetScrollRanges(int horzMaximum, int horzPage, int vertMaximum, int vertPage) {
  if (!m_pHorzBar || !m_pVertBar) return;
  m_pHorzBar->SetRange(0, horzMaximum);
  m_pHorzBar->SetPage(horzPage);
  m_pVertBar->SetRange(0, vertMaximum);
  m_pVertBar->SetPage(vertPage);
}

void cDialog::ScrollBy(bool vertical, int action) {
  cScrollBar* bar = vertical ? m_pVertBar : m_pHorzBar;
  if (bar) bar->Bar()->triggerAction(static_cast<QAbstractSlider::SliderAction>(action));
}

void cDialog::LogEvent(const QEvent& event) const {
  if (!DebugSwitch()) return;
  const QMetaEnum names = QMetaEnum::fromType<QEvent::Type>();
  const char* name = names.valueToKey(event.type());
  if (name) DebugFormat("%s | msg:%s", m_logName, name);
  else DebugFormat("%s | msg:0x%4x", m_logName, static_cast<unsigned>(event.type()));
}

void cDialog::FinishGeometryOnce() {
  if (m_bGeometryDone || !m_pWindow) return;
  if ((m_bWantToolBar && !m_pWindow->HasToolBar()) || (m_bWantStatusBar && !m_pWindow->HasStatusBar())) return;
  m_bGeometryDone = true;
  UpdateGeometry();
  if (m_geometry.minWidth > 0 || m_geometry.minHeight > 0) {
    m_pWindow->setMinimumSize(m_geometry.minWidth, m_geometry.minHeight);
  }
  if (m_geometry.maxWidth > 0 && m_geometry.maxHeight > 0) {
    m_pWindow->setMaximumSize(m_geometry.maxWidth, m_geometry.maxHeight);
  }
}

void cDialog::UpdateGeometry() {
  if (!m_pWindow) return;
  const QWidget* client = m_pWindow->Client();
  m_geometry.clientWidth = client->width();
  m_geometry.clientHeight = client->height();
  m_geometry.windowWidth = m_pWindow->width();
  m_geometry.windowHeight = m_pWindow->height();
  m_geometry.frameWidth = m_pWindow->frameGeometry().width();
  m_geometry.frameHeight = m_pWindow->frameGeometry().height();
  const QPoint origin = client->mapTo(m_pWindow.data(), QPoint(0, 0));
  m_geometry.clientX = origin.x();
  m_geometry.clientY = origin.y();
}

void cDialog::SetMinimumSize(int width, int height) {
  m_geometry.minWidth = width;
  m_geometry.minHeight = height;
}

// ---- mouse ----

bool cDialog::ReadMouseAt(const QPoint& global, bool left, bool right, bool force) {
  if (!m_pWindow) return false;
  const QPoint local = m_pWindow->Client()->mapFromGlobal(global);
  const bool inside = m_pWindow->Client()->rect().contains(local);
  if (!force && !inside) return false;
  m_mouse.x = local.x();
  m_mouse.y = local.y();
  m_mouse.screenX = global.x();
  m_mouse.screenY = global.y();
  UpdateMouseButtons(m_mouse, left, right);
  return true;
}

bool cDialog::ReadMouse(bool force) {
  const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
  return ReadMouseAt(QCursor::pos(), buttons & Qt::LeftButton, buttons & Qt::RightButton, force);
}

void cDialog::HandleClientMouse(QMouseEvent& event) {
  LogEvent(event);
  const QPoint global = event.globalPosition().toPoint();
  const Qt::MouseButtons buttons = event.buttons();
  // The stage and world map follow a drag outside their area; the forced
  // reading is theirs to make in their handlers.
  ReadMouseAt(global, buttons & Qt::LeftButton, buttons & Qt::RightButton, true);
  const bool left = event.button() == Qt::LeftButton;
  switch (event.type()) {
    case QEvent::MouseMove: OnMouseMove(); break;
    case QEvent::MouseButtonPress: left ? OnLButtonDown() : OnRButtonDown(); break;
    case QEvent::MouseButtonRelease: left ? OnLButtonUp() : OnRButtonUp(); break;
    case QEvent::MouseButtonDblClick: left ? OnLButtonDblClk() : OnRButtonDblClk(); break;
    default: break;
  }
}

void cDialog::HandleClientResize() {
  UpdateGeometry();
  OnSize();
}

bool cDialog::RightClicked() {
  if (!m_bSetUp) return false;
  if (!m_bRightLatch) {
    m_bRightLatch = !m_mouse.rightHeld;
    return false;
  }
  const QWidget* active = QApplication::activeWindow();
  bool isActive = m_pWindow && active == m_pWindow->window();
  if (m_nWindowKind == kPage) isActive = isActive && m_pSheet && m_pSheet->CurrentPage() == this;
  if (m_mouse.leftHeld || !m_mouse.rightReleased || !isActive) return false;
  m_bRightLatch = false;
  return true;
}

void cDialog::EdgeScroll() {
  const cEdgeScroll::cStep step = m_edgeScroll.Step(m_mouse.x, m_mouse.y, m_geometry.clientWidth,
                                                    m_geometry.clientHeight);
  if (step.dx) ScrollBy(false, step.dx > 0 ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
  if (step.dy) ScrollBy(true, step.dy > 0 ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
}

}  // namespace velmora
