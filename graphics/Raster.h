#pragma once
#include "graphics/PixelImage.h"

namespace velmora {

// How copied pixels meet the pixels already there. Masked drawing is an AND
// of the mask followed by an OR of the image.
enum class eRop { Copy, And, Or };

// Copies a w x h block from (sx, sy) of `src` to (x, y) of `dst`, converting
// the pixel format where the depths differ; both rectangles are clipped. An
// 8-bit source goes to an 8-bit target as indices, since every 8-bit image
// of a project shares one colour table.
void BlitImage(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy, eRop rop);

// Masked drawing in one pass: (dst AND mask) OR image, the mask being the
// same size as the image; gives what an And copy of the mask followed by an
// Or copy of the image gives.
void BlitMasked(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& image, const cPixelImage& mask,
                int sx, int sy);

// The same with scaling by point sampling from the middle of each source
// step; extents of 0 or below draw nothing.
void StretchImage(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy, int sw,
                  int sh, eRop rop);

}  // namespace velmora
