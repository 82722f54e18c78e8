#pragma once
#include <functional>
#include <vector>

#include "graphics/CellFrame.h"
#include "stage/Stage.h"
#include "graphics/Surface.h"

namespace velmora {

// The frame of a cell that differs from another version of the stage.
inline constexpr cColourRef kChangeMarkColour = Rgb(255, 0, 255);

// What the stage window asks of one repaint beside the stage itself.
struct cViewOptions {
  bool hasStage = true;  // without one the view stays black
  cCellFrame cursor;
  // Drawn in the frame step, under the cursor frame: what a drag will write.
  std::function<void(cSurface& out)> preview;
  // Cells to point out, e.g. those that differ from another version of
  // the stage; framed under the cursor.
  std::vector<cCellFrame> marks;
};

// Paints the part of the stage seen from the scroll position (top left
// cell) into `out`, which is the size of the window's client area: black,
// blocks, characters, items at half size, the grid, the centre cross, the
// scroll limits that are on, the marks, then the cursor frame. Pictures come from
// the fixed bitmaps and the characters' own bitmaps; animation sets from
// the database.
void RenderStageView(const cStage& stage, cSurface& out, int scrollX, int scrollY, const cViewOptions& options);

}  // namespace velmora
