#pragma once
#include <QDialog>
#include <QPointer>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "core/SheetRate.h"

class QTabWidget;
class QWidget;

namespace velmora {

class cDialog;
class cDialogManager;

// Tabbed pages in one window with OK and Cancel. The sheet owns its pages;
// a subclass adds them in order and then starts the sheet. OK applies every
// page (its fields, then its own apply) and then the sheet's own apply;
// a page or the sheet that refuses keeps the sheet open.
class cSheet {
 public:
  cSheet(cDialogManager& manager, QWidget* owner, const QString& title, bool modal);
  virtual ~cSheet();
  cSheet(const cSheet&) = delete;
  cSheet& operator=(const cSheet&) = delete;

  void AddPage(std::unique_ptr<cDialog> page, const QString& tabTitle);
  // The page in front when the sheet opens; before Start.
  void SetStartPage(int index) { m_nStartPage = index; }
  // The page that holds control `id` comes to the front with the control
  // in the focus, over the start page, and a list there on row `row`;
  // before Start. An id no page holds leaves the start page.
  void SetStartControl(int id, int row = -1) {
    m_nStartControl = id;
    m_nStartRow = row;
  }
  // Brings a page to the front of a sheet that is open.
  void ShowPage(int index);
  // Modal: runs to the end and gives 1 for OK, 0 for Cancel. Modeless:
  // shows the sheet and gives 1; the manager deletes a modeless sheet
  // once the author closed it.
  int Start();
  void Close(int result);

  QWidget* Window() const;
  cDialog* CurrentPage() const;
  cDialog* Page(int index) const;
  int PageCount() const { return static_cast<int>(m_pages.size()); }
  bool IsFinished() const { return m_bStarted && !m_pWindow; }
  bool IsModal() const { return m_bModal; }
  bool HasChanges() const { return m_bChanged; }
  // Runs when the window has closed, with 1 for OK and 0 otherwise; a
  // modeless sheet is torn down after it.
  std::function<void(int result)> onFinished;

  // A page tells the sheet that the author changed something on it.
  void PageChanged(cDialog* page);
  // OK: every page, then the sheet. Public so that a test or a caller can
  // press OK without the mouse.
  bool ApplyPages();

  // A page's template size is the size its table lays out to under the
  // running font, which is what a template in dialog units came to. The
  // rate scales it, each side truncated.
  static QSize ScaledTemplate(const QSize& templateSize, const cSheetRate& rate);

 protected:
  // After all pages applied: saving what the pages changed.
  virtual bool OnApply() { return true; }
  // The pages stand with their controls bound, before the sheet shows:
  // where a subclass points them at a place of their records.
  virtual void OnPagesBuilt() {}
  // Every page stores its fields and runs its own apply, in page order;
  // false at the first page that refuses.
  bool ApplyEveryPage();

 private:
  void Build();
  void ShowStartControl();
  void ScalePages() const;

  cDialogManager& m_manager;
  QPointer<QWidget> m_pOwner;
  QString m_title;
  bool m_bModal;
  bool m_bStarted = false;
  bool m_bChanged = false;
  int m_nResult = 0;
  int m_nStartPage = 0;
  int m_nStartControl = 0;
  int m_nStartRow = -1;
  // Held as a QWidget: the manager may ask about the window while it is
  // being destroyed, when it is no longer a QDialog.
  QPointer<QWidget> m_pWindow;
  QDialog* m_pDialog = nullptr;  // the same window, valid while m_pWindow is
  QTabWidget* m_pTabs = nullptr;
  std::vector<std::unique_ptr<cDialog>> m_pages;
  std::vector<QString> m_tabTitles;
};

}  // namespace velmora
