#pragma once
#include <QWidget>

#include "core/AppControl.h"

namespace velmora {

class cEditorApp;

// The main window: an off-screen host that the author never sees. It owns
// the way out (the close question, the destruction that ends the loop) and
// takes the application's own messages, such as the stage window's
// request to be rebuilt.
class cHostWindow : public QWidget, public cAppControl {
 public:
  explicit cHostWindow(cEditorApp& app);
  ~cHostWindow() override;

  void PostCloseRequest() override;
  void DestroyMainWindow() override;
  void Beep() override;
  [[noreturn]] void EndProcess(int code) override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  cEditorApp& m_app;
  bool m_bDestroyed = false;
};

}  // namespace velmora
