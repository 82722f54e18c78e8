#include "graphics/Colour.h"

namespace velmora {

int NearestIndex(const cColourTable& table, cColourRef colour) {
  int best = 0;
  int bestDistance = 1 << 30;
  for (int i = 0; i < 256; ++i) {
    const cRgbQuad& q = table[static_cast<size_t>(i)];
    int dr = q.red - RedOf(colour);
    int dg = q.green - GreenOf(colour);
    int db = q.blue - BlueOf(colour);
    int distance = dr * dr + dg * dg + db * db;
    if (distance < bestDistance) {
      bestDistance = distance;
      best = i;
      if (distance == 0) break;
    }
  }
  return best;
}

}  // namespace velmora
