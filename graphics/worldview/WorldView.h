#pragma once
#include "graphics/CellFrame.h"
#include "graphics/Surface.h"

namespace velmora {

class cEdWorldMap;
class cEdWorldEditState;

// The frame of the world map's cursor: the pick rectangle from its start to
// the cursor while one is drawn, else the brush at the cursor.
cCellFrame WorldCursorFrame(const cEdWorldEditState& state, int x, int y);

// Paints the part of the world map seen from the scroll position (top left
// cell) into `out`, the size of the window's drawing area: the background
// colour and picture, the chips, the events at half size with their world
// numbers, the grid and the cursor frame. Only cells in view are drawn;
// cells and pages that name no chip or picture draw nothing.
void RenderWorldView(const cEdWorldMap& map, cSurface& out, int scrollX, int scrollY, const cCellFrame& cursor);

}  // namespace velmora
