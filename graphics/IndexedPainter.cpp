#include "graphics/IndexedPainter.h"

#include <array>

#include "graphics/LineWalk.h"

namespace velmora {
namespace {

// Each glyph is five rows of three dots, the high bit of a row on the left.
struct cGlyph {
  char c;
  std::array<uint8_t, 5> rows;
};
constexpr std::array<cGlyph, 39> kGlyphs = {{
    {'0', {7, 5, 5, 5, 7}}, {'1', {2, 6, 2, 2, 7}}, {'2', {7, 1, 7, 4, 7}}, {'3', {7, 1, 7, 1, 7}},
    {'4', {5, 5, 7, 1, 1}}, {'5', {7, 4, 7, 1, 7}}, {'6', {7, 4, 7, 5, 7}}, {'7', {7, 1, 2, 2, 2}},
    {'8', {7, 5, 7, 5, 7}}, {'9', {7, 5, 7, 1, 7}}, {'A', {2, 5, 7, 5, 5}}, {'B', {6, 5, 6, 5, 6}},
    {'C', {3, 4, 4, 4, 3}}, {'D', {6, 5, 5, 5, 6}}, {'E', {7, 4, 6, 4, 7}}, {'F', {7, 4, 6, 4, 4}},
    {'G', {3, 4, 5, 5, 3}}, {'H', {5, 5, 7, 5, 5}}, {'I', {7, 2, 2, 2, 7}}, {'J', {1, 1, 1, 5, 2}},
    {'K', {5, 5, 6, 5, 5}}, {'L', {4, 4, 4, 4, 7}}, {'M', {5, 7, 7, 5, 5}}, {'N', {6, 5, 5, 5, 5}},
    {'O', {2, 5, 5, 5, 2}}, {'P', {6, 5, 6, 4, 4}}, {'Q', {2, 5, 5, 6, 3}}, {'R', {6, 5, 6, 5, 5}},
    {'S', {3, 4, 2, 1, 6}}, {'T', {7, 2, 2, 2, 2}}, {'U', {5, 5, 5, 5, 7}}, {'V', {5, 5, 5, 5, 2}},
    {'W', {5, 5, 7, 7, 5}}, {'X', {5, 5, 2, 5, 5}}, {'Y', {5, 5, 2, 2, 2}}, {'Z', {7, 1, 2, 4, 7}},
    {'-', {0, 0, 7, 0, 0}}, {'+', {0, 2, 7, 2, 0}}, {' ', {0, 0, 0, 0, 0}},
}};

const cGlyph* FindGlyph(char c) {
  for (const cGlyph& glyph : kGlyphs) {
    if (glyph.c == c) return &glyph;
  }
  return nullptr;
}

}  // namespace

void cIndexedPainter::Dot(int x, int y, int index) {
  if (m_image.Contains(x, y)) *m_image.Pixel(x, y) = static_cast<uint8_t>(index);
}

void cIndexedPainter::Rect(int x, int y, int w, int h, int index) {
  cPixelValue value;
  value.bytes[0] = static_cast<uint8_t>(index);
  m_image.FillRect(x, y, w, h, value);
}

void cIndexedPainter::Frame(int x, int y, int w, int h, int index) {
  Rect(x, y, w, 1, index);
  Rect(x, y + h - 1, w, 1, index);
  Rect(x, y, 1, h, index);
  Rect(x + w - 1, y, 1, h, index);
}

void cIndexedPainter::Disc(int cx, int cy, int radius, int index) {
  for (int dy = -radius; dy <= radius; ++dy) {
    for (int dx = -radius; dx <= radius; ++dx) {
      if (dx * dx + dy * dy <= radius * radius + radius) Dot(cx + dx, cy + dy, index);
    }
  }
}

void cIndexedPainter::Ring(int cx, int cy, int radius, int index) {
  const int outer = radius * radius + radius;
  const int inner = (radius - 1) * (radius - 1) + (radius - 1);
  for (int dy = -radius; dy <= radius; ++dy) {
    for (int dx = -radius; dx <= radius; ++dx) {
      const int d = dx * dx + dy * dy;
      if (d <= outer && d > inner) Dot(cx + dx, cy + dy, index);
    }
  }
}

void cIndexedPainter::Line(int x1, int y1, int x2, int y2, int index) {
  WalkLine(x1, y1, x2, y2, true, [&](int x, int y, int) { Dot(x, y, index); });
}

void cIndexedPainter::Text(int x, int y, const std::string& text, int index, int scale) {
  for (char c : text) {
    if (const cGlyph* glyph = FindGlyph(c)) {
      for (int row = 0; row < 5; ++row) {
        for (int col = 0; col < 3; ++col) {
          const bool on = glyph->rows[static_cast<size_t>(row)] & (4 >> col);
          if (on) Rect(x + col * scale, y + row * scale, scale, scale, index);
        }
      }
    }
    x += 4 * scale;
  }
}

int cIndexedPainter::TextWidth(const std::string& text, int scale) {
  return text.empty() ? 0 : static_cast<int>(text.size()) * 4 * scale - scale;
}

}  // namespace velmora
