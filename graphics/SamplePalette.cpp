#include "graphics/SamplePalette.h"

#include <array>
#include <cmath>

namespace velmora {
namespace {

constexpr std::array<cColourRef, 9> kSystemColours = {
    Rgb(128, 0, 0),   Rgb(0, 128, 0),     Rgb(128, 128, 0),   Rgb(0, 0, 128),     Rgb(128, 0, 128),
    Rgb(0, 128, 128), Rgb(192, 192, 192), Rgb(192, 220, 192), Rgb(166, 202, 240),
};
constexpr std::array<cColourRef, 6> kLineColours = {
    Rgb(72, 40, 16), Rgb(16, 32, 80), Rgb(16, 64, 24), Rgb(88, 16, 16), Rgb(48, 48, 48), Rgb(0, 0, 0),
};
constexpr std::array<int, kSampleHueCount> kHueDegrees = {0, 28, 52, 85, 120, 160, 185, 210, 235, 275, 320};
constexpr std::array<cColourRef, 16> kBrightColours = {
    Rgb(64, 64, 64),    Rgb(96, 96, 96),   Rgb(224, 224, 224), Rgb(255, 128, 0),
    Rgb(128, 64, 0),    Rgb(255, 251, 240), Rgb(160, 160, 164), Rgb(128, 128, 128),
    Rgb(255, 0, 0),     Rgb(0, 255, 0),    Rgb(255, 255, 0),   Rgb(0, 0, 255),
    Rgb(255, 0, 255),   Rgb(0, 255, 255),  Rgb(255, 160, 192), Rgb(255, 255, 255),
};

uint8_t Channel(double v) { return static_cast<uint8_t>(std::lround(std::fmin(std::fmax(v, 0.0), 1.0) * 255.0)); }

// Full colour of a hue at the given saturation.
void HueColour(double degrees, double saturation, double out[3]) {
  const double h = std::fmod(degrees, 360.0) / 60.0;
  const double x = 1.0 - std::fabs(std::fmod(h, 2.0) - 1.0);
  const double rgb[6][3] = {{1, x, 0}, {x, 1, 0}, {0, 1, x}, {0, x, 1}, {x, 0, 1}, {1, 0, x}};
  const int sector = static_cast<int>(h) % 6;
  for (int i = 0; i < 3; ++i) out[i] = 1.0 - saturation + saturation * rgb[sector][i];
}

// Shades 0..9 darken the full colour, 10..15 pale it towards white.
cRgbQuad Shade(double degrees, int shade) {
  double c[3];
  HueColour(degrees, 1.0, c);
  for (double& v : c) {
    if (shade < 10) v *= (shade + 1) / 10.0;
    else v += (1.0 - v) * (shade - 9) / 7.0;
  }
  return cRgbQuad{Channel(c[2]), Channel(c[1]), Channel(c[0]), 0};
}

}  // namespace

cColourTable SamplePalette() {
  cColourTable table{};
  for (size_t i = 0; i < kSystemColours.size(); ++i) table[1 + i] = QuadOf(kSystemColours[i]);
  for (size_t i = 0; i < kLineColours.size(); ++i) table[10 + i] = QuadOf(kLineColours[i]);
  for (int level = 0; level < 16; ++level) {
    const uint8_t v = static_cast<uint8_t>(16 + level * 239 / 15);
    table[static_cast<size_t>(SampleGrey(level))] = cRgbQuad{v, v, v, 0};
  }
  for (int hue = 0; hue < kSampleHueCount; ++hue) {
    for (int shade = 0; shade < kSampleShadeCount; ++shade) {
      table[static_cast<size_t>(SampleHue(hue, shade))] = Shade(kHueDegrees[static_cast<size_t>(hue)], shade);
    }
  }
  for (int i = 0; i < 16; ++i) {
    double c[3];
    HueColour(i * 22.5, 1.0, c);
    table[static_cast<size_t>(208 + i)] = cRgbQuad{Channel(c[2]), Channel(c[1]), Channel(c[0]), 0};
    HueColour(i * 22.5, 0.35, c);
    table[static_cast<size_t>(224 + i)] = cRgbQuad{Channel(c[2]), Channel(c[1]), Channel(c[0]), 0};
  }
  for (size_t i = 0; i < kBrightColours.size(); ++i) table[240 + i] = QuadOf(kBrightColours[i]);
  return table;
}

}  // namespace velmora
