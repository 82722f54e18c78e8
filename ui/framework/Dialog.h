#pragma once
#include <QPointer>
#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"
#include "ui/framework/Accelerators.h"
#include "ui/framework/MouseState.h"
#include "ui/framework/WindowParts.h"
#include "ui/framework/WindowStyle.h"

class QEvent;
class QMouseEvent;
class QPainter;
class QWidget;

namespace velmora {

class cDialogManager;
class cDialogWindow;
class cScrollBar;
class cSheet;

struct cGeometry {
  int clientWidth = 0, clientHeight = 0;
  int windowWidth = 0, windowHeight = 0;
  int frameWidth = 0, frameHeight = 0;
  int clientX = 0, clientY = 0;  // origin of the client area inside the frame
  int minWidth = 0, minHeight = 0, maxWidth = 0, maxHeight = 0;  // 0: no limit
};

// The base of every window and dialog. A dialog states its controls in
// m_form; the framework builds the window from that table, binds the
// fields, and runs the common message order around the dialog's own
// handling. The object outlives its window: closing ends the window only,
// and the same object can open again.
class cDialog {
 public:
  enum eWindowKind { kStandAlone = 1, kPage = 2 };
  static constexpr int kHideOthers = 2;
  static constexpr int kDisableOthers = 4;

  cDialog(cDialogManager& manager, QWidget* parent);
  virtual ~cDialog();
  cDialog(const cDialog&) = delete;
  cDialog& operator=(const cDialog&) = delete;

  // The virtual operations, in the order the family has always had them.
  virtual void Idle() {}
  // True while the window needs Idle at the frame rate; the main loop
  // waits for events whenever no window does.
  virtual bool WantsIdle() const { return false; }
  virtual void OnCommand(uint32_t wParam, intptr_t lParam);
  virtual void OnMouseMove() {}
  virtual void OnLButtonDown() {}
  virtual void OnRButtonDown() {}
  virtual void OnLButtonDblClk() {}
  virtual void OnRButtonDblClk() {}
  virtual void OnLButtonUp() {}
  virtual void OnRButtonUp() {}
  // The dialog's own look at any event of its window, before the shared
  // handling; true when it took the event.
  virtual bool OnDialogMessage(QEvent& /*event*/) { return false; }
  virtual bool OnWindowMessage(QEvent& event);
  virtual void RedrawLists();
  virtual void OnPaint(QPainter& /*painter*/) {}
  virtual void OnInitDialog();
  // The client area took a new size; the geometry is already updated.
  virtual void OnSize() {}
  // A page of a sheet came to the front.
  virtual void OnSetActive() {}

  // Opening and closing.
  bool Create(int flags, bool show);
  int DoModal(int flags);
  void Close(int result);
  QWidget* Window() const;  // null while closed
  bool IsOpen() const { return Window() != nullptr; }
  bool IsModeless() const { return m_bModeless; }
  int ModalFlags() const { return m_nModalFlags; }
  int WindowKind() const { return m_nWindowKind; }
  int Result() const { return m_nResult; }
  bool IsSetUp() const { return m_bSetUp; }
  cDialogManager& Manager() const { return m_manager; }

  // Fields and controls.
  void ApplyAll();
  void RefreshAll();
  void RefreshOthers(int id);
  int FindChanged(uint32_t wParam) const;
  void DispatchControlCommand(uint32_t wParam, intptr_t lParam);
  void BindControls(const cForm& form);
  void AddControl(std::unique_ptr<cControl> control);
  cControl* FindControl(int id) const;  // null when none
  // The control of an id as its own class (a cCombo to refill, a list);
  // null when the id has none of that class.
  template <class T>
  T* FindControlOf(int id) const {
    return dynamic_cast<T*>(FindControl(id));
  }
  // Null, after the missing-control stop, when the dialog holds no such id.
  cControl* Control(int id) const;
  QWidget* Item(int id) const;
  void EnableControl(int id, bool enable);
  // False also when the id holds no check box, as a rule reads it.
  bool IsChecked(int id) const;
  void SetItemText(int id, const std::string& cp932);
  bool IsUpdating() const { return m_bUpdating; }
  const std::vector<std::unique_ptr<cControl>>& Controls() const { return m_vecControl; }

  // Messages that reach the dialog from its controls and from outside.
  void SendCommand(uint32_t wParam, intptr_t lParam);
  void Notify(int id, const cNotice& notice);
  void Scroll(QObject* bar, int action);
  // All events of the window come through here, in the common order.
  bool HandleEvent(QEvent& event);
  void HandleClientMouse(QMouseEvent& event);
  void HandleClientResize();

  // Keyboard.
  void SetAccel(int focusId, cAccelTable table);
  const std::vector<cAccelBinding>& Accels() const { return m_vecAccel; }

