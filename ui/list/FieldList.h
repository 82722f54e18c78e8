#pragma once
#include <QListWidget>
#include <functional>
#include <memory>

#include "core/ListEdit.h"
#include "ui/controls/Descriptors.h"
#include "ui/list/ListControl.h"

namespace velmora {

// A list beside the fields of its selected element, the shape of every
// list page: the fields are bound to one working record, a new selection
// loads it and refreshes them, and a field the author changes is committed
// and stored into the selected element at once, so its row reads anew.
// The dialog owns this object and hands its commands to StoreIfFieldChanged.
template <class Element, class Edit = cListEdit<Element>>
class cFieldList {
 public:
  cFieldList() { edit.m_lpWork = &work; }
  cFieldList(const cFieldList&) = delete;
  cFieldList& operator=(const cFieldList&) = delete;

  Edit edit;
  Element work;  // the fields' record
  // Around the refresh of the fields when the working record took another
  // element: before it (limits wide enough for any stored value), after it
  // (enabled states, previews).
  std::function<void()> beforeShown;
  std::function<void()> afterShown;
  // A field changed and was committed; the element takes it behind this.
  std::function<void(int id)> onFieldChanged;

  // Shows `data` from its first row.
  void SetData(std::vector<Element>* data) {
    edit.m_lpData = data;
    edit.m_nTop = 0;
    edit.m_nSelSaved = -1;
    edit.SelectOnly(edit.Count() > 0 ? 0 : -1, true);
  }

  // Binds the list widget of `listId` that the dialog's table made; for
  // the dialog's BindOwnControls. A modeless window gets the list's keys
  // as accelerators, a modal one hands them over itself.
  cListControl<Element>* Bind(cDialog& dialog, int listId, int listNumber, int family) {
    auto* widget = qobject_cast<QListWidget*>(dialog.Item(listId));
    if (!widget) return nullptr;
    auto made = std::make_unique<cListControl<Element>>(dialog, widget, listId, edit, listNumber, family);
    cListControl<Element>* control = made.get();
    m_pDialog = &dialog;
    m_nListId = listId;
    dialog.AddControl(std::move(made));
    if (dialog.IsModeless()) dialog.SetAccel(listId, control->Keys());
    control->View().onRecordChanged = [this] { ShowRecord(); };
    return control;
  }
  // The list control while the dialog holds its controls, else null: a
  // closing dialog ends them before its last commands are through.
  cListControl<Element>* Control() const {
    return m_pDialog ? m_pDialog->template FindControlOf<cListControl<Element>>(m_nListId) : nullptr;
  }

  // The fields show the working record anew.
  void ShowRecord() {
    if (!Control()) return;
    if (beforeShown) beforeShown();
    m_pDialog->RefreshOthers(m_nListId);
    if (afterShown) afterShown();
  }

  // An element command of a button or of the list's menu and keys; false
  // when it couldn't work.
  bool Run(eListCommand command) { return Control() && Control()->View().Execute(command); }
  bool RunListCommand(int id) { return Control() && Control()->OnListCommand(id); }

  // The dialog's command: when it is a field's change, the fields are
  // committed and the selected element takes the working record.
  bool StoreIfFieldChanged(uint32_t wParam) {
    return Control() && Control()->StoreIfFieldChanged(wParam, onFieldChanged);
  }

  // The working record changed by other means (a sub-dialog's OK).
  void StoreWork() {
    if (Control()) Control()->View().StoreWork();
  }

 private:
  cDialog* m_pDialog = nullptr;
  int m_nListId = 0;
};

// The list widget of a list page: room for a dozen rows of a name.
cFormRow FieldListRow(int listId);

}  // namespace velmora
