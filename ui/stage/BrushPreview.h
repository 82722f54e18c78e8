#pragma once
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "graphics/Surface.h"

namespace velmora {

// The view shows what the left button will write before it is pressed or
// released: while a line or a rectangle is dragged, every cell of the line
// with its brush record, each framed, or the brush tiled over the
// rectangle; with the pen, a range copied from the stage under the cursor,
// since the frame alone doesn't tell what the copy holds. With Shift held
// that is all three layers, else the current one; items take half a cell
// as they do in the view. Nothing is drawn otherwise: a brush picked from
// a palette would only hide the cells it stands on.
void DrawBrushPreview(const cStage& stage, const cStageEdit& edit, cCellPos cursor, bool allLayers, cSurface& out,
                     int scrollX, int scrollY);

}  // namespace velmora
