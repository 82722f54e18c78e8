#include "graphics/BitmapFile.h"

#include <cstring>

#include "platform/ByteOrder.h"
#include "graphics/PixelImage.h"

namespace velmora {
namespace {

// No bitmap a project could use comes near this; larger files are refused
// before anything is allocated for them.
constexpr long long kMaxBitmapFileBytes = 256LL << 20;

int PaletteEntries(const cBitmapHeader& header) {
  if (header.colorsUsed != 0) return header.colorsUsed > 256 ? 256 : static_cast<int>(header.colorsUsed);
  switch (header.bitCount) {
    case 8: return 256;
    case 4: return 16;
    case 1: return 2;
    default: return 0;
  }
}

}  // namespace

bool ParseBitmapHeader(const uint8_t* data, size_t size, cBitmapHeader& header) {
  if (size < kBitmapHeadersSize) return false;
  const uint8_t* info = data + kBitmapFileHeaderSize;
  header.dataOffset = ReadLittle(data + 10, 4);
  header.width = static_cast<int32_t>(ReadLittle(info + 4, 4));
  header.height = static_cast<int32_t>(ReadLittle(info + 8, 4));
  header.bitCount = static_cast<uint16_t>(ReadLittle(info + 14, 2));
  header.colorsUsed = ReadLittle(info + 32, 4);
  return true;
}

eReadResult ReadBitmapFile(const std::string& stored, cWholeFile& out) {
  return ReadWholeFile(stored, out, kMaxBitmapFileBytes);
}

bool ReadBitmapPalette(cColourTable& out, const std::string& stored) {
  cWholeFile file;
  if (ReadBitmapFile(stored, file) != eReadResult::Ok) return false;
  cBitmapHeader header;
  if (!ParseBitmapHeader(file.data.get(), file.size, header)) return false;
  const size_t entries = static_cast<size_t>(PaletteEntries(header));
  if (kBitmapHeadersSize + entries * 4 > file.size) return false;
  std::memcpy(out.data(), file.data.get() + kBitmapHeadersSize, entries * 4);
  return true;
}

std::vector<uint8_t> EncodeBitmap(const cPixelImage& image, const cColourTable& table) {
  const uint32_t tableBytes = image.Depth() == 8 ? 256 * 4 : 0;
  const uint32_t offset = static_cast<uint32_t>(kBitmapHeadersSize) + tableBytes;
  const uint32_t dataBytes = static_cast<uint32_t>(image.Stride()) * static_cast<uint32_t>(image.Height());
  std::vector<uint8_t> out;
  out.reserve(offset + dataBytes);
  out.push_back('B');
  out.push_back('M');
  AppendLittle(out, offset + dataBytes, 4);
  AppendLittle(out, 0, 4);
  AppendLittle(out, offset, 4);
  AppendLittle(out, static_cast<uint32_t>(kBitmapInfoHeaderSize), 4);
  AppendLittle(out, static_cast<uint32_t>(image.Width()), 4);
  AppendLittle(out, static_cast<uint32_t>(image.Height()), 4);
  AppendLittle(out, 1, 2);
  AppendLittle(out, static_cast<uint32_t>(image.Depth()), 2);
  AppendLittle(out, 0, 4);  // no compression
  AppendLittle(out, dataBytes, 4);
  AppendLittle(out, 2835, 4);  // 72 dots an inch
  AppendLittle(out, 2835, 4);
  AppendLittle(out, image.Depth() == 8 ? 256 : 0, 4);
  AppendLittle(out, 0, 4);
  if (tableBytes != 0) {
    for (const cRgbQuad& q : table) out.insert(out.end(), {q.blue, q.green, q.red, q.reserved});
  }
  for (int y = image.Height() - 1; y >= 0; --y) out.insert(out.end(), image.Row(y), image.Row(y) + image.Stride());
  return out;
}

bool WriteBitmap(const std::string& stored, const cPixelImage& image, const cColourTable& table) {
  return WriteWholeFile(stored, EncodeBitmap(image, table));
}

}  // namespace velmora
