#pragma once

namespace velmora {

inline constexpr const char* kProjectPaletteFile = "bmp\\plt\\Palette.bmp";
inline constexpr const char* kSourcePaletteFile = "bmp\\plt\\Palette2.bmp";

// The palette step of opening a project: reads both palette files and
// derives the transparent and solid indices. A file that can't be read
// stops the step with a box; a missing second file also forbids saving and
// closes the main window, as the project can't be shown without it.
bool LoadPaletteBitmaps();

}  // namespace velmora
