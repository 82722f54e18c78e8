#include <QWheelEvent>
#include <QWindowStateChangeEvent>

#include "ui/framework/Commands.h"
#include "ui/framework/Hook.h"
#include "ui/framework/IdleWake.h"
#include "ui/worldmap/WorldMapWindow.h"

// The world map window's mouse, keys and wheel: positions become the
// cursor cell, and presses and drags go to the editor.

namespace velmora {

void cWorldMapWindow::TrackCursor() { m_cursor = CellAt(Frame(), Mouse().x, Mouse().y, m_cursor); }

void cWorldMapWindow::OnLButtonDown() {
  TrackCursor();
  m_editor.Press(m_cursor.x, m_cursor.y, false);
  if (!IsOpen()) return;
  Window()->activateWindow();
  if (QWidget* placeholder = Item(kIdPlaceholder)) placeholder->setFocus();
  UpdateStates();
  Repaint();
}

void cWorldMapWindow::OnRButtonDown() {
  TrackCursor();
  m_editor.Press(m_cursor.x, m_cursor.y, true);
  Repaint();
}

void cWorldMapWindow::OnMouseMove() {
  TrackCursor();
  const cMouseState& mouse = Mouse();
  if (mouse.leftHeld) m_editor.LeftDrag(m_cursor.x, m_cursor.y);
  FollowOutsideDrag();
  Repaint();
}

void cWorldMapWindow::OnLButtonUp() { Repaint(); }

void cWorldMapWindow::OnRButtonUp() {
  TrackCursor();
  if (m_editor.RightRelease(m_cursor.x, m_cursor.y)) Popup();
  UpdateStates();
  Repaint();
}

void cWorldMapWindow::Popup() { ShowPopup(WorldPopupMenu(m_editor, m_cursor.x, m_cursor.y)); }

// A drag that left the drawing area scrolls the view towards the mouse,
// and goes on doing so while the mouse rests out there.
void cWorldMapWindow::FollowOutsideDrag() {
  const cMouseState& mouse = Mouse();
  const cGeometry& geometry = Geometry();
  const bool outside =
      mouse.x < 0 || mouse.y < 0 || mouse.x >= geometry.clientWidth || mouse.y >= geometry.clientHeight;
  const bool held = mouse.leftHeld || mouse.rightHeld;
  if (outside && held) EdgeScroll();
  const bool wasOutside = m_bOutsideDrag;
  m_bOutsideDrag = outside && held;
  if (m_bOutsideDrag && !wasOutside) WakeIdle();
}

void cWorldMapWindow::Idle() {
  if (!m_bOutsideDrag || !IsOpen()) return;
  ReadMouse(true);
  OnMouseMove();
}

bool cWorldMapWindow::OnDialogMessage(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      AskClose();
      return true;
    case QEvent::WindowStateChange: {
      const bool was = static_cast<const QWindowStateChangeEvent&>(event).oldState() & Qt::WindowMinimized;
      const bool now = Window()->isMinimized();
      if (now && !was && m_links.minimised) m_links.minimised();
      if (was && !now && m_links.restored) m_links.restored();
      return false;
    }
    case QEvent::Wheel: {
      const auto& wheel = static_cast<const QWheelEvent&>(event);
      const QPoint delta = wheel.angleDelta();
      const int cells = WheelCells(delta.y() != 0 ? delta.y() : delta.x());
      if (wheel.modifiers() & Qt::ControlModifier) ScrollTo(ScrollX() + cells, ScrollY());
      else ScrollTo(ScrollX(), ScrollY() + cells);
      return true;
    }
    default: break;
  }
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  if (key.Kind() == cHookKeyEvent::KeyUp || key.Key() != Qt::Key_Space) return false;
  ToggleMode();
  return true;
}

}  // namespace velmora
