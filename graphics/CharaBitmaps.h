#pragma once
#include <string>
#include <vector>

#include "graphics/Surface.h"

namespace velmora {

// One row of the character bitmap list of the database, as far as the
// pictures need it. The database fills a list of these, index for index.
struct cCharaBitmapSource {
  std::string path;   // empty: the row has no picture
  int cellSize = 32;  // 32 dots, or 32 times the giant size
};

// The two facings of one character's own bitmap: the file's first column of
// cells and the column beside it.
struct cCharaBitmapPair {
  cSurface first;
  cSurface second;
};

// Index for index with the list last loaded; row 0 stays empty.
std::vector<cCharaBitmapPair>& CharaBitmaps();

// Rebuilds all pairs from the list, from row 1 on. Each file that can't be
// loaded reports "%s の読み込みに失敗！" with its path; with
// `stopAtFirstFailure` the rebuild ends there. Gives false when any failed.
bool LoadCharaBitmaps(const std::vector<cCharaBitmapSource>& list, bool stopAtFirstFailure);

}  // namespace velmora
