#include "graphics/Raster.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace velmora {
namespace {

struct cCopyOp {
  uint8_t operator()(uint8_t, uint8_t s) const { return s; }
  uint32_t operator()(uint32_t, uint32_t s) const { return s; }
};
struct cAndOp {
  uint8_t operator()(uint8_t d, uint8_t s) const { return d & s; }
  uint32_t operator()(uint32_t d, uint32_t s) const { return d & s; }
};
struct cOrOp {
  uint8_t operator()(uint8_t d, uint8_t s) const { return d | s; }
  uint32_t operator()(uint32_t d, uint32_t s) const { return d | s; }
};

// Same format on both sides: byte for byte.
template <class Op>
void CombineBytes(uint8_t* dst, const uint8_t* src, size_t bytes, Op op) {
  for (size_t i = 0; i < bytes; ++i) dst[i] = op(dst[i], src[i]);
}

// Indices through the colour table into 24 or 32 bits.
template <class Op>
void CombineIndexed(uint8_t* dst, int dstBytes, const uint8_t* src, int count, const cTrueColourTable& lut, Op op) {
  if (dstBytes == 4) {
    for (int i = 0; i < count; ++i, dst += 4) {
      uint32_t d;
      std::memcpy(&d, dst, 4);
      d = op(d, lut[src[i]]);
      std::memcpy(dst, &d, 4);
    }
    return;
  }
  for (int i = 0; i < count; ++i, dst += 3) {
    const uint32_t s = lut[src[i]];
    dst[0] = op(dst[0], static_cast<uint8_t>(s));
    dst[1] = op(dst[1], static_cast<uint8_t>(s >> 8));
    dst[2] = op(dst[2], static_cast<uint8_t>(s >> 16));
  }
}

// 24 bits to 32 or back: the three colour bytes, the fourth taken as 0.
template <class Op>
void CombineTrueColour(uint8_t* dst, int dstBytes, const uint8_t* src, int srcBytes, int count, Op op) {
  for (int i = 0; i < count; ++i, dst += dstBytes, src += srcBytes) {
    for (int c = 0; c < 3; ++c) dst[c] = op(dst[c], src[c]);
    if (dstBytes == 4) dst[3] = op(dst[3], uint8_t{0});
  }
}

// True colour into indices: each colour looks up its nearest entry, the
// slow way, which only pictures loaded at an unusual depth take.
template <class Op>
void CombineNearest(uint8_t* dst, const uint8_t* src, int srcBytes, int count, const cColourTable& table, Op op) {
  cColourRef lastColour = 0;
  uint8_t lastIndex = static_cast<uint8_t>(NearestIndex(table, 0));
  for (int i = 0; i < count; ++i, src += srcBytes) {
    const cColourRef colour = Rgb(src[2], src[1], src[0]);
    if (colour != lastColour) {
      lastIndex = static_cast<uint8_t>(NearestIndex(table, colour));
      lastColour = colour;
    }
    dst[i] = op(dst[i], lastIndex);
  }
}

// `count` pixels of the source's format meet the target's pixels.
template <class Op>
void CombineRow(uint8_t* dst, const cPixelImage& target, const uint8_t* src, const cPixelImage& source, int count,
                Op op) {
  const int dstBytes = target.BytesPerPixel();
  const int srcBytes = source.BytesPerPixel();
  if (target.Depth() == source.Depth()) {
    CombineBytes(dst, src, static_cast<size_t>(count) * static_cast<size_t>(dstBytes), op);
  } else if (source.Depth() == 8) {
    CombineIndexed(dst, dstBytes, src, count, source.TrueColours(), op);
  } else if (target.Depth() == 8) {
    CombineNearest(dst, src, srcBytes, count, target.Table(), op);
  } else {
    CombineTrueColour(dst, dstBytes, src, srcBytes, count, op);
  }
}

void CombineRow(uint8_t* dst, const cPixelImage& target, const uint8_t* src, const cPixelImage& source, int count,
                eRop rop) {
  switch (rop) {
    case eRop::Copy:
      if (target.Depth() == source.Depth()) {
        std::memmove(dst, src, static_cast<size_t>(count) * static_cast<size_t>(target.BytesPerPixel()));
        return;
      }
      CombineRow(dst, target, src, source, count, cCopyOp{});
      return;
    case eRop::And:
      CombineRow(dst, target, src, source, count, cAndOp{});
      return;
    case eRop::Or:
      CombineRow(dst, target, src, source, count, cOrOp{});
      return;
  }
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

// The part of a w x h copy that lies on both images; false when none does.
struct cCopyRect {
  int dx, dy, sx, sy, w, h;
};
bool ClipCopy(const cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy,
              cCopyRect& out) {
  long long dx = x, dy = y, sxx = sx, syy = sy, cw = w, ch = h;
  Clip(dx, cw, sxx, dst.Width());
  Clip(sxx, cw, dx, src.Width());
  Clip(dy, ch, syy, dst.Height());
  Clip(syy, ch, dy, src.Height());
  if (cw <= 0 || ch <= 0) return false;
  out = {static_cast<int>(dx), static_cast<int>(dy), static_cast<int>(sxx), static_cast<int>(syy), static_cast<int>(cw),
         static_cast<int>(ch)};
  return true;
}

// Mask and image meet the target in one pass: (target AND mask) OR image.
void MaskRowSameDepth(uint8_t* dst, const uint8_t* mask, const uint8_t* image, size_t bytes) {
  for (size_t i = 0; i < bytes; ++i) dst[i] = static_cast<uint8_t>((dst[i] & mask[i]) | image[i]);
}

void MaskPixelsIndexedTo32(uint8_t* dst, const uint8_t* mask, const uint8_t* image, int count,
                           const cTrueColourTable& maskColours, const cTrueColourTable& imageColours) {
  for (int i = 0; i < count; ++i, dst += 4) {
    uint32_t d;
    std::memcpy(&d, dst, 4);
    d = (d & maskColours[mask[i]]) | imageColours[image[i]];
    std::memcpy(dst, &d, 4);
  }
}

constexpr int kRun = 8;

// All `kRun` bytes equal the first.
bool Uniform(const uint8_t* bytes) {
  uint64_t all;
  std::memcpy(&all, bytes, sizeof all);
  return all == bytes[0] * 0x0101010101010101ULL;
}

// The same result, taken eight pixels at a time where the mask says one
// thing for all eight, as it mostly does in and around a sprite: under a
// mask that clears the target the image goes straight in, and where image
// and mask are both uniform the pixels meet two constants, without lookups.
void MaskRowIndexedTo32(uint8_t* dst, const uint8_t* mask, const uint8_t* image, int count,
                        const cTrueColourTable& maskColours, const cTrueColourTable& imageColours) {
  int i = 0;
  for (; i + kRun <= count; i += kRun, dst += 4 * kRun) {
    if (!Uniform(mask + i)) {
      MaskPixelsIndexedTo32(dst, mask + i, image + i, kRun, maskColours, imageColours);
      continue;
    }
    const uint32_t keep = maskColours[mask[i]];
    if (keep == 0) {
      for (int k = 0; k < kRun; ++k) std::memcpy(dst + 4 * k, &imageColours[image[i + k]], 4);
    } else if (Uniform(image + i)) {
      const uint32_t add = imageColours[image[i]];
      uint32_t run[kRun];
      std::memcpy(run, dst, sizeof run);
      for (uint32_t& d : run) d = (d & keep) | add;
      std::memcpy(dst, run, sizeof run);
    } else {
      MaskPixelsIndexedTo32(dst, mask + i, image + i, kRun, maskColours, imageColours);
    }
  }
  MaskPixelsIndexedTo32(dst, mask + i, image + i, count - i, maskColours, imageColours);
}

}  // namespace

void BlitImage(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& src, int sx, int sy, eRop rop) {
  if (dst.Empty() || src.Empty()) return;
  cCopyRect r;
  if (!ClipCopy(dst, x, y, w, h, src, sx, sy, r)) return;
  for (int row = 0; row < r.h; ++row) {
    CombineRow(dst.Pixel(r.dx, r.dy + row), dst, src.Pixel(r.sx, r.sy + row), src, r.w, rop);
  }
}

void BlitMasked(cPixelImage& dst, int x, int y, int w, int h, const cPixelImage& image, const cPixelImage& mask,
                int sx, int sy) {
  if (dst.Empty() || image.Empty()) return;
  const bool paired = mask.Width() == image.Width() && mask.Height() == image.Height() && mask.Depth() == image.Depth();
  const bool sameDepth = dst.Depth() == image.Depth();
  const bool indexedTo32 = image.Depth() == 8 && dst.Depth() == 32;
  if (!paired || !(sameDepth || indexedTo32)) {
    BlitImage(dst, x, y, w, h, mask, sx, sy, eRop::And);
    BlitImage(dst, x, y, w, h, image, sx, sy, eRop::Or);
    return;
  }
  cCopyRect r;
  if (!ClipCopy(dst, x, y, w, h, image, sx, sy, r)) return;
  const size_t rowBytes = static_cast<size_t>(r.w) * static_cast<size_t>(dst.BytesPerPixel());
  for (int row = 0; row < r.h; ++row) {
    uint8_t* out = dst.Pixel(r.dx, r.dy + row);
    const uint8_t* m = mask.Pixel(r.sx, r.sy + row);
    const uint8_t* s = image.Pixel(r.sx, r.sy + row);
    if (sameDepth) {
      MaskRowSameDepth(out, m, s, rowBytes);
    } else {
      MaskRowIndexedTo32(out, m, s, r.w, mask.TrueColours(), image.TrueColours());
    }
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
  static thread_local std::vector<int> columns;
  static thread_local std::vector<uint8_t> gathered;
  columns.clear();
  for (int i = firstI; i < lastI; ++i) {
    long long column = sx + (2LL * i + 1) * sw / (2LL * w);
    columns.push_back(column >= 0 && column < src.Width() ? static_cast<int>(column) : -1);
  }
  const size_t inSize = static_cast<size_t>(src.BytesPerPixel());
  const size_t outSize = static_cast<size_t>(dst.BytesPerPixel());
  gathered.resize(columns.size() * inSize);
  for (int j = firstJ; j < lastJ; ++j) {
    long long row = sy + (2LL * j + 1) * sh / (2LL * h);
    if (row < 0 || row >= src.Height()) continue;
    uint8_t* out = dst.Pixel(x + firstI, y + j);
    // Runs of columns inside the source are gathered and combined together.
    for (size_t i = 0; i < columns.size();) {
      if (columns[i] < 0) {
        ++i;
        continue;
      }
      size_t end = i;
      for (; end < columns.size() && columns[end] >= 0; ++end) {
        const uint8_t* from = src.Pixel(columns[end], static_cast<int>(row));
        for (size_t b = 0; b < inSize; ++b) gathered[(end - i) * inSize + b] = from[b];
      }
      CombineRow(out + i * outSize, dst, gathered.data(), src, static_cast<int>(end - i), rop);
      i = end;
    }
  }
}

}  // namespace velmora
