#pragma once
#include <QListWidget>
#include <functional>
#include <memory>

#include "core/RecordListEdit.h"
#include "ui/controls/Descriptors.h"
#include "ui/list/ListControl.h"

namespace velmora {

// Where a record list stands in its dialog: the list, its three buttons,
// and the list number (1 to 4) that gives it menu and key ids of its own
// beside the other lists of the window.
struct cRecordListIds {
  int list = 0;
  int insert = 0;  // "挿入"
  int edit = 0;    // "編集"; 0 for a list without it
  int remove = 0;  // "削除"
  int listNumber = 1;
  int shownChars = 0;  // the list's width in characters; 0 has room for a condition's or command's text
  int shownRows = 0;   // the list's height in rows; 0 for the usual height
};

// The rows that show a record list in a dialog's table: the list with its
// buttons under it.
cFormRow RecordListRows(const cRecordListIds& ids);

// A list of records inside a dialog, each record edited in a dialog of its
// own: the rules of cRecordListEdit (which the dialog owns, with the data,
// the limits, the row text and the clipboard), behind the list widget.
// 挿入 and the menu's 新規挿入 insert and open, 編集 and a double click
// open a copy, 削除 deletes; the pop-up menu holds 切り取り, コピー,
// 貼り付け, 新規挿入, 削除, and Ctrl+X, C, V, I and Delete do the same
// while the list has the focus. Commands reach it from the dialog by
// themselves: nothing is to be routed.
template <class Element>
class cRecordListControl : public cListControl<Element> {
 public:
  cRecordListControl(cDialog& parent, QListWidget* widget, const cRecordListIds& ids, cRecordListEdit<Element>& edit)
      : cListControl<Element>(parent, widget, ids.list, edit, ids.listNumber, kInsertDeleteFamily),
        m_ids(ids),
        m_edit(edit) {
    this->Listen(widget, &QListWidget::itemDoubleClicked, [this] { Changed(m_edit.EditSelected()); });
  }

  // Runs after every command that changed the records, so that the dialog
  // can show what depends on them.
  std::function<void()> onChanged;

  bool TakeCommand(int id) override {
    if (id == 0) return false;
    if (id == m_ids.insert || id == m_ids.edit || id == m_ids.remove) {
      Changed(RunButton(id));
      return true;
    }
    return Changed(this->OnListCommand(id));
  }

 private:
  static constexpr int kInsertDeleteFamily = 1;

  bool RunButton(int id) {
    if (id == m_ids.edit) return m_edit.EditSelected();
    return this->View().Execute(id == m_ids.insert ? eListCommand::Insert : eListCommand::Delete);
  }

  bool Changed(bool changed) {
    if (!changed) return false;
    this->View().Show();
    this->Parent().RefreshOthers(this->Id());
    if (onChanged) onChanged();
    return true;
  }

  cRecordListIds m_ids;
  cRecordListEdit<Element>& m_edit;
};

// Binds the list of `ids` that the dialog's table made to `edit`; for the
// dialog's BindOwnControls. A modeless window gets the list's keys as
// accelerators, a modal one hands them over itself. Null when the window
// has no such list.
template <class Element>
cRecordListControl<Element>* BindRecordList(cDialog& dialog, const cRecordListIds& ids,
                                            cRecordListEdit<Element>& edit) {
  auto* widget = qobject_cast<QListWidget*>(dialog.Item(ids.list));
  if (!widget) return nullptr;
  auto control = std::make_unique<cRecordListControl<Element>>(dialog, widget, ids, edit);
  cRecordListControl<Element>* raw = control.get();
  dialog.AddControl(std::move(control));
  if (dialog.IsModeless()) dialog.SetAccel(ids.list, raw->Keys());
  return raw;
}

// Selects row `row` (from 0) of the list of `id`, loads its working
// record and brings the row into view, as when a caller takes the author
// to one record; false when the list has no such row.
template <class Element>
bool ShowListRow(cDialog& dialog, int id, cListEdit<Element>& edit, int row) {
  auto* control = dialog.FindControlOf<cListControl<Element>>(id);
  if (!control || !edit.IsRealRow(row)) return false;
  edit.SelectOnly(row, true);
  control->View().Show();
  if (auto* widget = qobject_cast<QListWidget*>(dialog.Item(id))) widget->scrollToItem(widget->item(row));
  return true;
}

}  // namespace velmora
