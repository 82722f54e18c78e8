#pragma once

namespace velmora {

class cEdBlock;
class cEdChara;
class cEdItem;
class cSurface;

// A palette entry's picture in full size, 32 x 32 dots with its top left
// at (x, y), from the fixed bitmaps, with its mark on top. Graphic number 0
// draws nothing.
void DrawEntry(cSurface& target, int x, int y, const cEdBlock& block);
void DrawEntry(cSurface& target, int x, int y, const cEdChara& chara);
void DrawEntry(cSurface& target, int x, int y, const cEdItem& item);

}  // namespace velmora
