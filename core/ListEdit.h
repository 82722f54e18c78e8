#pragma once
#include <cstdint>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "core/AppControl.h"
#include "core/CheckedAccess.h"
#include "core/ListCommands.h"

namespace velmora {

// Text of a numbered row: the number from 1, zero-padded to the digits of
// the shown count (at most 11), then the row's own text.
std::string NumberedRowText(int rowNumber, int shownCount, const std::string& text);

// The editing half of a data list page, free of any widget: rows, the
// selection, one working record the page's fields are bound to, the list's
// own clipboard and the element commands. A failed command beeps and
// changes nothing; each command gives true when it did something.
template <class Element>
class cListEdit {
 public:
  using RowTextFn = std::function<std::string(int row, const Element&)>;
  using DefaultFn = std::function<void(Element&)>;

  int m_nSel = -1;
  int m_nCaret = -1;
  std::vector<int32_t> m_vecSelFlag;
  std::vector<int32_t> m_vecSelSaved;
  int m_nSelSaved = -1;
  int m_nTop = 0;
  bool m_bMulti = false;
  std::vector<Element> m_vecBuffer;
  std::vector<Element>* m_lpData = nullptr;
  Element* m_lpWork = nullptr;
  bool m_bNumber = false;
  int m_nMin = 0;
  int m_nMax = 999;
  bool m_bNoHold = false;
  int m_nHead = 0;
  bool m_bTailRow = false;
  std::string m_strTail;
  int m_nLastOp = 0;
  RowTextFn m_RowText;
  // Puts an element back to its class defaults; plain value-initialisation
  // unless the class has a set-up of its own.
  DefaultFn m_SetDefaults = [](Element& e) { e = Element{}; };

  virtual ~cListEdit() = default;

  int Count() const { return m_lpData ? static_cast<int>(m_lpData->size()) - m_nHead : 0; }
  int RowCount() const { return Count() + (m_bTailRow ? 1 : 0); }
  bool IsRealRow(int row) const { return row >= 0 && row < Count(); }
  int GetSel() const { return IsRealRow(m_nSel) ? m_nSel + m_nHead : -1; }
  bool IsFlagged(int row) const {
    return row >= 0 && row < static_cast<int>(m_vecSelFlag.size()) && m_vecSelFlag[row];
  }

  // The texts of every row, numbered and followed by the tail row as set.
  std::vector<std::string> Fill() {
    std::vector<std::string> rows;
    for (int row = 0; row < Count(); ++row) {
      std::string text = m_RowText ? m_RowText(row, Element_(row)) : std::string();
      rows.push_back(m_bNumber ? NumberedRowText(row + 1, Count(), text) : text);
    }
    if (m_bTailRow) rows.push_back(m_strTail);
    m_vecSelFlag.resize(rows.size(), 0);
    return rows;
  }

  // After a refill: a selection that is gone falls back on the saved one,
  // then on row 0, unless the list doesn't hold its selection.
  void OnRedraw() {
    const int rows = RowCount();
    if (!m_bNoHold) {
      if (m_nSel < 0 || m_nSel >= rows) m_nSel = (m_nSelSaved >= 0 && m_nSelSaved < rows) ? m_nSelSaved : (rows ? 0 : -1);
      if (m_bMulti && !AnyFlag()) {
        if (static_cast<int>(m_vecSelSaved.size()) == rows) m_vecSelFlag = m_vecSelSaved;
        else FlagOnly(rows ? 0 : -1);
      }
    }
    m_nSelSaved = m_nSel;
    m_vecSelSaved = m_vecSelFlag;
  }

  // What the widget reports as the present selection: the selected row
  // follows the flags, and the working record follows the selected row.
  void OnChange(int sel, const std::vector<int32_t>& flags, int caret) {
    m_nSel = sel;
    if (m_bMulti) {
      m_vecSelFlag = flags;
      m_nCaret = caret;
      if (!IsFlagged(m_nSel)) m_nSel = FirstFlagged();
    }
    LoadWork();
  }

  void Select(int row, bool bLoad) {
    m_nSel = row;
    m_nCaret = row;
    if (m_bMulti && row >= 0 && row < static_cast<int>(m_vecSelFlag.size())) m_vecSelFlag[row] = 1;
    if (bLoad) LoadWork();
  }
  void SelectOnly(int row, bool bLoad) {
    FlagOnly(row);
    Select(row, bLoad);
  }

  // The right click selects the row under the point; a row already flagged
  // keeps the rest of a multi-selection. False when the point is off the rows.
  bool ClickRow(int y) {
    if (y < 2) return false;
    return ClickOnRow(m_nTop + (y - 2) / 12);
  }
  // The same for a widget that hit-tests its rows itself.
  bool ClickOnRow(int row) {
    if (row < 0 || row >= RowCount()) return false;
    if (m_bMulti && !IsFlagged(row)) FlagOnly(row);
    Select(row, true);
    return true;
  }

  // The working record takes the selected element, or the blank record
  // when nothing or the tail row is selected.
  void LoadWork() {
    if (!m_lpWork) return;
    if (IsRealRow(m_nSel)) *m_lpWork = Element_(m_nSel);
    else m_SetDefaults(*m_lpWork);
  }

  void Store() {
    if (m_lpWork && IsRealRow(m_nSel)) Element_(m_nSel) = *m_lpWork;
  }

