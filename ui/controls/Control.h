#pragma once
#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <vector>

namespace velmora {

class cDialog;

// Kind numbers as the framework tells controls apart.
enum class eControlKind : int {
  Button = 1, EditVal = 2, EditStr = 3, Picture = 4, Check = 5, Combo = 7, List = 8, Spin = 9, Slider = 10,
  ScrollBar = 11,
};

// A notification that a control sends to its dialog.
struct cNotice {
  int code = 0;
  int delta = 0;
};
inline constexpr int kNotifyDeltaPos = 1;  // a spin was pressed: delta steps

// The base of every bound control: the bridge between one widget and one
// record field. Refresh shows the field, Commit stores the control's value
// (never while the dialog is filling its controls).
class cControl {
 public:
  cControl(eControlKind kind, int id, cDialog& parent, QWidget* widget);
  virtual ~cControl();
  cControl(const cControl&) = delete;
  cControl& operator=(const cControl&) = delete;

  virtual void Enable(bool enable);
  virtual void Refresh() {}
  virtual void Commit() {}
  virtual void OnChange() {}
  virtual bool OnNotify(int /*id*/, const cNotice& /*notice*/) { return false; }
  virtual bool OnScroll(QObject* /*bar*/, int /*action*/) { return false; }
  virtual void OnRedraw() {}
  virtual void OnKillFocus() {}
  virtual void OnAfterCommand() {}
  virtual void OnKey(int /*key*/, bool /*ctrl*/) {}
  // A command of the dialog that the control answers although it isn't
  // its own id: the buttons, menu entries and keys of a record list. True
  // when the control took it; the dialog then does nothing more with it.
  virtual bool TakeCommand(int /*id*/) { return false; }

  eControlKind Kind() const { return m_kind; }
  int Id() const { return m_nId; }
  QWidget* Widget() const { return m_pWidget; }
  cDialog& Parent() const { return m_parent; }

 protected:
  bool Updating() const;
  // Sends this control's command with `notice` to the dialog, the way a
  // widget reports what the user did.
  void SendCommand(int notice) const;
  // Connections made through Listen end with the control, so a widget that
  // outlives it for a moment never calls into a destroyed control.
  template <class Sender, class Signal, class Slot>
  void Listen(Sender* sender, Signal signal, Slot slot) {
    m_connections.push_back(QObject::connect(sender, signal, slot));
  }

 private:
  std::vector<QMetaObject::Connection> m_connections;
  eControlKind m_kind;
  int m_nId;
  cDialog& m_parent;
  QPointer<QWidget> m_pWidget;
};

}  // namespace velmora
