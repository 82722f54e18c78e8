#pragma once
#include <functional>
#include <memory>

#include "ui/controls/List.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/list/ListView.h"

namespace velmora {

// The accelerator of each key a modal dialog hands to its lists; the key I
// and Delete stand for whichever of their two commands the family has.
struct cListKey {
  int key;
  bool ctrl;
  eListCommand first, second;
};
inline constexpr cListKey kListKeys[] = {
    {Qt::Key_X, true, eListCommand::Cut, eListCommand::Cut},
    {Qt::Key_C, true, eListCommand::Copy, eListCommand::Copy},
    {Qt::Key_V, true, eListCommand::Paste, eListCommand::Paste},
    {Qt::Key_I, true, eListCommand::Append, eListCommand::Insert},
    {Qt::Key_Delete, false, eListCommand::Delete, eListCommand::Clear},
};

// The keys of a list in a modeless window, whose keys reach it through
// its accelerators: SetAccel with the list as the focus target.
inline cAccelTable ListAccelerators(int listNumber, int family) {
  const ListCommandIds ids = ListAcceleratorIds(listNumber, family);
  cAccelTable table;
  for (const cListKey& entry : kListKeys) {
    const int first = ids[static_cast<int>(entry.first)];
    const int command = first ? first : ids[static_cast<int>(entry.second)];
    if (command) table.push_back({entry.key, entry.ctrl ? Qt::ControlModifier : Qt::NoModifier, command});
  }
  return table;
}

// A data list page as a control of its dialog: the dialog's refresh and
// redraw refill it, a new selection refreshes the other controls, and the
// dialog's commands, keys and pop-up menu reach the element commands.
template <class Element>
class cListControl : public cList {
 public:
  cListControl(cDialog& parent, QListWidget* widget, int id, cListEdit<Element>& edit, int listNumber, int family)
      : cList(parent, widget, id),
        m_view(edit, widget, listNumber, family),
        m_keys(ListAccelerators(listNumber, family)) {
    m_view.onRecordChanged = [this] { Parent().RefreshOthers(Id()); };
    m_view.choosePopup = [this](const std::vector<cMenuItem>& menu, const QPoint& screen) {
      if (const int chosen = choosePopup(menu, screen)) Parent().SendCommand(MakeCommand(chosen, kNoticeClicked), 0);
      return 0;
    };
  }

  // Picks from the pop-up menu; the chosen id goes to the dialog as a command.
  std::function<int(const std::vector<cMenuItem>&, const QPoint&)> choosePopup = cListView<Element>::ExecMenu;

  void Refresh() override { m_view.Show(); }
  void OnRedraw() override { m_view.Show(); }

  void OnKey(int key, bool ctrl) override {
    if (const int id = MatchAccel(m_keys, key, ctrl ? Qt::ControlModifier : Qt::NoModifier)) {
      Parent().SendCommand(MakeCommand(id, kNoticeAccelerator), 0);
    }
  }
  // The same keys for a modeless window, to be given to SetAccel.
  const cAccelTable& Keys() const { return m_keys; }

  // The page's command handler hands every id here; the command runs when
  // the list has the focus and the id is one of its own.
  bool OnListCommand(int id) {
    return ListWidget()->hasFocus() && m_view.RunCommand(id);
  }

  // A field control changed: the fields are committed and the selected
  // element takes the working record, so its row reads anew at once. The
  // page's own rules for the changed field run in between. A click of a
  // button or another list's selection changes no field.
  bool StoreIfFieldChanged(uint32_t wParam, const std::function<void(int id)>& rules = nullptr) {
    const int changed = Parent().FindChanged(wParam);
    const cControl* control = changed ? Parent().FindControl(changed) : nullptr;
    if (!control || control->Kind() == eControlKind::Button || control->Kind() == eControlKind::List) return false;
    Parent().ApplyAll();
    if (rules) rules(changed);
    m_view.StoreWork();
    return true;
  }

  bool ChangeCount(int maximum) {
    return m_view.ChangeCount(Parent().Manager(), maximum);
  }
  cListView<Element>& View() { return m_view; }

 private:
  cListView<Element> m_view;
  cAccelTable m_keys;
};

}  // namespace velmora
