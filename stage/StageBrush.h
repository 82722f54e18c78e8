#pragma once
#include <cstdint>

#include "objects/Chara.h"
#include "stage/Stage.h"

namespace velmora {

// Writes one cell from the brush: all three layers with Shift held, else
// the current one. A brush index beyond a layer's brush leaves that layer.
void PlaceCell(int index, int brushIndex, bool allLayers);

// Writes a character so that the stage keeps at most one player.
void SetChara(cStage& stage, int index, cEdChara chara);

void SwitchLayer(int layer);
// Space: the next layer, from items back to blocks.
void NextLayer();

// The frames the stage view shows around the cursor, as `m_iCursorMode`
// holds them; the right-button range has its own.
enum eCursorMode : int32_t { kCursorPen = 0, kCursorLine = 1, kCursorRect = 2, kCursorCell = 3, kCursorRange = 5 };

// The frame the stage shows for a tool: line and rectangle their own,
// fill and parameter tool a single cell.
int CursorModeForTool(int tool);
void EmptyPaletteClipboard();

}  // namespace velmora
