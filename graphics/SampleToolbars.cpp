#include "graphics/SamplePalette.h"
#include "graphics/SampleSheets.h"

namespace velmora {
namespace {

constexpr int kIcon = 16;
constexpr int kFace = SampleGrey(11);  // the button face the strips are drawn on

void Face(cIndexedPainter& p, int image) { p.Rect(image * kIcon, 0, kIcon, kIcon, kFace); }

void Letter(cIndexedPainter& p, int image, const char* text, int hue) {
  Face(p, image);
  p.Rect(image * kIcon + 2, 2, 12, 12, SampleHue(hue, 8));
  p.Frame(image * kIcon + 2, 2, 12, 12, kSampleInk);
  p.Text(image * kIcon + 5, 4, text, kSampleWhite);
}

}  // namespace

void DrawPenToolbar(cIndexedPainter& p, int) {
  for (int i = 0; i < 5; ++i) Face(p, i);
  p.Line(3, 12, 11, 4, kSampleInk);  // pen
  p.Line(4, 12, 12, 4, SampleHue(8, 8));
  p.Line(kIcon + 2, 13, kIcon + 13, 2, kSampleInk);  // straight line
  p.Frame(2 * kIcon + 2, 3, 12, 10, kSampleInk);  // rectangle
  p.Rect(3 * kIcon + 3, 6, 9, 8, SampleHue(8, 9));  // bucket
  p.Frame(3 * kIcon + 3, 6, 9, 8, kSampleInk);
  p.Line(3 * kIcon + 11, 5, 3 * kIcon + 13, 9, SampleHue(8, 6));
  p.Text(4 * kIcon + 6, 5, "P", kSampleInk);  // parameters
}

void DrawPaletteEditToolbar(cIndexedPainter& p, int) {
  Letter(p, 0, "E", 4);
  Letter(p, 1, "M", 1);
}

void DrawPaletteToolbar(cIndexedPainter& p, int) {
  Letter(p, 0, "B", 1);
  Letter(p, 1, "C", 8);
  Letter(p, 2, "I", 2);
}

void DrawWorldPaletteToolbar(cIndexedPainter& p, int) {
  Face(p, 0);
  for (int i = 0; i < 4; ++i) p.Rect(2 + (i % 2) * 6, 2 + (i / 2) * 6, 6, 6, SampleHue(4 + i, 8));
  p.Frame(2, 2, 12, 12, kSampleInk);
  Face(p, 1);
  p.Rect(kIcon + 4, 2, 2, 12, kSampleInk);
  p.Rect(kIcon + 6, 2, 7, 6, SampleHue(0, 8));
}

void DrawTestPlayToolbar(cIndexedPainter& p, int) {
  Face(p, 0);
  for (int row = 0; row < 11; ++row) p.Rect(4, 3 + row, 1 + (row < 6 ? row : 10 - row), 1, SampleHue(4, 7));
  Face(p, 1);
  for (int row = 0; row < 11; ++row) p.Rect(kIcon + 4, 3 + row, 1 + (row < 6 ? row : 10 - row), 1, SampleHue(8, 8));
  p.Rect(kIcon + 11, 3, 2, 11, SampleHue(8, 8));
}

}  // namespace velmora
