#pragma once
#include "objects/CondRules.h"

namespace velmora {

// What the graphic fields of an entry take, by the sheet its graphic kind
// names. A character's own bitmaps are as many as the list BmpCharaExc
// has rows besides its reserved row 0.
cValueRange GraphicNumberRange(int kind);
// The frame (コマ) of a block or item: a character picture has 40 columns,
// an own bitmap 240 cells, and the other sheets one picture per number.
bool HasFrame(int kind);
cValueRange GraphicFrameRange(int kind);
// An own bitmap has no sheet of pictures to pick from.
bool CanPickGraphic(int kind);

}  // namespace velmora
