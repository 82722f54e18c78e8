#pragma once
#include "graphics/Colour.h"

namespace velmora {

// The 256-colour layout of the sample project:
//   0        black, the transparent colour
//   1..9     the system's fixed colours
//   10..15   line colours, 15 being black for outlines
//   16..31   greys from near black to white
//   32..207  eleven hues in sixteen shades each, dark to light
//   208..239 colours the game's option screens may change
//   240..255 the standard bright colours, 255 white
cColourTable SamplePalette();

inline constexpr int kSampleInk = 15;    // outline black, drawn solid
inline constexpr int kSampleWhite = 31;  // white inside pictures
inline constexpr int kSampleHueCount = 11;
inline constexpr int kSampleShadeCount = 16;

// Grey 0 (darkest) to 15 (white).
constexpr int SampleGrey(int level) { return 16 + level; }
// Hue 0 (red) round to 10 (magenta); shade 0 (darkest) to 15 (palest).
constexpr int SampleHue(int hue, int shade) {
  return 32 + (hue % kSampleHueCount) * kSampleShadeCount + shade;
}

}  // namespace velmora
