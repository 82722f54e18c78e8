#include "stage/SparseStage.h"

#include <algorithm>

#include "stage/Placements.h"

namespace velmora {
namespace {

constexpr int32_t kNoSlot = -1;

template <class T>
void CheckPlaced(std::vector<cPlacement<T>>& placed) {
  for (cPlacement<T>& placement : placed) CheckEntryRefs(placement.cell);
}

}  // namespace

bool cSparseStage::LoadLayers(cDataFile& file, cCheckedCells* /*checked*/) {
  if (m_nWidth < 1 || m_nHeight < 1 || m_nWidth > kMaxStageSize || m_nHeight > kMaxStageSize) {
    file.MarkDamaged();
    return false;
  }
  m_nPitch_Shift = CalcPitchShift(m_nWidth);
  m_nPitch = 1 << m_nPitch_Shift;
  m_slots.assign(static_cast<size_t>(m_nPitch) * static_cast<size_t>(m_nHeight), kNoSlot);
  LoadPlaced(m_vecBlockPlaced, file);
  LoadPlaced(m_vecCharaPlaced, file);
  LoadPlaced(m_vecItemPlaced, file);
  m_slots = {};
  return true;
}

template <class T>
void cSparseStage::LoadPlaced(std::vector<cPlacement<T>>& placed, cDataFile& file) {
  ReadPlacements(file, m_slots.size(), [&](size_t index) {
    int32_t& slot = m_slots[index];
    if (slot == kNoSlot) {
      slot = static_cast<int32_t>(placed.size());
      placed.push_back({static_cast<int32_t>(index), T()});
    }
    placed[static_cast<size_t>(slot)].cell.Load(file);
  });
  for (const cPlacement<T>& placement : placed) m_slots[static_cast<size_t>(placement.index)] = kNoSlot;
  KeepOccupied(placed);
}

// Cells beyond the stage's width, and those without a graphic, are in the
// file but not on the stage.
template <class T>
void cSparseStage::KeepOccupied(std::vector<cPlacement<T>>& placed) const {
  std::erase_if(placed, [&](const cPlacement<T>& p) { return !IsOccupied(p.cell) || PosOf(p.index).x >= m_nWidth; });
  auto byIndex = [](const cPlacement<T>& a, const cPlacement<T>& b) { return a.index < b.index; };
  if (!std::is_sorted(placed.begin(), placed.end(), byIndex)) std::sort(placed.begin(), placed.end(), byIndex);
}

void cSparseStage::Load(cDataFile& file) {
  m_vecBlockPlaced.clear();
  m_vecCharaPlaced.clear();
  m_vecItemPlaced.clear();
  cStage::Load(file);
  // The whole-layer read checks its cells during the read or in the
  // normalising, once the palettes they refer to are complete; these are
  // checked the same way once the normalising has filled the palettes.
  cStagePaletteScope scope(*this);
  CheckPlaced(m_vecBlockPlaced);
  CheckPlaced(m_vecCharaPlaced);
  CheckPlaced(m_vecItemPlaced);
}

}  // namespace velmora
