#pragma once
#include <array>
#include <cstdint>
#include <memory>

#include "graphics/Colour.h"

namespace velmora {

// The bytes that stand for one colour in an image's format: an index for 8
// bits, blue-green-red for 24, blue-green-red-zero for 32.
struct cPixelValue {
  uint8_t bytes[4] = {0, 0, 0, 0};
  int size = 1;
};

// The colours of an 8-bit image's table as 32-bit pixels (blue in the low
// byte), for fast copies into true colour.
using cTrueColourTable = std::array<uint32_t, 256>;

// A top-down pixel buffer of 8, 24 or 32 bits a pixel whose rows are padded
// to 4 bytes, the way bitmap files pad them, so that file rows copy straight
// in. An 8-bit image carries its own colour table.
class cPixelImage {
 public:
  static bool IsSupportedDepth(int depth) { return depth == 8 || depth == 24 || depth == 32; }
  static int RowBytes(int width, int depth) { return ((width * depth + 31) / 32) * 4; }

  // Gives false for sizes outside 1..kMaxSide, an unsupported depth or a
  // failed allocation. A new image is white.
  bool Create(int width, int height, int depth, const cColourTable& table);
  void Reset();

  bool Empty() const { return !m_pixels; }
  int Width() const { return m_width; }
  int Height() const { return m_height; }
  int Depth() const { return m_depth; }
  int Stride() const { return m_stride; }
  int BytesPerPixel() const { return m_depth / 8; }
  uint8_t* Row(int y) { return m_pixels.get() + static_cast<size_t>(y) * static_cast<size_t>(m_stride); }
  const uint8_t* Row(int y) const {
    return m_pixels.get() + static_cast<size_t>(y) * static_cast<size_t>(m_stride);
  }
  uint8_t* Pixel(int x, int y) { return Row(y) + x * BytesPerPixel(); }
  const uint8_t* Pixel(int x, int y) const { return Row(y) + x * BytesPerPixel(); }
  const cColourTable& Table() const { return m_table; }
  const cTrueColourTable& TrueColours() const { return m_trueColours; }
  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }

  cColourRef ColourAt(int x, int y) const;
  cPixelValue Encode(cColourRef colour) const;
  void PutPixel(int x, int y, const cPixelValue& value);  // clipped
  void FillRect(int x, int y, int w, int h, const cPixelValue& value);  // clipped

  // Side of the largest image, far beyond any picture of a project; it keeps
  // sizes from a damaged file from asking for absurd amounts of memory.
  static constexpr int kMaxSide = 32767;

 private:
  std::unique_ptr<uint8_t[]> m_pixels;
  int m_width = 0;
  int m_height = 0;
  int m_depth = 0;
  int m_stride = 0;
  cColourTable m_table{};
  cTrueColourTable m_trueColours{};
};

}  // namespace velmora
