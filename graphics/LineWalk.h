#pragma once
#include <cstdlib>

namespace velmora {

// Visits the points of the straight line from (x1, y1) to (x2, y2) in
// order, giving each point and its number along the line. The end point is
// visited only with `includeEnd`, as pens leave it out.
template <class Visit>
void WalkLine(int x1, int y1, int x2, int y2, bool includeEnd, Visit visit) {
  const long long dx = std::llabs(static_cast<long long>(x2) - x1);
  const long long dy = -std::llabs(static_cast<long long>(y2) - y1);
  const int stepX = x1 < x2 ? 1 : -1;
  const int stepY = y1 < y2 ? 1 : -1;
  long long error = dx + dy;
  int x = x1;
  int y = y1;
  for (int n = 0;; ++n) {
    const bool atEnd = x == x2 && y == y2;
    if (atEnd && !includeEnd) return;
    visit(x, y, n);
    if (atEnd) return;
    const long long twice = 2 * error;
    if (twice >= dy) {
      error += dy;
      x += stepX;
    }
    if (twice <= dx) {
      error += dx;
      y += stepY;
    }
  }
}

}  // namespace velmora
