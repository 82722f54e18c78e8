#include <array>
#include <cstdarg>
#include <cstdio>

#include "graphics/LineWalk.h"
#include "graphics/Raster.h"
#include "graphics/Surface.h"

namespace velmora {
namespace {

// On and off runs of each pen style, in pixels, by style number.
struct cDashPattern {
  std::array<int, 6> runs;
  int count;  // 0: solid
};
constexpr std::array<cDashPattern, 5> kDashPatterns = {{
    {{}, 0},                        // solid
    {{18, 6}, 2},                   // dash
    {{3, 3}, 2},                    // dot
    {{9, 6, 3, 6}, 4},              // dash dot
    {{9, 3, 3, 3, 3, 3}, 6},        // dash dot dot
}};

constexpr cColourRef kWhite = Rgb(255, 255, 255);
constexpr int kTextLineStep = 20;

// Whether the n-th pixel of a line falls on a dash of the pattern.
bool OnDash(const cDashPattern& pattern, int n) {
  if (pattern.count == 0) return true;
  int period = 0;
  for (int i = 0; i < pattern.count; ++i) period += pattern.runs[static_cast<size_t>(i)];
  int position = n % period;
  for (int i = 0; i < pattern.count; ++i) {
    position -= pattern.runs[static_cast<size_t>(i)];
    if (position < 0) return i % 2 == 0;
  }
  return true;
}

}  // namespace

void cSurface::Blt(int x, int y, int w, int h, const cSurface& source, int sx, int sy, bool bOpaque) {
  if (source.HasMask() && !bOpaque) {
    BlitMasked(m_image, x, y, w, h, source.m_image, source.m_mask, sx, sy);
    return;
  }
  BlitImage(m_image, x, y, w, h, source.m_image, sx, sy, eRop::Copy);
}

void cSurface::StretchBltFrom(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int sw, int sh,
                              bool bOpaque) {
  if (source.HasMask() && !bOpaque) {
    StretchImage(m_image, x, y, w, h, source.m_mask, sx, sy, sw, sh, eRop::And);
    StretchImage(m_image, x, y, w, h, source.m_image, sx, sy, sw, sh, eRop::Or);
    return;
  }
  StretchImage(m_image, x, y, w, h, source.m_image, sx, sy, sw, sh, eRop::Copy);
}

void cSurface::Fill(cColourRef colour) { FillRect(0, 0, Width(), Height(), colour); }

void cSurface::FillRect(int x, int y, int w, int h, cColourRef colour) {
  if (IsLoaded()) m_image.FillRect(x, y, w, h, m_image.Encode(colour));
}

void cSurface::FillRgb(const uint8_t rgb[3]) { Fill(Rgb(rgb[0], rgb[1], rgb[2])); }

void cSurface::SetPen(int style, int width, cColourRef colour) {
  m_previousPen = m_pen;
  m_pen = cPen{style, width, colour};
  if (style == kPenDot) m_transparentBackground = true;
}

void cSurface::FreePen() { m_pen = m_previousPen; }

void cSurface::Line(int x1, int y1, int x2, int y2) {
  if (!IsLoaded() || m_pen.style < 0 || m_pen.style >= static_cast<int>(kDashPatterns.size())) return;
  const int width = std::max(m_pen.width, 1);
  // Wide pens draw solid whatever their style.
  const cDashPattern& pattern = kDashPatterns[width > 1 ? 0 : static_cast<size_t>(m_pen.style)];
  const cPixelValue ink = m_image.Encode(m_pen.colour);
  const cPixelValue paper = m_image.Encode(kWhite);
  const int half = (width - 1) / 2;
  WalkLine(x1, y1, x2, y2, false, [&](int x, int y, int n) {
    if (!OnDash(pattern, n)) {
      if (!m_transparentBackground) m_image.PutPixel(x, y, paper);
    } else if (width == 1) {
      m_image.PutPixel(x, y, ink);
    } else {
      m_image.FillRect(x - half, y - half, width, width, ink);
    }
  });
}

void cSurface::Box(int x, int y, int w, int h) {
  const int right = x + w - 1;
  const int bottom = y + h - 1;
  Line(x, y, right, y);
  Line(right, y, right, bottom);
  Line(right, bottom, x, bottom);
  Line(x, bottom, x, y);
}

// The lines are what a solid pen of one dot draws, end points left out,
// laid down as thin rectangles rather than point by point: a large view
// has a great many of them.
void cSurface::Grid(int x, int y, int w, int h, int stepY, int stepX, cColourRef colour) {
  if (stepX <= 0 || stepY <= 0 || !IsLoaded()) return;
  const cPixelValue ink = m_image.Encode(colour);
  for (int i = 0; i <= w / stepX; ++i) m_image.FillRect(x + i * stepX, y, 1, h, ink);
  m_image.FillRect(x + w - 1, y, 1, h, ink);
  for (int j = 0; j <= h / stepY; ++j) m_image.FillRect(x, y + j * stepY, w, 1, ink);
  m_image.FillRect(x, y + h - 1, w, 1, ink);
}

void cSurface::SetFont(const std::string& name, int width, int height) { m_font = cFontChoice{name, width, height}; }

void cSurface::DrawText(int x, int y, const std::string& text, cColourRef colour, int mode) {
  m_transparentBackground = mode == kTextTransparent;
  cTextRenderer* renderer = TextRenderer();
  if (!renderer || !IsLoaded()) return;
  const cFontChoice* font = m_font ? &*m_font : nullptr;
  size_t start = 0;
  for (int line = 0;; ++line) {
    const size_t end = text.find('\n', start);
    renderer->DrawLine(m_image, x, y + line * kTextLineStep, text.substr(start, end - start), colour,
                       m_transparentBackground, font);
    if (end == std::string::npos) break;
    start = end + 1;
  }
}

void cSurface::DrawFormat(int x, int y, const char* format, ...) {
  // Lines on a surface are short; longer text is cut, never overrun.
  char text[1024];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  DrawText(x, y, text, kWhite, kTextTransparent);
}

}  // namespace velmora
