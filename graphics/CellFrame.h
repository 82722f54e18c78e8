#pragma once
#include "graphics/Colour.h"

namespace velmora {

// A frame drawn over a view in cells, e.g. a window's cursor.
struct cCellFrame {
  int x = 0, y = 0;  // top left cell, in the cells of the map or stage
  int w = 0, h = 0;  // in cells; 0 draws no frame
  cColourRef colour = 0;
};

}  // namespace velmora
