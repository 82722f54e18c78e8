#include "graphics/PixelImage.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace velmora {

bool cPixelImage::Create(int width, int height, int depth, const cColourTable& table) {
  Reset();
  if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide || !IsSupportedDepth(depth)) return false;
  int stride = RowBytes(width, depth);
  size_t bytes = static_cast<size_t>(stride) * static_cast<size_t>(height);
  m_pixels.reset(new (std::nothrow) uint8_t[bytes]);
  if (!m_pixels) return false;
  m_width = width;
  m_height = height;
  m_depth = depth;
  m_stride = stride;
  m_table = table;
  for (size_t i = 0; i < table.size(); ++i) {
    m_trueColours[i] = table[i].blue | (uint32_t{table[i].green} << 8) | (uint32_t{table[i].red} << 16);
  }
  const cPixelValue white = Encode(Rgb(255, 255, 255));
  if (depth == 32) FillRect(0, 0, width, height, white);
  else std::memset(m_pixels.get(), white.bytes[0], bytes);
  return true;
}

void cPixelImage::Reset() {
  m_pixels.reset();
  m_width = m_height = m_depth = m_stride = 0;
}

cColourRef cPixelImage::ColourAt(int x, int y) const {
  const uint8_t* p = Pixel(x, y);
  if (m_depth == 8) return ColourOf(m_table[*p]);
  return Rgb(p[2], p[1], p[0]);
}

cPixelValue cPixelImage::Encode(cColourRef colour) const {
  cPixelValue value;
  value.size = BytesPerPixel();
  if (m_depth == 8) {
    value.bytes[0] = static_cast<uint8_t>(NearestIndex(m_table, colour));
  } else {
    value.bytes[0] = BlueOf(colour);
    value.bytes[1] = GreenOf(colour);
    value.bytes[2] = RedOf(colour);
  }
  return value;
}

void cPixelImage::PutPixel(int x, int y, const cPixelValue& value) {
  if (!Contains(x, y)) return;
  uint8_t* p = Pixel(x, y);
  for (int i = 0; i < value.size; ++i) p[i] = value.bytes[i];
}

namespace {

// `count` pixels of one value in a row; each size gets a loop of its own,
// which a whole view's width and a grid line's one dot both pass quickly.
void FillPixels(uint8_t* out, size_t count, const cPixelValue& value) {
  switch (value.size) {
    case 1:
      std::memset(out, value.bytes[0], count);
      return;
    case 4: {
      uint32_t pixel;
      std::memcpy(&pixel, value.bytes, sizeof pixel);
      for (size_t i = 0; i < count; ++i) std::memcpy(out + 4 * i, &pixel, sizeof pixel);
      return;
    }
    default:
      for (size_t i = 0; i < count; ++i) std::memcpy(out + 3 * i, value.bytes, 3);
  }
}

}  // namespace

void cPixelImage::FillRect(int x, int y, int w, int h, const cPixelValue& value) {
  const int left = std::max(x, 0);
  const int top = std::max(y, 0);
  const int right = static_cast<int>(std::min<long long>(static_cast<long long>(x) + w, m_width));
  const int bottom = static_cast<int>(std::min<long long>(static_cast<long long>(y) + h, m_height));
  if (left >= right || top >= bottom) return;
  for (int row = top; row < bottom; ++row) FillPixels(Pixel(left, row), static_cast<size_t>(right - left), value);
}

}  // namespace velmora
