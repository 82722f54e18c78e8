#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/WholeFile.h"
#include "graphics/Colour.h"

namespace velmora {

class cPixelImage;

// The fields of a Windows bitmap's two headers that the editor uses. Only
// the 14-byte file header and the first 40 bytes of the information header
// are looked at, whatever size the information header says it has.
struct cBitmapHeader {
  uint32_t dataOffset = 0;
  int32_t width = 0;
  int32_t height = 0;
  uint16_t bitCount = 0;
  uint32_t colorsUsed = 0;
};

inline constexpr size_t kBitmapFileHeaderSize = 14;
inline constexpr size_t kBitmapInfoHeaderSize = 40;
inline constexpr size_t kBitmapHeadersSize = kBitmapFileHeaderSize + kBitmapInfoHeaderSize;

// False when fewer than the two headers' bytes are given.
bool ParseBitmapHeader(const uint8_t* data, size_t size, cBitmapHeader& header);

// Bitmaps are read whole, so a damaged header can never make the reader ask
// for more memory than the file itself holds.
eReadResult ReadBitmapFile(const std::string& stored, cWholeFile& out);

// Reads only the colour table: 256 entries for 8 bits, 16 for 4, 2 for 1,
// or the colours-used count when that is set; entries beyond 256 are not
// read. Other depths read nothing and succeed. False when the file is
// missing or too short for its table.
bool ReadBitmapPalette(cColourTable& out, const std::string& stored);

// The bytes of a bitmap file with a 40-byte information header and rows
// bottom-up. `table` is written as the colour table of an 8-bit image.
std::vector<uint8_t> EncodeBitmap(const cPixelImage& image, const cColourTable& table);
bool WriteBitmap(const std::string& stored, const cPixelImage& image, const cColourTable& table);

}  // namespace velmora
