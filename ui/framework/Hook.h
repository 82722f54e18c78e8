#pragma once
#include <QEvent>
#include <QObject>

class QKeyEvent;
class QWidget;

namespace velmora {

class cDialog;

// A key that the keyboard hook hands to a window as a message of its own.
class cHookKeyEvent : public QEvent {
 public:
  enum eKind { KeyDown, KeyUp, ForwardedKey };  // ForwardedKey is message 2024
  static QEvent::Type EventType();
  cHookKeyEvent(eKind kind, int key, Qt::KeyboardModifiers modifiers)
      : QEvent(EventType()), m_kind(kind), m_key(key), m_modifiers(modifiers) {}
  eKind Kind() const { return m_kind; }
  int Key() const { return m_key; }
  Qt::KeyboardModifiers Modifiers() const { return m_modifiers; }

 private:
  eKind m_kind;
  int m_key;
  Qt::KeyboardModifiers m_modifiers;
};

// The one application-wide keyboard hook. It sees every key before the
// widget with the focus does and hands copies to the active window's
// dialog, so a dialog's key handling works even while an edit has the
// focus. Keys always go on to their widget, except a stray Escape.
class cHook : public QObject {
 public:
  // The first window installs it; later calls find it there.
  static void Install();
  static void Uninstall();
  static bool IsInstalled();
  static void Register(QWidget* window, cDialog* dialog, bool modeless);
  static void Unregister(QWidget* window);
  static bool CtrlHeld();
  static bool Composing();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool OnKey(QObject* receiver, QKeyEvent& event, bool down);
};

}  // namespace velmora
