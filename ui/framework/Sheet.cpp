#include "ui/framework/Sheet.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/framework/Dialog.h"
#include "ui/framework/DialogManager.h"
#include "ui/framework/QtText.h"

namespace velmora {

cSheet::cSheet(cDialogManager& manager, QWidget* owner, const QString& title, bool modal)
    : m_manager(manager), m_pOwner(owner), m_title(title), m_bModal(modal) {}

cSheet::~cSheet() {
  m_pages.clear();
  delete m_pWindow.data();
}

void cSheet::AddPage(std::unique_ptr<cDialog> page, const QString& tabTitle) {
  page->SetPageOf(this);
  m_pages.push_back(std::move(page));
  m_tabTitles.push_back(tabTitle);
}

QWidget* cSheet::Window() const { return m_pWindow.data(); }

cDialog* cSheet::Page(int index) const {
  return index >= 0 && index < PageCount() ? m_pages[static_cast<size_t>(index)].get() : nullptr;
}

cDialog* cSheet::CurrentPage() const { return m_pTabs && m_pWindow ? Page(m_pTabs->currentIndex()) : nullptr; }

void cSheet::PageChanged(cDialog*) { m_bChanged = true; }

void cSheet::Build() {
  m_pDialog = new QDialog(m_pOwner);
  m_pWindow = m_pDialog;
  m_pWindow->setWindowTitle(m_title);
  auto* column = new QVBoxLayout(m_pWindow);
  m_pTabs = new QTabWidget(m_pWindow);
  // Every tab stays in sight, as on a property sheet: the frame grows to
  // hold them rather than scrolling them away.
  m_pTabs->setUsesScrollButtons(false);
  column->addWidget(m_pTabs, 1);
  for (size_t i = 0; i < m_pages.size(); ++i) {
    cDialog& page = *m_pages[i];
    page.CreatePage(m_pTabs, !m_bModal);
    m_pTabs->addTab(page.Window(), m_tabTitles[i]);
  }
  ScalePages();
  // A sheet of one page is a plain dialog: no tab stands over it.
  m_pTabs->setTabBarAutoHide(true);
  m_pTabs->setCurrentIndex(m_nStartPage);
  // Like a property sheet, the frame wraps its pages and keeps that size.
  column->setSizeConstraint(QLayout::SetFixedSize);
  auto* buttons = new QDialogButtonBox(m_pWindow);
  buttons->addButton(Ui("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(Ui("キャンセル"), QDialogButtonBox::RejectRole);
  column->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, m_pDialog, [this] {
    if (ApplyPages()) Close(1);
  });
  QObject::connect(buttons, &QDialogButtonBox::rejected, m_pDialog, [this] { Close(0); });
  QObject::connect(m_pTabs, &QTabWidget::currentChanged, m_pDialog, [this](int index) {
    if (cDialog* page = Page(index)) page->OnSetActive();
  });
  QObject::connect(m_pDialog, &QDialog::finished, m_pDialog, [this] {
    // The pages end with the sheet, their controls at once, and with them
    // whatever those started (a sound that plays).
    for (const auto& page : m_pages) page->Close(m_nResult);
    if (onFinished) onFinished(m_nResult);
  });
  if (!m_bModal) {
    QObject::connect(m_pDialog, &QDialog::finished, m_pDialog, [this] { m_pDialog->deleteLater(); });
    // The manager tears a closed sheet down from its filter; an event makes
    // sure the filter runs even when nothing else happens.
    QObject::connect(m_pWindow, &QObject::destroyed, &m_manager,
                     [&manager = m_manager] { QCoreApplication::postEvent(&manager, new QEvent(QEvent::User)); });
  }
}

QSize cSheet::ScaledTemplate(const QSize& templateSize, const cSheetRate& rate) {
  return {static_cast<int>(templateSize.width() * rate.x), static_cast<int>(templateSize.height() * rate.y)};
}

// The layout's minimum stays the floor: a rate below 1.0 never cuts off a
// control. Like a property sheet, every page then takes the size of the
// largest, so a small page fills the sheet rather than keeping its corner.
void cSheet::ScalePages() const {
  const cSheetRate& rate = m_manager.SheetRate();
  if (rate.x == 1.0 && rate.y == 1.0) return;
  QSize largest;
  for (const auto& page : m_pages) {
    const QWidget& window = *page->Window();
    largest = largest.expandedTo(ScaledTemplate(window.sizeHint(), rate).expandedTo(window.minimumSizeHint()));
  }
  for (const auto& page : m_pages) page->Window()->setFixedSize(largest);
}

int cSheet::Start() {
  m_bStarted = true;
  m_nResult = 0;
  Build();
  ShowStartControl();
  OnPagesBuilt();
  if (cDialog* page = CurrentPage()) page->OnSetActive();
  if (m_bModal) {
    m_pDialog->exec();
    delete m_pWindow.data();
    return m_nResult;
  }
  m_manager.AddSheet(this);
  m_pWindow->show();
  return 1;
}

void cSheet::ShowPage(int index) {
  if (m_pTabs && Page(index)) m_pTabs->setCurrentIndex(index);
}

void cSheet::ShowStartControl() {
  if (m_nStartControl == 0) return;
  for (int index = 0; index < PageCount(); ++index) {
    QWidget* control = Page(index)->Item(m_nStartControl);
    if (!control) continue;
    ShowPage(index);
    control->setFocus();
    // As a click selects it, so the page's list takes the row too.
    auto* list = qobject_cast<QListWidget*>(control);
    if (list && m_nStartRow >= 0 && m_nStartRow < list->count()) list->setCurrentRow(m_nStartRow);
    return;
  }
}

bool cSheet::ApplyEveryPage() {
  for (const auto& page : m_pages) {
    page->ApplyAll();
    if (!page->OnApplyPage()) return false;
  }
  return true;
}

bool cSheet::ApplyPages() { return ApplyEveryPage() && OnApply(); }

void cSheet::Close(int result) {
  m_nResult = result;
  if (!m_pWindow) return;
  m_pDialog->done(result);
}

}  // namespace velmora
