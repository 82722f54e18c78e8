#pragma once
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "graphics/Surface.h"

namespace velmora {

// While a line or a rectangle is dragged, the view shows what the release
// will write: every cell of the line with its brush record, each framed,
// or the brush tiled over the rectangle. With Shift held that is all three
// layers, else the current one; items take half a cell as they do in the
// view. Nothing is drawn when no such drag runs.
void DrawDragPreview(const cStage& stage, const cStageEdit& edit, cCellPos cursor, bool allLayers, cSurface& out,
                     int scrollX, int scrollY);

}  // namespace velmora
