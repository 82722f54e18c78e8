#include <string>

#include "graphics/SamplePalette.h"
#include "graphics/SampleSheets.h"

namespace velmora {
namespace {

// Numbers 1..119 stand 15 to a column, as the stage view reads its sheets.
constexpr int kNumbersPerColumn = 15;
constexpr int kLastNumber = 119;
constexpr int kCell = 32;

void CentredText(cIndexedPainter& painter, int cx, int y, const std::string& text, int index) {
  painter.Text(cx - cIndexedPainter::TextWidth(text) / 2, y, text, index);
}

// A text with a one-dot black outline, readable on any colour.
void OutlinedText(cIndexedPainter& painter, int cx, int y, const std::string& text, int index) {
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) CentredText(painter, cx + dx, y + dy, text, kSampleInk);
  }
  CentredText(painter, cx, y, text, index);
}

void DrawBlock(cIndexedPainter& p, int x, int y, int n) {
  const int hue = n % kSampleHueCount;
  p.Rect(x, y, kCell, kCell, SampleHue(hue, 7));
  p.Rect(x, y, kCell, 2, SampleHue(hue, 12));
  p.Rect(x, y, 2, kCell, SampleHue(hue, 12));
  p.Rect(x, y + kCell - 2, kCell, 2, SampleHue(hue, 3));
  p.Rect(x + kCell - 2, y, 2, kCell, SampleHue(hue, 3));
  switch ((n / kSampleHueCount) % 4) {
    case 1:  // bricks
      for (int row = 8; row < kCell; row += 8) p.Rect(x + 2, y + row, kCell - 4, 1, SampleHue(hue, 3));
      for (int row = 0; row < 4; ++row) p.Rect(x + (row % 2 ? 8 : 20), y + row * 8 + 2, 1, 6, SampleHue(hue, 3));
      break;
    case 2:  // studs
      for (int i = 0; i < 4; ++i) p.Disc(x + 8 + (i % 2) * 16, y + 8 + (i / 2) * 16, 2, SampleHue(hue, 12));
      break;
    case 3:  // crossed
      p.Line(x + 3, y + 3, x + kCell - 4, y + kCell - 4, SampleHue(hue, 3));
      p.Line(x + kCell - 4, y + 3, x + 3, y + kCell - 4, SampleHue(hue, 3));
      break;
    default:
      break;
  }
  OutlinedText(p, x + 16, y + 13, std::to_string(n), kSampleWhite);
}

enum eItemShape { kCoin, kGem, kHeart, kBox, kShapeCount };

void DrawItemShape(cIndexedPainter& p, int cx, int cy, int r, int n, bool glint) {
  const int hue = n % kSampleHueCount;
  switch (n % kShapeCount) {
    case kCoin:
      p.Disc(cx, cy, r, kSampleInk);
      p.Disc(cx, cy, r - 1, SampleHue(hue, 9));
      p.Ring(cx, cy, r * 2 / 3, SampleHue(hue, 5));
      break;
    case kGem:
      for (int d = r; d >= 0; --d) {
        const int index = d == r ? kSampleInk : SampleHue(hue, 6 + (r - d) * 6 / (r + 1));
        p.Line(cx - d, cy, cx, cy - d, index);
        p.Line(cx, cy - d, cx + d, cy, index);
        p.Line(cx + d, cy, cx, cy + d, index);
        p.Line(cx, cy + d, cx - d, cy, index);
      }
      break;
    case kHeart:
      p.Disc(cx - r / 2, cy - r / 3, r / 2 + 1, SampleHue(hue, 8));
      p.Disc(cx + r / 2, cy - r / 3, r / 2 + 1, SampleHue(hue, 8));
      for (int row = 0; row <= r; ++row) {
        p.Rect(cx - r + row, cy - r / 3 + row, 2 * (r - row) + 1, 1, SampleHue(hue, 8));
      }
      break;
    default:
      p.Rect(cx - r, cy - r, 2 * r + 1, 2 * r + 1, SampleHue(hue, 6));
      p.Frame(cx - r, cy - r, 2 * r + 1, 2 * r + 1, kSampleInk);
      p.Rect(cx - r, cy, 2 * r + 1, 1, kSampleInk);
      p.Rect(cx, cy - r, 1, 2 * r + 1, kSampleInk);
      break;
  }
  if (glint) p.Disc(cx - r / 2, cy - r / 2, r > 6 ? 2 : 1, kSampleWhite);
}

