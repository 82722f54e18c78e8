#pragma once
#include "graphics/Colour.h"

namespace velmora {

// The process-wide palette of the project, read from "bmp\plt\Palette.bmp"
// at project open. Every 8-bit picture shows with it, whatever table its
// own file holds.
cColourTable& ProjectPalette();
// The palette of "bmp\plt\Palette2.bmp", read beside it: the colours that
// the bitmap conversion matches pictures against.
cColourTable& SourcePalette();

// Index of the first entry whose colour is the given one (0 when none is);
// the mask builder and the masked copies work with these.
int TransparentIndex();
int SolidIndex();
// Sets both indices from entries 0 and 15, as a freshly read palette wants.
void DeriveMaskIndices();

// The colour that 24-bit and 32-bit pictures treat as transparent: the
// colour of palette entry 0.
cColourRef TransparentColour();

// The colour table of an 8-bit surface: the project palette with entries 0
// and 255 made black and white, so that mask values combine exactly.
cColourTable SurfaceColourTable();

}  // namespace velmora
