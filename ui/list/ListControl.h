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

// A data list page as a control of its dialog: the dialog's refresh and
// redraw refill it, a new selection refreshes the other controls, and the
// dialog's commands, keys and pop-up menu reach the element commands.
template <class Element>
class cListControl : public cList {
 public:
  cListControl(cDialog& parent, QListWidget* widget, int id, cListEdit<Element>& edit, int listNumber, int family)
      : cList(parent, widget, id),
        m_view(edit, widget, listNumber, family),
        m_accelIds(ListAcceleratorIds(listNumber, family)) {
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
    for (const cListKey& entry : kListKeys) {
      if (entry.key != key || entry.ctrl != ctrl) continue;
      if (const int id = KeyId(entry)) Parent().SendCommand(MakeCommand(id, kNoticeAccelerator), 0);
    }
  }

  // The same keys as a table for a window without a modal loop, where keys
  // held with Ctrl reach only the accelerators: bind it to the list's id.
  cAccelTable Accelerators() const {
    cAccelTable table;
    for (const cListKey& entry : kListKeys) {
      const Qt::KeyboardModifiers modifiers = entry.ctrl ? Qt::ControlModifier : Qt::NoModifier;
      if (const int id = KeyId(entry)) table.push_back({entry.key, modifiers, id});
    }
    return table;
  }

  // The page's command handler hands every id here; the command runs when
  // the list has the focus and the id is one of its own.
  bool OnListCommand(int id) {
    return ListWidget()->hasFocus() && m_view.RunCommand(id);
  }

  // A field control changed: the fields are committed and the selected
  // element takes the working record, so its row reads anew at once.
  bool StoreIfFieldChanged(uint32_t wParam) {
    const int changed = Parent().FindChanged(wParam);
    if (changed == 0 || changed == Id()) return false;
    Parent().ApplyAll();
    m_view.StoreWork();
    return true;
  }

  bool ChangeCount(int maximum) {
    return m_view.ChangeCount(Parent().Manager(), maximum);
  }
  cListView<Element>& View() { return m_view; }

 private:
  int AccelId(eListCommand command) const { return m_accelIds[static_cast<int>(command)]; }
  int KeyId(const cListKey& entry) const { return AccelId(entry.first) ? AccelId(entry.first) : AccelId(entry.second); }

  cListView<Element> m_view;
  ListCommandIds m_accelIds;
};

}  // namespace velmora
