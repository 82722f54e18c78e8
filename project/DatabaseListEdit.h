#pragma once
#include <vector>

#include "core/ListEdit.h"
#include "project/DatabaseList.h"

namespace velmora {

// The editing rules of a database list page. Everything else refers to an
// entry by its place in the list, so no command here moves an entry: cut
// clears the entries in place, paste overwrites from the selected row on,
// "新規" appends, and the count grows or cuts the list at its end only.
// A reserved index 0 stays out of the rows and out of every count.
template <class Element>
class cDbListEdit : public cListEdit<Element> {
 public:
  // Shows `data` under `rule`, with its first row selected.
  void SetList(std::vector<Element>* data, const cListRule& rule) {
    this->m_lpData = data;
    this->m_nHead = rule.reservedZero ? 1 : 0;
    this->m_nMin = 1;
    this->m_nMax = rule.most;
    this->m_bMulti = true;
    this->m_nTop = 0;
    this->m_nSelSaved = -1;
    this->SelectOnly(this->Count() > 0 ? 0 : -1, true);
  }

  bool Cut() override {
    if (!this->Copy() || !this->Clear()) return false;
    this->m_nLastOp = 0;
    return true;
  }

  // The clipboard's entries take the places of the selected row and those
  // behind it; what would reach past the end of the list is left out.
  bool Paste() override {
    if (!this->IsRealRow(this->m_nSel) || this->m_vecBuffer.empty()) return this->Beep();
    int row = this->m_nSel;
    for (const Element& entry : this->m_vecBuffer) {
      if (!this->IsRealRow(row)) {
        this->Beep();
        break;
      }
      this->Element_(row++) = entry;
    }
    this->LoadWork();
    this->m_nLastOp = 2;
    return true;
  }
};

}  // namespace velmora
