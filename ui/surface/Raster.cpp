#include "ui/surface/Raster.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace velmora {
namespace {

void ApplyRop(uint8_t* dst, const uint8_t* src, size_t bytes, eRop rop) {
  switch (rop) {
    case eRop::Copy:
      std::memmove(dst, src, bytes);
      return;
    case eRop::And:
      for (size_t i = 0; i < bytes; ++i) dst[i] &= src[i];
      return;
    case eRop::Or:
      for (size_t i = 0; i < bytes; ++i) dst[i] |= src[i];
      return;
  }
}

void WriteTrueColour(uint8_t* out, int bytesPerPixel, uint8_t blue, uint8_t green, uint8_t red) {
  out[0] = blue;
  out[1] = green;
  out[2] = red;
  if (bytesPerPixel == 4) out[3] = 0;
}

// Converts `count` pixels of the source's format into the target's format.
void ConvertRow(const uint8_t* in, int count, const cPixelImage& src, const cPixelImage& dst, uint8_t* out) {
  const int inSize = src.BytesPerPixel();
  const int outSize = dst.BytesPerPixel();
  if (src.Depth() == 8) {
    for (int i = 0; i < count; ++i, out += outSize) {
      const cRgbQuad& q = src.Table()[in[i]];
      WriteTrueColour(out, outSize, q.blue, q.green, q.red);
    }
    return;
  }
  if (dst.Depth() != 8) {
    for (int i = 0; i < count; ++i, in += inSize, out += outSize) WriteTrueColour(out, outSize, in[0], in[1], in[2]);
    return;
  }
  cColourRef lastColour = 0;
  uint8_t lastIndex = 0;
  bool haveLast = false;
  for (int i = 0; i < count; ++i, in += inSize) {
    cColourRef colour = Rgb(in[2], in[1], in[0]);
    if (!haveLast || colour != lastColour) {
      lastIndex = static_cast<uint8_t>(NearestIndex(dst.Table(), colour));
      lastColour = colour;
      haveLast = true;
    }
    out[i] = lastIndex;
  }
}

// Rows of the source in the target's format; the same bytes when the depths
// agree.
const uint8_t* InTargetFormat(const uint8_t* in, int count, const cPixelImage& src, const cPixelImage& dst,
                              std::vector<uint8_t>& scratch) {
  if (src.Depth() == dst.Depth()) return in;
  scratch.resize(static_cast<size_t>(count) * static_cast<size_t>(dst.BytesPerPixel()));
  ConvertRow(in, count, src, dst, scratch.data());
  return scratch.data();
}

// Narrows [start, start + length) to [0, limit), moving `other` with the start.
void Clip(long long& start, long long& length, long long& other, long long limit) {
  if (start < 0) {
    length += start;
    other -= start;
    start = 0;
  }
  if (start + length > limit) length = limit - start;
}

}  // namespace

void BlitImage(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy, eRop rop) {
  if (dst.Empty() || src.Empty()) return;
  long long dx = x, dy = y, sxx = sx, syy = sy, cw = w, ch = h;
  Clip(dx, cw, sxx, dst.Width());
  Clip(sxx, cw, dx, src.Width());
  Clip(dy, ch, syy, dst.Height());
  Clip(syy, ch, dy, src.Height());
  if (cw <= 0 || ch <= 0) return;
  const int count = static_cast<int>(cw);
  const size_t rowBytes = static_cast<size_t>(count) * static_cast<size_t>(dst.BytesPerPixel());
  static thread_local std::vector<uint8_t> scratch;
  for (long long row = 0; row < ch; ++row) {
    const uint8_t* in = src.Pixel(static_cast<int>(sxx), static_cast<int>(syy + row));
    const uint8_t* converted = InTargetFormat(in, count, src, dst, scratch);
    ApplyRop(dst.Pixel(static_cast<int>(dx), static_cast<int>(dy + row)), converted, rowBytes, rop);
  }
}

void StretchImage(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy, int sw,
                  int sh, eRop rop) {
  if (dst.Empty() || src.Empty() || w <= 0 || h <= 0 || sw <= 0 || sh <= 0) return;
  // Only the target columns and rows that lie on the target are visited.
  const int firstI = std::max(0, -x);
  const int lastI = static_cast<int>(std::min<long long>(w, static_cast<long long>(dst.Width()) - x));
  const int firstJ = std::max(0, -y);
  const int lastJ = static_cast<int>(std::min<long long>(h, static_cast<long long>(dst.Height()) - y));
  if (firstI >= lastI || firstJ >= lastJ) return;
  // Source column of every visible target column; -1 where it falls outside.
  std::vector<int> columns;
  for (int i = firstI; i < lastI; ++i) {
    long long column = sx + (2LL * i + 1) * sw / (2LL * w);
    columns.push_back(column >= 0 && column < src.Width() ? static_cast<int>(column) : -1);
  }
  const size_t inSize = static_cast<size_t>(src.BytesPerPixel());
  const size_t outSize = static_cast<size_t>(dst.BytesPerPixel());
  std::vector<uint8_t> gathered(columns.size() * inSize);
  std::vector<uint8_t> scratch;
  for (int j = firstJ; j < lastJ; ++j) {
    long long row = sy + (2LL * j + 1) * sh / (2LL * h);
    if (row < 0 || row >= src.Height()) continue;
    for (size_t i = 0; i < columns.size(); ++i) {
      if (columns[i] >= 0) std::memcpy(&gathered[i * inSize], src.Pixel(columns[i], static_cast<int>(row)), inSize);
    }
    const uint8_t* converted = InTargetFormat(gathered.data(), static_cast<int>(columns.size()), src, dst, scratch);
    uint8_t* out = dst.Pixel(x + firstI, y + j);
    for (size_t i = 0; i < columns.size(); ++i) {
      if (columns[i] >= 0) ApplyRop(out + i * outSize, converted + i * outSize, outSize, rop);
    }
  }
}

}  // namespace velmora
