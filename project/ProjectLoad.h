#pragma once
#include <vector>

#include "graphics/CharaBitmaps.h"

namespace velmora {

// Opens the project in the current folder: the common variable names, the
// database, the system record, the common palette, the project options and
// the world map, then the default stage, the palette and fixed bitmaps and
// the character bitmaps. The first file that can't be read is shown to the
// author by name, and nothing after it is read. Files of an older version
// than this build (system, database, world map) are written back upgraded.
// The edit stage is left unnamed.
bool LoadProject();

// The character bitmaps that the database's rows name, at their cell sizes.
std::vector<cCharaBitmapSource> CharaBitmapSources();

}  // namespace velmora
