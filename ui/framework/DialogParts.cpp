#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QStatusBar>
#include <QToolBar>

#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"

// Tool bar, status bar and pop-up menus of a window.

namespace velmora {
namespace {

constexpr char kImageStrip[] = "velmoraImageStrip";
constexpr char kImageWidth[] = "velmoraImageWidth";

QAction* FindAction(QToolBar* bar, int command) {
  for (QAction* action : bar->actions()) {
    if (action->data().toInt() == command && !action->isSeparator()) return action;
  }
  return nullptr;
}

QIcon ImageOf(QToolBar* bar, int image) {
  const QPixmap strip = bar->property(kImageStrip).value<QPixmap>();
  const int width = bar->property(kImageWidth).toInt();
  if (strip.isNull() || width <= 0 || (image + 1) * width > strip.width()) return QIcon();
  return QIcon(strip.copy(image * width, 0, width, strip.height()));
}

}  // namespace

void cDialog::WantStatusBar(std::vector<int> partWidths) {
  m_bWantStatusBar = true;
  m_vecStatusParts = std::move(partWidths);
  if (m_vecStatusParts.empty()) m_vecStatusParts.push_back(0);
}

void cDialog::SetToolImages(const QPixmap& strip, int imageWidth) {
  if (!m_pWindow) return;
  QToolBar* bar = m_pWindow->ToolBar();
  bar->setProperty(kImageStrip, strip);
  bar->setProperty(kImageWidth, imageWidth);
  bar->setIconSize(QSize(imageWidth, strip.height()));
}

void cDialog::AddToolButtons(const cToolButton* buttons, int count) {
  if (!m_pWindow) return;
  QToolBar* bar = m_pWindow->ToolBar();
  for (int i = 0; i < count; ++i) {
    const cToolButton& button = buttons[i];
    if (button.command == 0) {
      bar->addSeparator();
      continue;
    }
    QAction* action = bar->addAction(ImageOf(bar, button.image), Ui(button.tip));
    action->setToolTip(Ui(button.tip));
    action->setData(button.command);
    action->setCheckable(button.checkable);
    const int command = button.command;
    QObject::connect(action, &QAction::triggered, bar, [this, command] {
      SendCommand(MakeCommand(command, kNoticeClicked), 0);
    });
  }
}

void cDialog::SetToolButtonState(int command, bool enabled, bool checked) {
  if (!m_pWindow || !m_pWindow->HasToolBar()) return;
  if (QAction* action = FindAction(m_pWindow->ToolBar(), command)) {
    action->setEnabled(enabled);
    if (action->isCheckable()) action->setChecked(checked);
  }
}

void cDialog::SetStatusText(int part, const std::string& cp932) {
  // Status parts are kept under negative ids beside the controls.
  if (auto* label = qobject_cast<QLabel*>(Item(-1 - part))) label->setText(FromCp932(cp932));
}

void cDialog::SetMenuBar(const std::vector<cMenuPopup>& popups) {
  if (!m_pWindow) return;
  QMenuBar* bar = m_pWindow->MenuBar();
  bar->clear();
  for (const cMenuPopup& popup : popups) {
    QMenu* menu = bar->addMenu(Ui(popup.title));
    for (const cMenuItem& item : popup.items) {
      if (item.command == 0) {
        menu->addSeparator();
        continue;
      }
      // The text carries its accelerator behind a tab, which the menu shows
      // at the right; the keys themselves belong to the accelerator table.
      QAction* action = menu->addAction(Ui(item.text));
      action->setData(item.command);
      action->setEnabled(item.enabled);
      action->setCheckable(item.checkable);
      action->setChecked(item.checked);
      const int command = item.command;
      QObject::connect(action, &QAction::triggered, bar, [this, command] {
        SendCommand(MakeCommand(command, kNoticeClicked), 0);
      });
    }
  }
}

void cDialog::SetMenuState(int command, bool enabled, bool checked) {
  if (!m_pWindow || !m_pWindow->HasMenuBar()) return;
  for (QAction* top : m_pWindow->MenuBar()->actions()) {
    if (!top->menu()) continue;
    for (QAction* action : top->menu()->actions()) {
      if (action->isSeparator() || action->data().toInt() != command) continue;
      action->setEnabled(enabled);
      if (action->isCheckable()) action->setChecked(checked);
    }
  }
}

void cDialog::ShowPopup(const std::vector<cMenuItem>& menu) {
  if (!m_pWindow) return;
  QMenu popup(m_pWindow);
  for (const cMenuItem& item : menu) {
    if (item.command == 0) {
      popup.addSeparator();
      continue;
    }
    QAction* action = popup.addAction(Ui(item.text));
    action->setData(item.command);
    action->setEnabled(item.enabled);
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
  }
  QAction* chosen = popup.exec(QPoint(m_mouse.screenX, m_mouse.screenY));
  if (chosen) SendCommand(MakeCommand(chosen->data().toInt(), kNoticeClicked), 0);
}

}  // namespace velmora
