#include <algorithm>
#include <cstring>
#include <vector>

#include "core/Log.h"
#include "core/SystemText.h"
#include "graphics/BitmapFile.h"
#include "graphics/ProjectPalette.h"
#include "graphics/Raster.h"
#include "graphics/Surface.h"

namespace velmora {
namespace {

void ReportCannotRead(const std::string& name) { ErrorBox(SysText("%s が読み込めません！"), name.c_str()); }

void ReportUnsupportedDepth(const std::string& name) {
  ErrorBox(SysText("%s の読み込みに失敗しました！\n対応していない色数です。"), name.c_str());
}

// Size after cutting to the alignment and dividing; a divisor of 1 keeps
// the picture as it is.
int ScaledSide(int side, int alignment, int divisor) {
  if (divisor <= 1) return side;
  if (alignment > 0) side -= side % alignment;
  return side / divisor;
}

// Reverses `count` pixels of `size` bytes in place.
void ReversePixels(uint8_t* first, int count, int size) {
  if (size == 1) {
    std::reverse(first, first + count);
    return;
  }
  uint8_t swap[4];
  for (int i = 0, j = count - 1; i < j; ++i, --j) {
    uint8_t* a = first + i * size;
    uint8_t* b = first + j * size;
    std::memcpy(swap, a, static_cast<size_t>(size));
    std::memcpy(a, b, static_cast<size_t>(size));
    std::memcpy(b, swap, static_cast<size_t>(size));
  }
}

// Mirrors the block of `w` x `h` pixels at (x, y) in place.
void MirrorBlock(cPixelImage& image, int x, int y, int w, int h, bool horizontal, bool vertical) {
  const int size = image.BytesPerPixel();
  if (horizontal) {
    for (int row = y; row < y + h; ++row) ReversePixels(image.Pixel(x, row), w, size);
  }
  if (vertical) {
    const size_t bytes = static_cast<size_t>(w) * static_cast<size_t>(size);
    std::vector<uint8_t> swap(bytes);
    for (int top = y, bottom = y + h - 1; top < bottom; ++top, --bottom) {
      std::memcpy(swap.data(), image.Pixel(x, top), bytes);
      std::memcpy(image.Pixel(x, top), image.Pixel(x, bottom), bytes);
      std::memcpy(image.Pixel(x, bottom), swap.data(), bytes);
    }
  }
}

}  // namespace

bool cSurface::Load(const cSurfaceSpec& request) {
  switch (TryLoad(request)) {
    case eSurfaceLoad::Ok:
      return true;
    case eSurfaceLoad::CannotRead:
      ReportCannotRead(request.name);
      return false;
    case eSurfaceLoad::UnsupportedDepth:
      ReportUnsupportedDepth(request.name);
      return false;
    case eSurfaceLoad::OutOfMemory:
      StopOutOfMemory();
      return false;
  }
  return false;
}

eSurfaceLoad cSurface::TryLoad(const cSurfaceSpec& request) {
  Free();
  if (request.name.empty() || request.name == kBlankSurfaceMarker) {
    bool made = CreateSurface(request.blankWidth, request.blankHeight, request.depth, request.bMask != 0);
    return made ? eSurfaceLoad::Ok : eSurfaceLoad::CannotRead;
  }
  cWholeFile file;
  switch (ReadBitmapFile(request.name, file)) {
    case eReadResult::Ok:
      return TryLoadFromMemory(request, file.data.get(), file.size);
    case eReadResult::OutOfMemory:
      return eSurfaceLoad::OutOfMemory;
    case eReadResult::Missing:
    case eReadResult::TooLarge:
      break;
  }
  return eSurfaceLoad::CannotRead;
}

bool cSurface::LoadSimple(const std::string& name, int depth, int bMask, int cellWidth, int cellHeight,
                          int blankWidth, int blankHeight, int divisor) {
  cSurfaceSpec request;
  request.name = name;
  request.depth = depth;
  request.bMask = bMask;
  request.cellWidth = cellWidth;
  request.cellHeight = cellHeight;
  request.blankWidth = blankWidth;
  request.blankHeight = blankHeight;
  request.divisor = divisor;
  return Load(request);
}

eSurfaceLoad cSurface::TryLoadFromMemory(const cSurfaceSpec& given, const uint8_t* data, size_t size) {
  cSurfaceSpec request = given;
  request.divisor = std::max(request.divisor, 1);
  Free();
  cBitmapHeader header;
  if (!ParseBitmapHeader(data, size, header)) return eSurfaceLoad::CannotRead;
  if (!cPixelImage::IsSupportedDepth(header.bitCount)) return eSurfaceLoad::UnsupportedDepth;
  if (!LoadPixels(request, header, data, size)) {
    Free();
    return eSurfaceLoad::CannotRead;
  }
  MirrorCells();
  if (request.bMask) BuildMask();
  if (Depth() != 8) BlackenTransparent();
  return eSurfaceLoad::Ok;
}

bool cSurface::CopyRegionOf(const cSurface& source, int sx, int sy, int w, int h) {
  if (!source.IsLoaded() || !CreateSurface(w, h, source.Depth(), source.HasMask())) return false;
  // Parts beyond the source stay as nothing: a black image under a white
  // mask, which the masked copy leaves alone.
  for (int y = 0; y < h; ++y) {
    std::memset(m_image.Row(y), 0, static_cast<size_t>(m_image.Stride()));
    if (HasMask()) std::memset(m_mask.Row(y), 0xFF, static_cast<size_t>(m_mask.Stride()));
  }
  BlitImage(m_image, 0, 0, w, h, source.m_image, sx, sy, eRop::Copy);
  if (HasMask()) BlitImage(m_mask, 0, 0, w, h, source.m_mask, sx, sy, eRop::Copy);
  return true;
}

// Creates the surface and fills it from the file's rows, which stand
// bottom-up and padded to 4 bytes. False when the header's size doesn't fit
// the file.
bool cSurface::LoadPixels(const cSurfaceSpec& request, const cBitmapHeader& header, const uint8_t* data, size_t size) {
  const int depth = header.bitCount;
  if (header.width < 1 || header.height < 1 || header.width > cPixelImage::kMaxSide ||
      header.height > cPixelImage::kMaxSide) {
    return false;
  }
  const size_t fileStride = static_cast<size_t>(cPixelImage::RowBytes(header.width, depth));
  if (header.dataOffset > size || fileStride * static_cast<size_t>(header.height) > size - header.dataOffset) {
    return false;
  }
  const int div = request.divisor;
  const int width = ScaledSide(header.width, request.alignX, div);
  const int height = ScaledSide(header.height, request.alignY, div);
  if (!CreateSurface(width, height, depth, request.bMask != 0, request.cellWidth / div, request.cellHeight / div)) {
    return false;
  }
  const uint8_t* pixels = data + header.dataOffset;
  auto fileRow = [&](int topDownRow) {
    return pixels + static_cast<size_t>(header.height - 1 - topDownRow) * fileStride;
  };
  if (div == 1) {
    for (int y = 0; y < height; ++y) std::memcpy(m_image.Row(y), fileRow(y), fileStride);
    return true;
  }
  const int bytesPerPixel = depth / 8;
  for (int y = 0; y < height; ++y) {
    const uint8_t* source = fileRow(y * div + div / 2);
    uint8_t* target = m_image.Row(y);
    for (int x = 0; x < width; ++x) {
      std::memcpy(target + x * bytesPerPixel, source + static_cast<size_t>(x * div + div / 2) * bytesPerPixel,
                  static_cast<size_t>(bytesPerPixel));
    }
  }
  return true;
}

void cSurface::MirrorCells() {
  const int cw = m_cellWidth;
  const int ch = m_cellHeight;
  if (cw <= 0 && ch <= 0) return;
  const int blockWidth = cw > 0 ? cw : Width();
  const int blockHeight = ch > 0 ? ch : Height();
  for (int y = 0; y + blockHeight <= Height(); y += blockHeight) {
    for (int x = 0; x + blockWidth <= Width(); x += blockWidth) {
      MirrorBlock(m_image, x, y, blockWidth, blockHeight, cw > 0, ch > 0);
    }
  }
}

void cSurface::BuildMask() {
  for (int y = 0; y < Height(); ++y) std::memcpy(m_mask.Row(y), m_image.Row(y), static_cast<size_t>(m_image.Stride()));
  if (Depth() == 8) {
    const uint8_t transparent = static_cast<uint8_t>(TransparentIndex());
    const uint8_t solid = static_cast<uint8_t>(SolidIndex());
    for (int y = 0; y < Height(); ++y) {
      uint8_t* p = m_mask.Row(y);
      for (int x = 0; x < Width(); ++x) p[x] = p[x] == transparent ? 255 : solid;
    }
    return;
  }
  const cRgbQuad key = QuadOf(TransparentColour());
  const int size = m_mask.BytesPerPixel();
  for (int y = 0; y < Height(); ++y) {
    uint8_t* p = m_mask.Row(y);
    for (int x = 0; x < Width(); ++x, p += size) {
      const uint8_t value = (p[0] == key.blue && p[1] == key.green && p[2] == key.red) ? 255 : 0;
      std::memset(p, value, 3);
      if (size == 4) p[3] = 0;
    }
  }
}

void cSurface::BlackenTransparent() {
  const cRgbQuad key = QuadOf(TransparentColour());
  const int size = m_image.BytesPerPixel();
  for (int y = 0; y < Height(); ++y) {
    uint8_t* p = m_image.Row(y);
    for (int x = 0; x < Width(); ++x, p += size) {
      if (p[0] == key.blue && p[1] == key.green && p[2] == key.red) std::memset(p, 0, static_cast<size_t>(size));
    }
  }
}

bool cSurface::CreateSurface(int width, int height, int depth, bool bMask, int cellWidth, int cellHeight) {
  Free();
  const cColourTable table = SurfaceColourTable();
  if (!m_image.Create(width, height, depth, table)) return false;
  if (bMask && !m_mask.Create(width, height, depth, table)) {
    Free();
    return false;
  }
  m_cellWidth = cellWidth;
  m_cellHeight = cellHeight;
  return true;
}

void cSurface::Free() {
  m_image.Reset();
  m_mask.Reset();
  m_cellWidth = 0;
  m_cellHeight = 0;
}

}  // namespace velmora
