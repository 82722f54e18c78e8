#pragma once

namespace velmora {

// Flood fill of the current layer from a cell with the brush tiled over
// the region. The recursion path is cut at 5000 cells, so a large region
// may stay partly unfilled.
void FillAt(int x, int y);

inline constexpr int kFillDepthLimit = 5000;

}  // namespace velmora
