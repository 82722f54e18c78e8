#include <string>

#include "graphics/SamplePalette.h"
#include "graphics/SampleSheets.h"

namespace velmora {
namespace {

constexpr int kCell = 32;
constexpr int kWidth = 640;
constexpr int kHeight = 480;

// Hues of the palette, by name, for the landscapes.
enum eHue { kRed = 0, kOrange = 1, kYellow = 2, kGreen = 4, kCyan = 6, kSky = 7, kBlue = 8, kPurple = 9 };

void SkyAndHills(cIndexedPainter& p, int skyHue, int hillHue) {
  for (int band = 0; band < 16; ++band) p.Rect(0, band * 20, kWidth, 20, SampleHue(skyHue, 15 - band / 3));
  for (int x = 0; x < kWidth; ++x) {
    const int far = 300 + ((x * 7) % 160 < 80 ? (x * 7) % 80 : 80 - (x * 7) % 80) / 2;
    p.Rect(x, far, 1, kHeight - far, SampleHue(hillHue, 5));
    const int nearTop = 370 + ((x * 3) % 240 < 120 ? (x * 3) % 120 : 120 - (x * 3) % 120) / 3;
    p.Rect(x, nearTop, 1, kHeight - nearTop, SampleHue(hillHue, 8));
  }
}

// Terrain of the world map, one kind per chip number modulo the count.
enum eTerrain { kGrass, kWater, kSand, kRoad, kForest, kMountain, kSnow, kLava, kBridge, kTown, kTerrainCount };

void DrawChip(cIndexedPainter& p, int x, int y, int chip) {
  const int variant = chip / kTerrainCount % 4;
  switch (chip % kTerrainCount) {
    case kGrass:
      p.Rect(x, y, kCell, kCell, SampleHue(kGreen, 7 + variant));
      for (int i = 0; i < 6; ++i) p.Rect(x + (i * 11) % 28 + 2, y + (i * 7) % 26 + 3, 1, 3, SampleHue(kGreen, 4));
      break;
    case kWater:
      p.Rect(x, y, kCell, kCell, SampleHue(kBlue, 8 + variant));
      for (int row = 6; row < kCell; row += 10) p.Rect(x + 4 + row % 7, y + row, 10, 1, SampleHue(kSky, 13));
      break;
    case kSand:
      p.Rect(x, y, kCell, kCell, SampleHue(kYellow, 11 + variant));
      for (int i = 0; i < 8; ++i) p.Rect(x + (i * 13) % 30, y + (i * 5) % 30, 1, 1, SampleHue(kOrange, 6));
      break;
    case kRoad:
      p.Rect(x, y, kCell, kCell, SampleHue(kGreen, 8));
      p.Rect(x + 8, y, 16, kCell, SampleHue(kOrange, 10 + variant));
      break;
    case kForest:
      p.Rect(x, y, kCell, kCell, SampleHue(kGreen, 6));
      p.Disc(x + 10, y + 12, 7, SampleHue(kGreen, 3 + variant));
      p.Disc(x + 22, y + 20, 7, SampleHue(kGreen, 3 + variant));
      break;
    case kMountain:
      p.Rect(x, y, kCell, kCell, SampleHue(kGreen, 8));
      for (int row = 0; row < 24; ++row) {
        p.Rect(x + 16 - row * 2 / 3, y + 4 + row, row * 4 / 3 + 1, 1, SampleGrey(6 + variant));
      }
      p.Rect(x + 14, y + 4, 5, 3, SampleGrey(15));
      break;
    case kSnow:
      p.Rect(x, y, kCell, kCell, SampleGrey(14 - variant));
      break;
    case kLava:
      p.Rect(x, y, kCell, kCell, SampleHue(kRed, 7 + variant));
      p.Disc(x + 11, y + 13, 4, SampleHue(kOrange, 12));
      p.Disc(x + 23, y + 22, 3, SampleHue(kYellow, 12));
      break;
    case kBridge:
      p.Rect(x, y, kCell, kCell, SampleHue(kBlue, 8));
      p.Rect(x, y + 8, kCell, 16, SampleHue(kOrange, 5 + variant));
      for (int col = 0; col < kCell; col += 6) p.Rect(x + col, y + 8, 1, 16, SampleHue(kOrange, 2));
      break;
    default:  // town
      p.Rect(x, y, kCell, kCell, SampleHue(kGreen, 8));
      p.Rect(x + 8, y + 14, 16, 12, SampleGrey(13));
      for (int row = 0; row < 8; ++row) p.Rect(x + 16 - row, y + 6 + row, 2 * row + 1, 1, SampleHue(kRed + variant, 7));
      p.Rect(x + 14, y + 19, 4, 7, SampleHue(kOrange, 3));
      break;
  }
}

void DrawBadge(cIndexedPainter& p, int x, int y, int hue, const std::string& text) {
  p.Disc(x + 16, y + 16, 12, kSampleInk);
  p.Disc(x + 16, y + 16, 11, SampleHue(hue, 9));
  const int scale = text.size() > 1 ? 2 : 3;
  p.Text(x + 16 - cIndexedPainter::TextWidth(text, scale) / 2, y + 16 - 5 * scale / 2, text, kSampleWhite, scale);
}

// Small things a character may wear or hold, by number.
void DrawAccessory(cIndexedPainter& p, int x, int y, int n) {
  const int hue = n % kSampleHueCount;
  switch (n % 4) {
    case 0:  // ring
      p.Ring(x + 16, y + 18, 8, SampleHue(hue, 9));
      p.Disc(x + 16, y + 10, 3, SampleHue(kCyan, 12));
      break;
    case 1:  // sword
      p.Rect(x + 15, y + 3, 3, 20, SampleGrey(13));
      p.Rect(x + 10, y + 22, 13, 3, SampleHue(hue, 6));
      p.Rect(x + 15, y + 25, 3, 5, SampleHue(kOrange, 4));
      break;
    case 2:  // hat
      p.Rect(x + 6, y + 20, 21, 4, SampleHue(hue, 6));
      p.Rect(x + 10, y + 8, 13, 12, SampleHue(hue, 8));
      p.Frame(x + 10, y + 8, 13, 12, kSampleInk);
      break;
    default:  // shield
      p.Disc(x + 16, y + 16, 11, kSampleInk);
      p.Disc(x + 16, y + 16, 10, SampleHue(hue, 7));
      p.Rect(x + 15, y + 8, 3, 17, SampleHue(kYellow, 12));
      p.Rect(x + 8, y + 15, 17, 3, SampleHue(kYellow, 12));
      break;
  }
}

}  // namespace

void DrawStageBackground(cIndexedPainter& p, int) { SkyAndHills(p, kSky, kGreen); }

void DrawWorldBackground(cIndexedPainter& p, int) {
  for (int band = 0; band < 24; ++band) p.Rect(0, band * 20, kWidth, 20, SampleHue(kBlue, 4 + band / 4));
  for (int i = 0; i < 5; ++i) p.Disc(70 + i * 130, 120 + (i % 2) * 220, 40 + (i * 17) % 30, SampleHue(kGreen, 7));
}

void DrawWorldChipSheet(cIndexedPainter& p, int) {
  constexpr int kChips = 75;
  for (int chip = 0; chip < kChips; ++chip) DrawChip(p, (chip % 5) * kCell, (chip / 5) * kCell, chip);
}

void DrawWorldEventSheet(cIndexedPainter& p, int) {
  constexpr int kRows = 20;
  for (int row = 0; row < kRows; ++row) {
    const int y = row * kCell;
    const int hue = row % kSampleHueCount;
    // Left: a flag with the row's number; right: the same pole without one.
    p.Rect(8, y + 4, 2, 26, kSampleInk);
    p.Rect(10, y + 4, 16, 12, SampleHue(hue, 8));
    p.Frame(10, y + 4, 16, 12, kSampleInk);
    p.Text(12, y + 7, std::to_string(row + 1), kSampleWhite);
    p.Rect(40, y + 4, 2, 26, kSampleInk);
    p.Disc(41, y + 6, 3, SampleHue(hue, 8));
  }
}

void DrawSymbolSheet(cIndexedPainter& p, int) {
  const std::string symbols = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-";
  for (int n = 1; n <= 119; ++n) {
    const int x = (n / 15) * kCell;
    const int y = (n % 15) * kCell;
    const size_t pick = static_cast<size_t>(n - 1) % symbols.size();
    const std::string text = n <= static_cast<int>(symbols.size()) ? symbols.substr(pick, 1) : std::to_string(n);
    DrawBadge(p, x, y, n % kSampleHueCount, text);
  }
}

void DrawAccessorySheet(cIndexedPainter& p, int) {
  for (int n = 1; n <= 119; ++n) DrawAccessory(p, (n / 15) * kCell, (n % 15) * kCell, n);
}

}  // namespace velmora
