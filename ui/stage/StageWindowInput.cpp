#include <QGuiApplication>
#include <QWheelEvent>
#include <QWindowStateChangeEvent>

#include "stage/StageEdit.h"
#include "stage/StageRange.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/Hook.h"
#include "ui/framework/IdleWake.h"
#include "ui/stage/StageWindow.h"

// The stage window's mouse, keys and wheel: positions become cells, and
// events go to the editing tools.

namespace velmora {
namespace {

bool ShiftHeld() { return QGuiApplication::keyboardModifiers() & Qt::ShiftModifier; }

}  // namespace

void cStageWindow::OnMouseMove() { Mouse(eStageAction::Move, false); }
void cStageWindow::OnLButtonDown() { Mouse(eStageAction::Down, false); }
void cStageWindow::OnRButtonDown() { Mouse(eStageAction::Down, true); }
void cStageWindow::OnLButtonUp() { Mouse(eStageAction::Up, false); }
void cStageWindow::OnRButtonUp() { Mouse(eStageAction::Up, true); }
void cStageWindow::OnLButtonDblClk() { Mouse(eStageAction::DoubleClick, false); }
void cStageWindow::OnRButtonDblClk() { Mouse(eStageAction::DoubleClick, true); }

void cStageWindow::Mouse(eStageAction action, bool right) {
  if (!StageEdit().m_bHasStage) return;
  const cMouseState& mouse = cDialog::Mouse();
  m_cursor = CellAt(Frame(), mouse.x, mouse.y, m_cursor);
  FeedTools(action, right);
  if (action == eStageAction::Down && Item(kIdPlaceholder)) {
    Window()->activateWindow();
    Item(kIdPlaceholder)->setFocus();
  }
  const cGeometry& geometry = Geometry();
  const bool outside = mouse.x < 0 || mouse.y < 0 || mouse.x >= geometry.clientWidth || mouse.y >= geometry.clientHeight;
  const bool held = mouse.leftHeld || mouse.rightHeld;
  if (outside && held && action == eStageAction::Move) EdgeScroll();
  const bool wasOutside = m_bOutsideDrag;
  m_bOutsideDrag = outside && held && StageEdit().m_bDrag;
  if (m_bOutsideDrag && !wasOutside) WakeIdle();
  Repaint();
}

bool cStageWindow::WantsIdle() const { return m_bOutsideDrag; }

// A drag that left the client area goes on growing while the mouse rests
// out there, and the view scrolls towards it.
void cStageWindow::Idle() {
  if (!m_bOutsideDrag || !IsOpen()) return;
  const bool leftBefore = cDialog::Mouse().leftHeld;
  ReadMouse(true);
  const cMouseState& mouse = cDialog::Mouse();
  m_cursor = CellAt(Frame(), mouse.x, mouse.y, m_cursor);
  if (!mouse.leftHeld && !mouse.rightHeld) {
    m_bOutsideDrag = false;
    FeedTools(eStageAction::Up, !leftBefore);
  } else {
    FeedTools(eStageAction::Move, !mouse.leftHeld);
    EdgeScroll();
    m_bOutsideDrag = StageEdit().m_bDrag != 0;
  }
  Repaint();
}

bool cStageWindow::OnDialogMessage(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      OnCloseBox();
      return true;
    case QEvent::WindowStateChange: {
      const bool was = static_cast<const QWindowStateChangeEvent&>(event).oldState() & Qt::WindowMinimized;
      const bool now = Window()->isMinimized();
      if (now && !was) m_host.StageWindowMinimised();
      if (was && !now) m_host.StageWindowRestored();
      return false;
    }
    case QEvent::Wheel: {
      const auto& wheel = static_cast<const QWheelEvent&>(event);
      const QPoint delta = wheel.angleDelta();
      OnWheel(delta.y() != 0 ? delta.y() : delta.x(), wheel.modifiers() & Qt::ControlModifier);
      return true;
    }
    default: break;
  }
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  // Shift decides which layers a drag writes; its preview follows at once.
  if (key.Key() == Qt::Key_Shift && StageEdit().m_bDrag) Repaint();
  if (key.Kind() == cHookKeyEvent::KeyUp) return false;
  return OnKey(key.Key(), key.Modifiers() & Qt::ControlModifier);
}

void cStageWindow::OnWheel(int delta, bool ctrl) {
  const int cells = WheelCells(delta);
  if (WheelScrollsVertically(EditStage().m_iWheelDir, ctrl)) ScrollTo(ScrollX(), ScrollY() + cells);
  else ScrollTo(ScrollX() + cells, ScrollY());
}

// F5 and F7 reach the test play through accelerator table 105, which this
// window holds; sending them here as well would start a second play.
bool cStageWindow::OnKey(int key, bool ctrl) {
  if (ctrl || !StageEdit().m_bHasStage) return false;
  if (!StageKey(key, ShiftHeld(), m_cursor.x, m_cursor.y)) return false;
  UpdateStates();
  Repaint();
  return true;
}

void cStageWindow::OnSize() {
  if (!HorzBar()) return;
  UpdateScrollRanges();
  Repaint();
}

// A move names the button that is held; the left one wins.
void cStageWindow::FeedTools(eStageAction action, bool right) {
  cStageInput input;
  input.x = m_cursor.x;
  input.y = m_cursor.y;
  input.button = right ? eStageButton::Right : eStageButton::Left;
  input.action = action;
  input.shift = ShiftHeld();
  if (action == eStageAction::Move) {
    const cMouseState& mouse = cDialog::Mouse();
    if (!mouse.leftHeld && !mouse.rightHeld) return;
    input.button = mouse.leftHeld ? eStageButton::Left : eStageButton::Right;
  }
  StageMouse(input);
}

}  // namespace velmora
