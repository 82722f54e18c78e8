#pragma once
#include <QDialog>

#include "ui/framework/ItemMap.h"

class QGridLayout;
class QMenuBar;
class QStatusBar;
class QToolBar;

namespace velmora {

class cDialog;
class cDialogWindow;

// The drawing and mouse surface of a window. Mouse coordinates of the
// framework are relative to it.
class cClientArea : public QWidget {
 public:
  explicit cClientArea(cDialogWindow& window);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Mouse(QMouseEvent& event);
  // A window closed by its dialog may live on for a moment without it.
  cDialogWindow& m_window;
};

// The Qt window behind a cDialog: tool bar, client area with the window's
// own scroll bars, and status bar, top to bottom. It hands every event to
// its dialog first; Escape and the close box become the Cancel command.
class cDialogWindow : public QDialog {
 public:
  cDialogWindow(cDialog& dialog, QWidget* parent, bool asPage);
  ~cDialogWindow() override;

  void Detach() { m_pDialog = nullptr; }
  cDialog* Dialog() const { return m_pDialog; }
  cClientArea* Client() const { return m_pClient; }
  QGridLayout* Body() const { return m_pBody; }
  QToolBar* ToolBar();
  QMenuBar* MenuBar();
  bool HasMenuBar() const { return m_pMenuBar != nullptr; }
  QStatusBar* StatusBar();
  bool HasToolBar() const { return m_pToolBar != nullptr; }
  bool HasStatusBar() const { return m_pStatusBar != nullptr; }
  cItemMap& Items() { return m_items; }

 protected:
  bool event(QEvent* event) override;
  void reject() override;

 private:
  void KeepBarsToClient();

  cDialog* m_pDialog;
  cClientArea* m_pClient;
  QGridLayout* m_pBody;
  QToolBar* m_pToolBar = nullptr;
  QMenuBar* m_pMenuBar = nullptr;
  QStatusBar* m_pStatusBar = nullptr;
  cItemMap m_items;
};

}  // namespace velmora