  // Copy, with Insert and Paste below, is where a list that shares its
  // clipboard, or edits its records in dialogs, adds its rules.
  virtual bool Copy() {
    if (!IsRealRow(m_nSel) && !(m_bMulti && AnyFlaggedRealRow())) return Beep();
    m_vecBuffer.clear();
    if (m_bMulti) {
      for (int row = 0; row < Count(); ++row)
        if (IsFlagged(row)) m_vecBuffer.push_back(Element_(row));
    } else {
      m_vecBuffer.push_back(Element_(m_nSel));
    }
    m_nLastOp = 1;
    return true;
  }

  bool Cut() {
    if (!Copy() || !Delete(-1, false)) return false;
    m_nLastOp = 0;
    return true;
  }

  virtual bool Paste() {
    if (m_nSel < 0 || m_nSel >= RowCount() || !m_lpData) return Beep();
    if (Full()) return Beep();
    for (size_t i = 0; i < m_vecBuffer.size(); ++i) {
      m_lpData->insert(m_lpData->begin() + m_nHead + m_nSel + static_cast<int>(i), m_vecBuffer[i]);
      GrowFlags(m_nSel + static_cast<int>(i));
      if (Full()) {
        Beep();
        break;
      }
    }
    LoadWork();
    m_nLastOp = 2;
    return true;
  }

  bool Append() {
    if (!m_lpData || Full()) return Beep();
    m_lpData->emplace_back();
    m_SetDefaults(m_lpData->back());
    GrowFlags(Count() - 1);
    SelectOnly(Count() - 1, true);
    m_nLastOp = 3;
    return true;
  }

  virtual bool Insert() {
    if (!m_lpData || Full()) return Beep();
    const int row = m_nSel < 0 ? 0 : m_nSel;
    Element blank{};
    m_SetDefaults(blank);
    m_lpData->insert(m_lpData->begin() + m_nHead + row, blank);
    GrowFlags(row);
    m_nSel = row;
    LoadWork();
    m_nLastOp = 4;
    return true;
  }

  bool Clear() {
    bool cleared = false;
    for (int row = 0; row < Count(); ++row) {
      if (m_bMulti ? IsFlagged(row) : row == m_nSel) {
        m_SetDefaults(Element_(row));
        cleared = true;
      }
    }
    if (!cleared) return Beep();
    LoadWork();
    m_nLastOp = 5;
    return true;
  }

  bool Delete(int row, bool bOne) {
    if (row >= 0) m_nSel = row;
    if (!m_lpData || Count() <= m_nMin) return Beep();
    const bool removed = (m_bMulti && !bOne) ? DeleteFlagged() : DeleteSelected();
    if (!removed) return Beep();
    if (!IsRealRow(m_nSel) && Count() > 0) m_nSel = Count() - 1;
    if (Count() == 0) m_nSel = -1;
    if (m_bMulti) FlagOnly(m_nSel);
    LoadWork();
    m_nLastOp = 6;
    return true;
  }

  bool SetCount(int count) {
    if (!m_lpData || count < m_nMin || count > m_nMax) return Beep();
    const int oldSize = static_cast<int>(m_lpData->size());
    m_lpData->resize(count + m_nHead);
    for (int i = oldSize; i < static_cast<int>(m_lpData->size()); ++i) m_SetDefaults(VecAt(*m_lpData, i));
    m_vecSelFlag.resize(RowCount(), 0);
    if (!IsRealRow(m_nSel)) {
      m_nSel = Count() > 0 ? 0 : -1;
      if (m_bMulti) FlagOnly(m_nSel);
      LoadWork();
    }
    return true;
  }

 private:
  Element& Element_(int row) { return VecAt(*m_lpData, row + m_nHead); }

  bool Beep() {
    AppControl().Beep();
    return false;
  }
  bool Full() const { return Count() >= m_nMax; }
  bool AnyFlag() const {
    for (int32_t f : m_vecSelFlag)
      if (f) return true;
    return false;
  }
  bool AnyFlaggedRealRow() const {
    for (int row = 0; row < Count(); ++row)
      if (IsFlagged(row)) return true;
    return false;
  }
  int FirstFlagged() const {
    for (int row = 0; row < static_cast<int>(m_vecSelFlag.size()); ++row)
      if (m_vecSelFlag[row]) return row;
    return -1;
  }
  void FlagOnly(int row) {
    m_vecSelFlag.assign(RowCount(), 0);
    if (row >= 0 && row < RowCount()) m_vecSelFlag[row] = 1;
  }
  void GrowFlags(int row) {
    if (!m_bMulti) return;
    auto grow = [&](std::vector<int32_t>& flags) {
      const int at = std::min(row, static_cast<int>(flags.size()));
      flags.insert(flags.begin() + at, 0);
    };
    grow(m_vecSelFlag);
    grow(m_vecSelSaved);
  }

  bool DeleteSelected() {
    if (!IsRealRow(m_nSel)) return false;
    m_lpData->erase(m_lpData->begin() + m_nHead + m_nSel);
    if (m_bMulti && m_nSel < static_cast<int>(m_vecSelFlag.size())) m_vecSelFlag.erase(m_vecSelFlag.begin() + m_nSel);
    return true;
  }

  // Removes the flagged real rows from the front, stopping at the minimum.
  bool DeleteFlagged() {
    bool removed = false;
    int row = 0;
    while (row < Count()) {
      if (!IsFlagged(row)) {
        ++row;
        continue;
      }
      if (Count() <= m_nMin) break;
      if (row < m_nSel) --m_nSel;
      m_lpData->erase(m_lpData->begin() + m_nHead + row);
      m_vecSelFlag.erase(m_vecSelFlag.begin() + row);
      removed = true;
    }
    return removed;
  }
};

}  // namespace velmora
