#include "graphics/ProjectPalette.h"

namespace velmora {
namespace {

cColourTable g_palette{};
cColourTable g_sourcePalette{};
int g_transparentIndex = 0;
int g_solidIndex = 0;

int FirstIndexOf(cColourRef colour) {
  const cRgbQuad wanted = QuadOf(colour);
  for (int i = 0; i < 256; ++i) {
    if (SameColour(g_palette[static_cast<size_t>(i)], wanted)) return i;
  }
  return 0;
}

}  // namespace

cColourTable& ProjectPalette() { return g_palette; }
cColourTable& SourcePalette() { return g_sourcePalette; }

int TransparentIndex() { return g_transparentIndex; }
int SolidIndex() { return g_solidIndex; }

void DeriveMaskIndices() {
  g_transparentIndex = FirstIndexOf(ColourOf(g_palette[0]));
  g_solidIndex = FirstIndexOf(ColourOf(g_palette[15]));
}

cColourRef TransparentColour() { return ColourOf(g_palette[0]); }

cColourTable SurfaceColourTable() {
  cColourTable table = g_palette;
  table[0] = cRgbQuad{0, 0, 0, 0};
  table[255] = cRgbQuad{255, 255, 255, 0};
  return table;
}

}  // namespace velmora
