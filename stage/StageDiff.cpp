#include "stage/StageDiff.h"

#include <algorithm>

namespace velmora {
namespace {

template <class tEntry>
const tEntry* CellAt(const cStage& stage, const std::vector<tEntry>& layer, int x, int y) {
  if (x >= stage.m_nWidth || y >= stage.m_nHeight) return nullptr;
  const size_t index = static_cast<size_t>(stage.CellIndex(x, y));
  return index < layer.size() && IsOccupied(layer[index]) ? &layer[index] : nullptr;
}

template <class tEntry>
void DiffCell(const cStage& before, const std::vector<tEntry>& beforeLayer, const cStage& after,
              const std::vector<tEntry>& afterLayer, cCellChange at, std::vector<cCellChange>& changes) {
  const tEntry* was = CellAt(before, beforeLayer, at.x, at.y);
  const tEntry* is = CellAt(after, afterLayer, at.x, at.y);
  if (!was && !is) return;
  if (was && is && *was == *is) return;
  at.change = !was ? eCellChange::Added : !is ? eCellChange::Removed : eCellChange::Changed;
  changes.push_back(at);
}

}  // namespace

std::vector<cCellChange> DiffStageCells(const cStage& before, const cStage& after) {
  std::vector<cCellChange> changes;
  const int width = std::max(before.m_nWidth, after.m_nWidth);
  const int height = std::max(before.m_nHeight, after.m_nHeight);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      DiffCell(before, before.m_vecBlockCell, after, after.m_vecBlockCell, {x, y, 0}, changes);
      DiffCell(before, before.m_vecCharaCell, after, after.m_vecCharaCell, {x, y, 1}, changes);
      DiffCell(before, before.m_vecItemCell, after, after.m_vecItemCell, {x, y, 2}, changes);
    }
  }
  return changes;
}

std::vector<cCellPos> ChangedPositions(const std::vector<cCellChange>& changes) {
  std::vector<cCellPos> positions;
  for (const cCellChange& change : changes) {
    if (positions.empty() || positions.back().x != change.x || positions.back().y != change.y) {
      positions.push_back({change.x, change.y});
    }
  }
  return positions;
}

}  // namespace velmora
