#pragma once
#include <cstdlib>
#include <string>
#include <vector>

#include "support/TempProject.h"
#include "graphics/BitmapFile.h"
#include "graphics/PixelImage.h"
#include "graphics/ProjectPalette.h"

namespace velmora::testing {

// A palette whose entry 0 (transparent) and 15 (solid) are both black, the
// way projects lay theirs out, with a distinct colour everywhere else.
inline cColourTable TestPalette() {
  cColourTable table{};
  for (int i = 1; i < 256; ++i) {
    table[static_cast<size_t>(i)] = cRgbQuad{static_cast<uint8_t>(i), static_cast<uint8_t>(255 - i),
                                             static_cast<uint8_t>(i * 7), 0};
  }
  table[15] = cRgbQuad{0, 0, 0, 0};
  return table;
}

inline void InstallPalette(const cColourTable& table) {
  ProjectPalette() = table;
  DeriveMaskIndices();
}

// An 8-bit image whose pixel (x, y) holds pick(x, y).
template <class Pick>
cPixelImage IndexedImage(int width, int height, Pick pick) {
  cPixelImage image;
  image.Create(width, height, 8, TestPalette());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) *image.Pixel(x, y) = static_cast<uint8_t>(pick(x, y));
  }
  return image;
}

inline void WriteImage(const std::string& hostPath, const cPixelImage& image) {
  WriteBytes(hostPath, EncodeBitmap(image, TestPalette()));
}

inline std::string TestDataPath(const std::string& name) {
  const char* root = std::getenv("VELMORA_TEST_DATA");
  return std::string(root ? root : "tests/data") + "/bitmaps/" + name;
}

}  // namespace velmora::testing
