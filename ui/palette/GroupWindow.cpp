#include "ui/palette/GroupWindow.h"

#include <QGridLayout>
#include <QPushButton>

#include "core/WindowPlace.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Hook.h"
#include "ui/framework/QtText.h"
#include "ui/framework/WindowFrame.h"

namespace velmora {
namespace {

constexpr int kBoxesPerRow = 30;
constexpr int kBoxSize = 24;
constexpr int kGap = 8;

}  // namespace

cGroupWindow::cGroupWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place,
                           std::function<void()> nextLayer)
    : cDialog(manager, parent), m_pRect(&place), m_nextLayer(std::move(nextLayer)) {
  SetTitle(Ui("キャラのグループ情報"));
  SetLogName("group window");
  SetWindowStyle(eWindowStyle::ToolWindow);
  m_form.okCancel = false;
}

void cGroupWindow::BuildClient(QWidget& client) {
  auto* grid = new QGridLayout(&client);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  grid->setSpacing(0);
  grid->setContentsMargins(2, 2, 2, 2);
  for (int group = 0; group < kGroupCount; ++group) {
    auto* box = new QPushButton(QString::number(group), &client);
    box->setCheckable(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setFixedSize(kBoxSize, kBoxSize);
    // The boxes show the stage; a click is put back at once.
    QObject::connect(box, &QPushButton::clicked, box, [this, group, box] { box->setChecked(m_used.test(static_cast<size_t>(group))); });
    grid->addWidget(box, group / kBoxesPerRow, group % kBoxesPerRow);
    m_apBox[static_cast<size_t>(group)] = box;
  }
}

// The window is as large as its boxes; only its place is kept.
bool cGroupWindow::Open(const QRect& anchor) {
  if (!Create(0, false)) return false;
  QWidget* window = Window();
  window->adjustSize();
  if (m_pRect->m_bStored) MoveFrame(*window, QPoint(m_pRect->m_nX, m_pRect->m_nY));
  else MoveFrame(*window, QPoint(anchor.left(), anchor.bottom() + 1 + kGap));
  return true;
}

void cGroupWindow::StorePlace() {
  if (Window()) KeepPlace(*m_pRect, *Window());
}

void cGroupWindow::ShowGroups(const std::bitset<kGroupCount>& used) {
  m_used = used;
  for (int group = 0; group < kGroupCount; ++group) {
    if (QPushButton* box = m_apBox[static_cast<size_t>(group)].data()) box->setChecked(used.test(static_cast<size_t>(group)));
  }
}

bool cGroupWindow::IsDown(int group) const {
  const QPushButton* box = m_apBox.at(static_cast<size_t>(group)).data();
  return box && box->isChecked();
}

void cGroupWindow::OnCommand(uint32_t wParam, intptr_t lParam) {
  // The close box hides the window: it exists as long as the stage window.
  if (CommandId(wParam) == kIdCancel) {
    if (Window()) Window()->hide();
    return;
  }
  cDialog::OnCommand(wParam, lParam);
}

bool cGroupWindow::OnDialogMessage(QEvent& event) {
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  // The hook forwards Space as a key of its own, not as a plain key down.
  if (key.Kind() == cHookKeyEvent::KeyUp || key.Key() != Qt::Key_Space) return false;
  if (m_nextLayer) m_nextLayer();
  return true;
}

}  // namespace velmora
