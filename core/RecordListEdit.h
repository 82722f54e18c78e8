#pragma once
#include <functional>
#include <string>
#include <vector>

#include "core/ListEdit.h"
#include "core/Log.h"

namespace velmora {

// A list whose records are edited each in a dialog of its own, as the
// conditions of フローの操作 and the lists of the flow editor are:
//   - insert makes a default record at the selected row and opens its
//     dialog; Cancel takes the row out again, OK leaves it selected;
//   - edit opens the dialog on a copy of the selected record, which the
//     record takes on OK only;
//   - a paste can be refused as a whole, with a message, by the records
//     the clipboard holds.
// The clipboard belongs to the list, whatever vector it shows: the flow
// editor points one list at the commands of each flow in turn.
template <class Element>
class cRecordListEdit : public cListEdit<Element> {
 public:
  // Opens the dialog of one record; true on OK. `isNew` for a record that
  // insert has just made. Without it (the flows of the flow editor, whose
  // fields stand beside the list) insert keeps the default record.
  std::function<bool(Element& record, bool isNew)> m_Edit;
  // Why the clipboard can't be pasted, in CP932; "" lets it in.
  std::function<std::string(const std::vector<Element>& clipboard)> m_PasteRefusal;

  // Shows another vector, with its first row selected; null shows none.
  void SetData(std::vector<Element>* data) {
    this->m_lpData = data;
    this->m_nTop = 0;
    this->m_nSelSaved = -1;
    this->SelectOnly(this->Count() > 0 ? 0 : -1, true);
  }

  bool Insert() override {
    const int before = this->m_nSel;
    if (!cListEdit<Element>::Insert()) return false;
    if (!m_Edit) return true;
    Element fresh = Selected();
    if (m_Edit && m_Edit(fresh, true)) {
      Selected() = std::move(fresh);
      this->LoadWork();
      return true;
    }
    this->Delete(this->m_nSel, true);
    this->Select(before, true);
    return false;
  }

  // Nothing selected: nothing happens.
  bool EditSelected() {
    if (this->GetSel() < 0 || !m_Edit) return false;
    Element copy = Selected();
    if (!m_Edit(copy, false)) return false;
    Selected() = std::move(copy);
    this->LoadWork();
    return true;
  }

  bool Paste() override {
    const std::string refusal = m_PasteRefusal ? m_PasteRefusal(this->m_vecBuffer) : std::string();
    if (!refusal.empty()) {
      ErrorBoxText(refusal.c_str());
      return false;
    }
    return cListEdit<Element>::Paste();
  }

 private:
  Element& Selected() { return VecAt(*this->m_lpData, this->GetSel()); }
};

}  // namespace velmora
