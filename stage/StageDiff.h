#pragma once
#include <vector>

#include "stage/Stage.h"

namespace velmora {

enum class eCellChange { Added, Removed, Changed };

// One cell of one layer that differs between two versions of a stage.
struct cCellChange {
  int x = 0;
  int y = 0;
  int layer = 0;  // 0 blocks, 1 characters, 2 items
  eCellChange change = eCellChange::Changed;
};

// The cells of `after` that differ from `before`, row by row and within a
// cell by layer. Both stages are looked at over the larger of their sizes;
// a cell beyond a stage's edge counts as empty there.
std::vector<cCellChange> DiffStageCells(const cStage& before, const cStage& after);

// The positions that have a change in any layer, each once, in the order
// of the changes.
std::vector<cCellPos> ChangedPositions(const std::vector<cCellChange>& changes);

}  // namespace velmora
