#pragma once
#include <array>
#include <cstddef>
#include <cstdint>

namespace velmora {

// Colours travel as 0x00BBGGRR, the byte order the project's records and
// the drawing calls were written against; red is the lowest byte.
using cColourRef = uint32_t;

constexpr cColourRef Rgb(uint8_t r, uint8_t g, uint8_t b) {
  return static_cast<cColourRef>(r) | (static_cast<cColourRef>(g) << 8) | (static_cast<cColourRef>(b) << 16);
}
constexpr uint8_t RedOf(cColourRef c) { return static_cast<uint8_t>(c); }
constexpr uint8_t GreenOf(cColourRef c) { return static_cast<uint8_t>(c >> 8); }
constexpr uint8_t BlueOf(cColourRef c) { return static_cast<uint8_t>(c >> 16); }

// One colour table entry as a bitmap file stores it.
struct cRgbQuad {
  uint8_t blue = 0;
  uint8_t green = 0;
  uint8_t red = 0;
  uint8_t reserved = 0;
  bool operator==(const cRgbQuad&) const = default;
};

constexpr cRgbQuad QuadOf(cColourRef c) { return cRgbQuad{BlueOf(c), GreenOf(c), RedOf(c), 0}; }
constexpr cColourRef ColourOf(const cRgbQuad& q) { return Rgb(q.red, q.green, q.blue); }
constexpr bool SameColour(const cRgbQuad& a, const cRgbQuad& b) {
  return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

using cColourTable = std::array<cRgbQuad, 256>;

// The closest entry by squared distance over red, green and blue; the first
// of equally close entries wins, so duplicated colours resolve to the lowest
// index.
int NearestIndex(const cColourTable& table, cColourRef colour);

}  // namespace velmora
