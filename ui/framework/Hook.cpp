#include "ui/framework/Hook.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QVariant>
#include <algorithm>

namespace velmora {
namespace {

constexpr char kHookProperty[] = "cHook";
constexpr char kModelessProperty[] = "cHookModeless";

cHook* g_hook = nullptr;
bool g_ctrlHeld = false;
bool g_composing = false;

constexpr int kForwardedKeys[] = {
    Qt::Key_Space, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Delete, Qt::Key_F1,
    Qt::Key_F2,    Qt::Key_F3,   Qt::Key_F4, Qt::Key_F5,    Qt::Key_F6,   Qt::Key_F7,     Qt::Key_F8,
};

bool IsForwardedKey(int key) {
  return std::find(std::begin(kForwardedKeys), std::end(kForwardedKeys), key) != std::end(kForwardedKeys);
}

// The platform's own boxes keep their Escape; only our windows without a
// dialog object lose a stray one.
bool IsStockBox(const QWidget* window) {
  return qobject_cast<const QMessageBox*>(window) || qobject_cast<const QFileDialog*>(window);
}

void Post(QWidget* window, cHookKeyEvent::eKind kind, const QKeyEvent& key) {
  QCoreApplication::postEvent(window, new cHookKeyEvent(kind, key.key(), key.modifiers()));
}

}  // namespace

QEvent::Type cHookKeyEvent::EventType() {
  static const QEvent::Type type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

// Like a system hook, it sees keys before the accelerators of the dialog
// manager: installing again puts it back in front of filters that came
// after it.
void cHook::Install() {
  if (!qApp) return;
  if (!g_hook) g_hook = new cHook;
  qApp->installEventFilter(g_hook);
}

void cHook::Uninstall() {
  delete g_hook;
  g_hook = nullptr;
  g_ctrlHeld = false;
  g_composing = false;
}

bool cHook::IsInstalled() { return g_hook != nullptr; }

void cHook::Register(QWidget* window, cDialog* dialog, bool modeless) {
  window->setProperty(kHookProperty, QVariant::fromValue(reinterpret_cast<quintptr>(dialog)));
  window->setProperty(kModelessProperty, modeless);
}

void cHook::Unregister(QWidget* window) {
  window->setProperty(kHookProperty, QVariant());
  window->setProperty(kModelessProperty, QVariant());
}

bool cHook::CtrlHeld() { return g_ctrlHeld; }

bool cHook::Composing() { return g_composing; }

bool cHook::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::InputMethod:
      g_composing = !static_cast<QInputMethodEvent*>(event)->preeditString().isEmpty();
      return false;
    // A composition ends with the focus of its widget; by the time the old
    // widget hears of it, the focus already lies elsewhere.
    case QEvent::FocusOut:
      if (receiver->isWidgetType()) g_composing = false;
      return false;
    case QEvent::KeyPress: return OnKey(receiver, *static_cast<QKeyEvent*>(event), true);
    case QEvent::KeyRelease: return OnKey(receiver, *static_cast<QKeyEvent*>(event), false);
    default: return false;
  }
}

bool cHook::OnKey(QObject* receiver, QKeyEvent& event, bool down) {
  // A key event travels up from the focus widget; the hook sees it once.
  QWidget* active = QApplication::activeWindow();
  QWidget* start = QApplication::focusWidget() ? QApplication::focusWidget() : active;
  if (!receiver->isWidgetType() || receiver != start) return false;
  const int key = event.key();
  QWidget* window = active && active->property(kHookProperty).isValid() ? active : nullptr;
  if (!window) {
    return down && key == Qt::Key_Escape && !g_composing && active && !IsStockBox(active);
  }
  const bool modeless = window->property(kModelessProperty).toBool();
  const bool ctrl = g_ctrlHeld || (event.modifiers() & Qt::ControlModifier);
  if (!down) {
    if (key == Qt::Key_Control) g_ctrlHeld = false;
    if (!(modeless && ctrl)) Post(window, cHookKeyEvent::KeyUp, event);
    return false;
  }
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return false;
  if (key == Qt::Key_Control) g_ctrlHeld = true;
  // While an input method composes, its keys (Escape, Enter, Space, the
  // arrows...) edit the composition; the window must not act on them.
  if (g_composing) return false;
  if (IsForwardedKey(key)) {
    Post(window, cHookKeyEvent::ForwardedKey, event);
    return false;
  }
  if (!(modeless && (ctrl || g_ctrlHeld))) Post(window, cHookKeyEvent::KeyDown, event);
  return false;
}

}  // namespace velmora
