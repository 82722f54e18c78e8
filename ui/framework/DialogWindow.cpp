#include "ui/framework/DialogWindow.h"

#include <QGridLayout>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"

namespace velmora {

cClientArea::cClientArea(cDialogWindow& window) : QWidget(&window), m_window(window) { setMouseTracking(true); }

void cClientArea::paintEvent(QPaintEvent*) {
  if (!m_window.Dialog()) return;
  QPainter painter(this);
  m_window.Dialog()->OnPaint(painter);
}

void cClientArea::Mouse(QMouseEvent& event) {
  if (m_window.Dialog()) m_window.Dialog()->HandleClientMouse(event);
}

void cClientArea::mousePressEvent(QMouseEvent* event) { Mouse(*event); }
void cClientArea::mouseReleaseEvent(QMouseEvent* event) { Mouse(*event); }
void cClientArea::mouseDoubleClickEvent(QMouseEvent* event) { Mouse(*event); }
void cClientArea::mouseMoveEvent(QMouseEvent* event) { Mouse(*event); }

void cClientArea::resizeEvent(QResizeEvent*) {
  if (m_window.Dialog()) m_window.Dialog()->HandleClientResize();
}

cDialogWindow::cDialogWindow(cDialog& dialog, QWidget* parent, bool asPage)
    : QDialog(parent, asPage ? Qt::Widget : Qt::Dialog), m_pDialog(&dialog) {
  auto* frame = new QVBoxLayout(this);
  frame->setContentsMargins(0, 0, 0, 0);
  frame->setSpacing(0);
  m_pBody = new QGridLayout;
  m_pBody->setSpacing(0);
  m_pClient = new cClientArea(*this);
  m_pBody->addWidget(m_pClient, 0, 0);
  m_pBody->setRowStretch(0, 1);
  m_pBody->setColumnStretch(0, 1);
  frame->addLayout(m_pBody, 1);
}

cDialogWindow::~cDialogWindow() {
  if (m_pDialog) m_pDialog->OnWindowDestroyed();
}

QToolBar* cDialogWindow::ToolBar() {
  if (!m_pToolBar) {
    m_pToolBar = new QToolBar(this);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, m_pToolBar);
  }
  return m_pToolBar;
}

QMenuBar* cDialogWindow::MenuBar() {
  if (!m_pMenuBar) {
    m_pMenuBar = new QMenuBar(this);
    layout()->setMenuBar(m_pMenuBar);
  }
  return m_pMenuBar;
}

QStatusBar* cDialogWindow::StatusBar() {
  if (!m_pStatusBar) {
    m_pStatusBar = new QStatusBar(this);
    m_pStatusBar->setSizeGripEnabled(false);
    m_pStatusBar->setSizePolicy(m_pStatusBar->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    layout()->addWidget(m_pStatusBar);
  }
  return m_pStatusBar;
}

bool cDialogWindow::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) KeepBarsToClient();
  if (m_pDialog && m_pDialog->HandleEvent(*event)) return true;
  return QDialog::event(event);
}

// Scroll bars and the status bar stretch, and would let the window grow
// past its drawing area, leaving the area adrift in an empty window: the
// area's limits are theirs too.
void cDialogWindow::KeepBarsToClient() {
  const QSize limit = m_pClient->maximumSize();
  QLayoutItem* right = m_pBody->itemAtPosition(0, 1);
  if (right && right->widget()) right->widget()->setMaximumHeight(limit.height());
  QLayoutItem* below = m_pBody->itemAtPosition(1, 0);
  if (below && below->widget()) below->widget()->setMaximumWidth(limit.width());
  if (m_pStatusBar) m_pStatusBar->setMaximumWidth(m_pBody->maximumSize().width());
}

void cDialogWindow::reject() {
  if (m_pDialog) m_pDialog->SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
}

}  // namespace velmora
