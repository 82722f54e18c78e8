#include "ui/framework/StockDialogs.h"

#include <QApplication>
#include <QLineEdit>

#include "ui/framework/Dialog.h"
#include "ui/framework/QtText.h"
#include "ui/framework/WindowFrame.h"

namespace velmora {
namespace {

constexpr int kIdInput = 1003;
constexpr int kIdInputSpin = 1011;
constexpr int kIdMessage = 1017;
constexpr int kShowLimitMs = 500;

// A caption replaces the dialog's own title when it is given.
QString Title(const std::string& caption, const char* fallback) {
  return caption.empty() ? Ui(fallback) : FromCp932(caption);
}

class cInputValueDialog : public cDialog {
 public:
  cInputValueDialog(cDialogManager& manager, QWidget* parent, int32_t& value, int minimum, int maximum,
                    const std::string& caption, const char* label)
      : cDialog(manager, parent) {
    SetTitle(Title(caption, "値の入力"));
    m_form.rows = {{label, cEditValDesc{kIdInput, &value, double(minimum), double(maximum), kIdInputSpin, 1}}};
  }

 protected:
  void BindOwnControls() override {
    if (auto* edit = qobject_cast<QLineEdit*>(Item(kIdInput))) {
      edit->setFocus();
      edit->selectAll();
    }
  }
};

class cInputStringDialog : public cDialog {
 public:
  cInputStringDialog(cDialogManager& manager, QWidget* parent, std::string& text, int limit, bool countChars,
                     const std::string& caption)
      : cDialog(manager, parent) {
    SetTitle(Title(caption, "文字列の入力"));
    m_form.rows = {{nullptr, EditStrLine(kIdInput, &text, limit, countChars)}};
  }

 protected:
  void BindOwnControls() override {
    if (auto* edit = qobject_cast<QLineEdit*>(Item(kIdInput))) {
      edit->setMinimumWidth(240);
      edit->setFocus();
      edit->selectAll();
    }
  }
};

class cMessageWindow : public cDialog {
 public:
  cMessageWindow(cDialogManager& manager, QWidget* parent, const std::string& text, const std::string& caption)
      : cDialog(manager, parent), m_text(text) {
    SetTitle(FromCp932(caption));
    m_form.rows = {{nullptr, cStaticDesc{kIdMessage, ""}}};
    m_form.okCancel = false;
  }

 protected:
  void BindOwnControls() override { SetItemText(kIdMessage, m_text); }
  // The window has no buttons: the close box doesn't end the job's window.
  void OnCommand(uint32_t, intptr_t) override {}

 private:
  std::string m_text;
};

cMessageWindow* g_messageWindow = nullptr;
bool g_waitCursor = false;

}  // namespace

int InputValue(QWidget* parent, cDialogManager& manager, int32_t& value, int minimum, int maximum,
               const std::string& caption, const char* label) {
  cInputValueDialog dialog(manager, parent, value, minimum, maximum, caption, label);
  return dialog.DoModal(0);
}

int InputString(QWidget* parent, cDialogManager& manager, std::string& text, int limit, bool countChars,
                const std::string& caption) {
  cInputStringDialog dialog(manager, parent, text, limit, countChars, caption);
  return dialog.DoModal(0);
}

void ShowMessageWindow(QWidget* parent, cDialogManager& manager, const std::string& text,
                       const std::string& caption, bool wait) {
  CloseMessageWindow();
  g_messageWindow = new cMessageWindow(manager, parent, text, caption);
  g_messageWindow->Create(0, true);
  if (wait) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    g_waitCursor = true;
  }
  // The job runs on this thread right after; the window must be on screen
  // and painted first, which takes the window manager a moment.
  if (g_messageWindow->Window()) WaitUntilShown(*g_messageWindow->Window(), kShowLimitMs);
}

void CloseMessageWindow() {
  if (g_waitCursor) QApplication::restoreOverrideCursor();
  g_waitCursor = false;
  delete g_messageWindow;
  g_messageWindow = nullptr;
}

}  // namespace velmora