void DrawShot(cIndexedPainter& p, int x, int y, int n, bool second) {
  const int hue = n % kSampleHueCount;
  // The tail points right, so that the mirrored sheet points the other way.
  p.Rect(x + 9, y + 7, 6, 2, SampleHue(hue, 12));
  p.Disc(x + 7, y + 7, second ? 4 : 5, SampleHue(hue, second ? 11 : 8));
  p.Disc(x + 6, y + 6, 1, kSampleWhite);
}

}  // namespace

void DrawCharacter(cIndexedPainter& p, int x, int y, int number, int frame, bool facingRight) {
  const int hue = number % kSampleHueCount;
  const int step = (frame % 4 == 1) ? 2 : (frame % 4 == 3) ? -2 : 0;
  const int bob = frame % 2;
  // Columns of the face count from the side the character looks to.
  auto faceX = [&](int column, int width) { return facingRight ? x + kCell - column - width : x + column; };
  p.Rect(x + 9 + step, y + 27, 6, 4, kSampleInk);
  p.Rect(x + 18 - step, y + 27, 6, 4, kSampleInk);
  p.Disc(x + 16, y + 16 + bob, 11, kSampleInk);
  p.Disc(x + 16, y + 16 + bob, 10, SampleHue(hue, 8));
  p.Disc(faceX(12, 1), y + 10 + bob, 5, SampleHue(hue, 13));
  p.Disc(faceX(9, 1), y + 12 + bob, 3, kSampleWhite);
  p.Rect(faceX(8, 2), y + 12 + bob, 2, 2, kSampleInk);
  OutlinedText(p, faceX(18, 1), y + 18 + bob, std::to_string(number), kSampleWhite);
}

void DrawBlockSheet(cIndexedPainter& p, int) {
  for (int n = 1; n <= kLastNumber; ++n) {
    DrawBlock(p, (n / kNumbersPerColumn) * kCell, (n % kNumbersPerColumn) * kCell, n);
  }
}

void DrawCharaSheet(cIndexedPainter& p, int sheet) {
  constexpr int kFrames = 20;
  for (int row = 0; row < kNumbersPerColumn; ++row) {
    const int number = sheet * kNumbersPerColumn + row;
    if (number == 0) continue;
    for (int frame = 0; frame < kFrames; ++frame) DrawCharacter(p, frame * kCell, row * kCell, number, frame, false);
  }
}

void DrawItemSheet(cIndexedPainter& p, int) {
  for (int n = 1; n <= kLastNumber; ++n) {
    const int x = (n / kNumbersPerColumn) * 64;
    const int y = (n % kNumbersPerColumn) * kCell;
    for (int frame = 0; frame < 2; ++frame) {
      DrawItemShape(p, x + frame * kCell + 16, y + 14, 10, n, frame == 1);
      CentredText(p, x + frame * kCell + 16, y + 26, std::to_string(n), kSampleInk);
    }
  }
}

void DrawMiniItemSheet(cIndexedPainter& p, int) {
  for (int n = 1; n <= kLastNumber; ++n) {
    const int x = (n / kNumbersPerColumn) * kCell;
    const int y = (n % kNumbersPerColumn) * 16;
    for (int frame = 0; frame < 2; ++frame) DrawItemShape(p, x + frame * 16 + 8, y + 8, 6, n, frame == 1);
  }
}

void DrawShotSheet(cIndexedPainter& p, int) {
  constexpr int kShotsPerColumn = 30;
  for (int n = 1; n < 4 * kShotsPerColumn; ++n) {
    const int x = (n / kShotsPerColumn) * kCell;
    const int y = (n % kShotsPerColumn) * 16;
    DrawShot(p, x, y, n, false);
    DrawShot(p, x + 16, y, n, true);
  }
}

void DrawMarkSheet(cIndexedPainter& p, int) {
  for (int m = 1; m <= kLastNumber; ++m) {
    const int x = (m / kNumbersPerColumn) * kCell;
    const int y = (m % kNumbersPerColumn) * kCell;
    const std::string text = std::to_string(m);
    const int w = cIndexedPainter::TextWidth(text) + 4;
    p.Rect(x, y, w, 9, SampleHue(m % kSampleHueCount, 10));
    p.Frame(x, y, w, 9, kSampleInk);
    p.Text(x + 2, y + 2, text, kSampleInk);
  }
}

}  // namespace velmora
