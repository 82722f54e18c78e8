#pragma once
#include <string>
#include <vector>

#include "graphics/Surface.h"

namespace velmora {

// The pictures the editor draws stages, palettes and the world map with,
// loaded at project open in index order.
inline constexpr int kFixedBitmapCount = 33;

enum eFixedBitmap : int {
  kFixedBack = 0,        // stage background; its file is the stage's
  kFixedBlock = 1,
  kFixedCharaFirst = 2,  // eight pairs: sheet g at 2 + 2g, its other facing behind it
  kFixedItem = 18,
  kFixedItemMini = 19,
  kFixedShot = 20,
  kFixedShotMirrored = 21,
  kFixedMark = 22,
  kFixedWorldBack = 23,  // world map background; its file is the world map's
  kFixedWorldChip = 24,
  kFixedWorldEvent = 25,
  kFixedSymbol = 26,
  kFixedAccessory = 27,
  // Sheets composed from the pictures above for the palette windows.
  kSheetBlock = 28,
  kSheetChara = 29,
  kSheetItem = 30,
  kSheetShot = 31,
  kSheetMark = 32,
};

inline constexpr int kCharaSheetCount = 8;
inline constexpr int kComposedSheetWidth = 256;
inline constexpr int kComposedSheetHeight = 480;

const cSurfaceSpec& FixedBitmapRequest(int index);
cSurface& FixedBitmap(int index);

// Loads the whole table, then composes the five sheets. The two
// backgrounds take the given files and are left out when those are empty;
// they are also passed over quietly when they can't be loaded. Any other
// picture that fails reports and ends the load with false.
bool LoadFixedBitmaps(const std::string& stageBackPath, const std::string& worldBackPath);
void FreeFixedBitmaps();
// The world map's pictures read anew: its background from `path`, which
// the world map names (nothing happens for an empty name, and a picture
// that can't be read is passed over), and the sheets of chips and events,
// which report as at project open.
void LoadWorldBackground(const std::string& path);
bool LoadWorldSheets();

// Every file the table names by default, each once, in table order.
std::vector<std::string> FixedBitmapFiles();

}  // namespace velmora