  // Mouse.
  bool ReadMouse(bool force);
  bool RightClicked();
  const cMouseState& Mouse() const { return m_mouse; }
  // One step of scrolling while a drag lies outside the client area.
  void EdgeScroll();

  // Window parts.
  void AddToolButtons(const cToolButton* buttons, int count);
  void SetToolImages(const QPixmap& strip, int imageWidth);
  void SetToolButtonState(int command, bool enabled, bool checked);
  void SetStatusText(int part, const std::string& cp932);
  // The menu bar, built from its table; entries send their commands.
  void SetMenuBar(const std::vector<cMenuPopup>& popups);
  void SetMenuState(int command, bool enabled, bool checked);
  void ShowPopup(const std::vector<cMenuItem>& menu);
  cScrollBar* HorzBar() const { return m_pHorzBar; }
  cScrollBar* VertBar() const { return m_pVertBar; }
  // Sizes the window around a drawing area of `client`, which then follows
  // the window down to `minimum`.
  void SizeAroundClient(QSize client, QSize minimum);
  // A window whose bars scroll over a grid of cells: the top left cell in
  // view, and the bars' ranges and pages in cells.
  int ScrollX() const;
  int ScrollY() const;
  void ScrollTo(int x, int y);
  void SetScrollRanges(int horzMaximum, int horzPage, int vertMaximum, int vertPage);
  const cGeometry& Geometry() const { return m_geometry; }

  // Sheets set these on their pages.
  void SetPageOf(cSheet* sheet) {
    m_pSheet = sheet;
    m_nWindowKind = sheet ? kPage : kStandAlone;
  }
  cSheet* Sheet() const { return m_pSheet; }
  bool CreatePage(QWidget* sheetWindow, bool modeless);
  // The sheet's OK reaches each page's own apply through here.
  bool OnApplyPage() { return OnApply(); }

 protected:
  // After ApplyAll at OK: the dialog's own apply and validation. False
  // keeps the dialog open, with the fields already written: a dialog that
  // validates a record derives from cRecordDialog, which edits a copy.
  virtual bool OnApply() { return true; }
  // A command that the closing rule and the controls left over.
  virtual void OnDialogCommand(int /*id*/, int /*notice*/) {}
  // Enabled states that depend on values; at set-up and after a change.
  virtual void UpdateEnables() {}
  // Controls that the table cannot state, bound after the table's.
  virtual void BindOwnControls() {}
  // The client area when the table isn't enough (a drawing area).
  virtual void BuildClient(QWidget& client);

  void SetTitle(const QString& title) { m_title = title; }
  // A small dialog unless the constructor says otherwise.
  void SetWindowStyle(eWindowStyle style) { m_style = style; }
  // Chrome that the window wants; set in the constructor.
  void WantScrollBars() { m_bWantScrollBars = true; }
  void WantToolBar() { m_bWantToolBar = true; }
  void WantStatusBar(std::vector<int> partWidths);
  void SetMinimumSize(int width, int height);
  void SetLogName(const char* name) { m_logName = name; }

  cForm m_form;
  cGeometry m_geometry;

 private:
  friend class cDialogWindow;
  void BuildWindow(QWidget* parent, bool asPage);
  void InitBase();
  void DestroyControls();
  void OnWindowDestroyed();
  void UpdateGeometry();
  void FinishGeometryOnce();
  void LogEvent(const QEvent& event) const;
  void HandleKeyDown(int key, bool ctrl);
  bool OfferToControls(int id);
  bool ReadMouseAt(const QPoint& global, bool left, bool right, bool force);
  void HideOrDisableOthers(bool restore);
  void ScrollBy(bool vertical, int action);

  cDialogManager& m_manager;
  QPointer<QWidget> m_pParent;
  QPointer<cDialogWindow> m_pWindow;
  int m_nWindowKind = kStandAlone;
  cSheet* m_pSheet = nullptr;
  QString m_title;
  eWindowStyle m_style = eWindowStyle::SmallDialog;
  const char* m_logName = "dialog";

  cMouseState m_mouse;
  bool m_bRightLatch = false;
  cEdgeScroll m_edgeScroll;

  bool m_bModeless = false;
  int m_nModalFlags = 0;
  int m_nResult = 0;
  bool m_bInCommand = false;
  bool m_bUpdating = false;
  bool m_bSetUp = false;
  bool m_bGeometryDone = false;
  bool m_bClosed = false;
  bool m_bInModalLoop = false;
  std::vector<std::unique_ptr<cControl>> m_vecControl;
  std::vector<cAccelBinding> m_vecAccel;

  bool m_bWantScrollBars = false;
  bool m_bWantToolBar = false;
  bool m_bWantStatusBar = false;
  std::vector<int> m_vecStatusParts;
  cScrollBar* m_pHorzBar = nullptr;
  cScrollBar* m_pVertBar = nullptr;
};

}  // namespace velmora
