#pragma once
#include <cstdint>
#include <utility>
#include <vector>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"

namespace velmora {

// The cells of one layer that a step changed, as they stood before it. An
// empty cell is kept by its index alone: bringing it back only clears its
// graphic, as emptying does.
template <class T>
struct cLayerChanges {
  std::vector<std::pair<int32_t, T>> kept;
  std::vector<int32_t> emptied;
};

// One undo or redo step: what it holds costs what the step changed, not
// what the stage holds.
struct cHistoryStep {
  cLayerChanges<cEdBlock> block;
  cLayerChanges<cEdChara> chara;
  cLayerChanges<cEdItem> item;
};

}  // namespace velmora
