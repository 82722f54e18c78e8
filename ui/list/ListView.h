#pragma once
#include <QListWidget>
#include <QMenu>
#include <QSignalBlocker>
#include <functional>

#include "core/ListEdit.h"
#include "platform/TextCodec.h"
#include "ui/framework/StockDialogs.h"
#include "ui/list/ListMenu.h"

namespace velmora {

// Puts a cListEdit on a list widget: rows and selection go to the widget,
// the author's selection and the element commands come back. The page gets
// onRecordChanged whenever the working record took another element, so it
// can refresh its field controls.
template <class Element>
class cListView {
 public:
  cListView(cListEdit<Element>& edit, QListWidget* widget, int listNumber, int family)
      : m_edit(edit),
        m_pWidget(widget),
        m_accelIds(ListAcceleratorIds(listNumber, family)),
        m_menuIds(ListMenuIds(listNumber, family)),
        m_menu(ListPopupMenu(listNumber, family)) {
    widget->setSelectionMode(edit.m_bMulti ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    widget->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [this] { OnWidgetSelection(); });
    QObject::connect(widget, &QWidget::customContextMenuRequested, widget, [this](const QPoint& at) { RightClick(at); });
  }

  std::function<void()> onRecordChanged;
  // Shows the pop-up menu at a screen point and gives the chosen command
  // id, 0 for none. A page in the dialog framework routes it through its
  // dialog; standing alone the list opens a menu of its own.
  std::function<int(const std::vector<cMenuItem>& menu, const QPoint& screen)> choosePopup = ExecMenu;

  const std::vector<cMenuItem>& PopupMenu() const { return m_menu; }
  // A command of the dialog's own at the end of the pop-up menu; chosen,
  // it goes where the menu's commands go.
  void AddMenuItem(const cMenuItem& item) { m_menu.push_back(item); }

  static int ExecMenu(const std::vector<cMenuItem>& menu, const QPoint& screen) {
    QMenu popup;
    for (const cMenuItem& item : menu) popup.addAction(QString::fromUtf8(item.text))->setData(item.command);
    const QAction* chosen = popup.exec(screen);
    return chosen ? chosen->data().toInt() : 0;
  }

  // Rebuilds every row with redraw off, so the view neither flickers nor jumps.
  void Show() {
    const QSignalBlocker block(m_pWidget);
    m_pWidget->setUpdatesEnabled(false);
    m_edit.m_nTop = TopRow();
    m_pWidget->clear();
    for (const std::string& row : m_edit.Fill()) m_pWidget->addItem(QString::fromStdString(ToUtf8(row)));
    m_edit.OnRedraw();
    for (int row = 0; row < m_pWidget->count(); ++row)
      m_pWidget->item(row)->setSelected(m_edit.m_bMulti ? m_edit.IsFlagged(row) : row == m_edit.m_nSel);
    if (m_edit.m_nSel >= 0) m_pWidget->setCurrentRow(m_edit.m_nSel, QItemSelectionModel::NoUpdate);
    if (m_edit.m_nTop < m_pWidget->count()) m_pWidget->scrollToItem(m_pWidget->item(m_edit.m_nTop), QAbstractItemView::PositionAtTop);
    m_pWidget->setUpdatesEnabled(true);
  }

  // Runs the command of an accelerator or menu id; false when the id isn't
  // this list's or the command couldn't work.
  bool RunCommand(int id) {
    eListCommand command = CommandForId(m_accelIds, id);
    if (command == eListCommand::None) command = CommandForId(m_menuIds, id);
    return Execute(command);
  }

  // Runs an element command, then shows the rows and the working record
  // anew; false when the command couldn't work.
  bool Execute(eListCommand command) {
    if (command == eListCommand::None || !Run(command)) return false;
    Show();
    if (onRecordChanged) onRecordChanged();
    return true;
  }

  // The right click: selects the row under the point (widget coordinates)
  // and runs what its pop-up menu chooses. False off the rows.
  bool RightClick(const QPoint& at) {
    m_edit.m_nTop = TopRow();
    if (!m_edit.ClickOnRow(m_pWidget->indexAt(at).row())) return false;
    Show();
    m_pWidget->setFocus();
    if (onRecordChanged) onRecordChanged();
    if (const int id = choosePopup(m_menu, m_pWidget->viewport()->mapToGlobal(at))) RunCommand(id);
    return true;
  }

  // Asks for the new number of entries, from 1 to `maximum`, and sets it.
  bool ChangeCount(cDialogManager& manager, int maximum) {
    int32_t count = m_edit.Count();
    if (!InputValue(m_pWidget->window(), manager, count, 1, maximum, "", "データ数")) return false;
    if (!m_edit.SetCount(count)) return false;
    Show();
    if (onRecordChanged) onRecordChanged();
    return true;
  }

  // A field of the working record changed: the element takes it at once.
  // Only its own row can read differently, so a list of thousands of rows
  // isn't filled anew for each key the author types.
  void StoreWork() {
    m_edit.Store();
    const int row = m_edit.m_nSel;
    if (!m_edit.IsRealRow(row) || row >= m_pWidget->count()) return Show();
    const QSignalBlocker block(m_pWidget);
    m_pWidget->item(row)->setText(QString::fromStdString(ToUtf8(m_edit.RowText(row))));
  }

 private:
  int TopRow() const {
    const int top = m_pWidget->indexAt(QPoint(0, 0)).row();
    return top < 0 ? 0 : top;
  }

  bool Run(eListCommand command) {
    switch (command) {
      case eListCommand::Cut: return m_edit.Cut();
      case eListCommand::Copy: return m_edit.Copy();
      case eListCommand::Paste: return m_edit.Paste();
      case eListCommand::Append: return m_edit.Append();
      case eListCommand::Insert: return m_edit.Insert();
      case eListCommand::Clear: return m_edit.Clear();
      case eListCommand::Delete: return m_edit.Delete(-1, false);
      case eListCommand::None: break;
    }
    return false;
  }

  void OnWidgetSelection() {
    std::vector<int32_t> flags(m_pWidget->count(), 0);
    for (int row = 0; row < m_pWidget->count(); ++row) flags[row] = m_pWidget->item(row)->isSelected();
    m_edit.m_nTop = TopRow();
    m_edit.OnChange(m_pWidget->currentRow(), flags, m_pWidget->currentRow());
    if (onRecordChanged) onRecordChanged();
  }

  cListEdit<Element>& m_edit;
  QListWidget* m_pWidget;
  ListCommandIds m_accelIds;
  ListCommandIds m_menuIds;
  std::vector<cMenuItem> m_menu;
};

}  // namespace velmora
