#pragma once

namespace velmora {

struct cStageInput;

// The right-button range, in every tool: it becomes the brush on release.
// true when the stage needs a repaint.
bool RangeMouse(const cStageInput& input);

// Copies the range from its first corner to the cursor into the brush.
void CopyRange(int cursorX, int cursorY, bool allLayers);

// Keys of the stage window: D cut, Q delete and R turn round act on the
// range while it is dragged; Space goes to the next layer at any time.
// true when the stage needs a repaint.
bool StageKey(int key, bool shift, int cursorX, int cursorY);

}  // namespace velmora
