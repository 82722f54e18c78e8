// Feeds arbitrary bytes to the bitmap reader with every kind of load the
// editor makes (plain, masked, mirrored, shrunk) and draws what it gives.
#include <cstddef>
#include <cstdint>

#include "graphics/Surface.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const uint8_t selector = size > 0 ? data[size - 1] : 0;
  cSurfaceSpec request;
  request.name = "fuzz.bmp";
  request.bMask = selector & 1;
  request.cellWidth = (selector & 2) ? 16 : 0;
  request.cellHeight = (selector & 4) ? 8 : 0;
  request.divisor = (selector >> 3) & 3;
  request.alignX = (selector & 0x20) ? 32 : 0;
  request.alignY = (selector & 0x40) ? 7 : 0;
  cSurface surface;
  if (surface.TryLoadFromMemory(request, data, size) != eSurfaceLoad::Ok) return 0;
  cSurface target;
  target.CreateSurface(64, 48, (selector & 0x80) ? 32 : 8, false);
  target.Blt(-3, -5, surface.Width(), surface.Height(), surface, 0, 0, false);
  target.StretchBltFrom(5, 5, 20, 20, surface, 1, 1, surface.Width(), surface.Height(), false);
  return 0;
}
