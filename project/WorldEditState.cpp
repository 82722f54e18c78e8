#include "project/WorldEditState.h"

#include <algorithm>
#include <cstdlib>

#include "core/CheckedAccess.h"
#include "project/WorldMap.h"

namespace velmora {

void cEdWorldEditState::SetMode(int mode) {
  if (mode == m_iMode || (mode != kWorldChipMode && mode != kWorldEventMode)) return;
  m_aModeStore.at(static_cast<size_t>(m_iMode)) = {m_iCurrent, m_iBrushW, m_iBrushH, m_bPicking};
  m_iMode = mode;
  const cWorldSelection& restored = m_aModeStore.at(static_cast<size_t>(mode));
  m_iCurrent = restored.current;
  m_iBrushW = restored.brushW;
  m_iBrushH = restored.brushH;
  m_bPicking = restored.picking;
}

void cEdWorldEditState::SelectChip(int index) {
  m_iCurrent = index;
  m_iBrushW = m_iBrushH = 1;
  m_aiBrush[0] = index;
}

void cEdWorldEditState::SelectTemplate(const std::vector<cEdWorldEvent>& templates, int index) {
  if (index < 0 || static_cast<size_t>(index) >= templates.size()) {
    m_iCurrent = -1;
    m_iBrushW = m_iBrushH = 0;
    return;
  }
  m_Template = templates[static_cast<size_t>(index)];
  m_iCurrent = index;
  m_iBrushW = m_iBrushH = 1;
}

int32_t cEdWorldEditState::BrushAt(int column, int row) const {
  return VecAt(m_aiBrush, row * kBrushRowLength + column);
}

void cEdWorldEditState::PaintBrush(cEdWorldMap& map, int x, int y) const {
  const int32_t chips = static_cast<int32_t>(map.m_vecChips.size());
  const int columns = std::min(m_iBrushW, map.m_nWidth - x);
  const int rows = std::min(m_iBrushH, map.m_nHeight - y);
  for (int row = std::max(0, -y); row < rows; ++row) {
    const int32_t* brush = &m_aiBrush[static_cast<size_t>(row * kBrushRowLength)];
    for (int column = std::max(0, -x); column < columns; ++column) {
      const int32_t chip = brush[column];
      if (chip >= 0 && chip < chips) map.SetCell(x + column, y + row, chip);
    }
  }
}

void cEdWorldEditState::TakePick(const cEdWorldMap& map, int x, int y) {
  m_iBrushW = std::min(std::abs(x - m_iPickX) + 1, kBrushRowLength);
  m_iBrushH = std::min(std::abs(y - m_iPickY) + 1, kBrushRows);
  const int left = std::min(x, m_iPickX);
  const int top = std::min(y, m_iPickY);
  for (int row = 0; row < m_iBrushH; ++row) {
    for (int column = 0; column < m_iBrushW; ++column) {
      const int index = map.CellIndex(left + column, top + row);
      if (index < 0) continue;
      m_aiBrush[static_cast<size_t>(row * kBrushRowLength + column)] = map.m_vecCells[static_cast<size_t>(index)];
    }
  }
  m_bPicking = 0;
}

void cEdWorldEditState::FillClip(const cEdWorldEvent& event) {
  m_Clip = event;
  m_bClip = 1;
}

cEdWorldEditState& WorldEdit() {
  static cEdWorldEditState state;
  return state;
}

}  // namespace velmora
