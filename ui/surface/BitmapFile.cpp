#include "ui/surface/BitmapFile.h"

#include <cstdio>
#include <cstring>
#include <new>

#include "platform/FileSystem.h"
#include "ui/surface/PixelImage.h"

namespace velmora {
namespace {

// No bitmap a project could use comes near this; larger files are refused
// before anything is allocated for them.
constexpr long long kMaxBitmapFileBytes = 256LL << 20;

uint16_t Le16(const uint8_t* p) { return static_cast<uint16_t>(p[0] | (p[1] << 8)); }
uint32_t Le32(const uint8_t* p) {
  return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8) | (static_cast<uint32_t>(p[2]) << 16) |
         (static_cast<uint32_t>(p[3]) << 24);
}

void Put16(std::vector<uint8_t>& out, uint16_t v) {
  out.push_back(static_cast<uint8_t>(v));
  out.push_back(static_cast<uint8_t>(v >> 8));
}
void Put32(std::vector<uint8_t>& out, uint32_t v) {
  for (int shift = 0; shift < 32; shift += 8) out.push_back(static_cast<uint8_t>(v >> shift));
}

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
  header.dataOffset = Le32(data + 10);
  header.width = static_cast<int32_t>(Le32(info + 4));
  header.height = static_cast<int32_t>(Le32(info + 8));
  header.bitCount = Le16(info + 14);
  header.colorsUsed = Le32(info + 32);
  return true;
}

eReadResult ReadWholeFile(const std::string& stored, cFileBytes& out) {
  out = cFileBytes{};
  std::FILE* file = OpenFile(stored, "rb");
  if (!file) return eReadResult::Missing;
  eReadResult result = eReadResult::Ok;
  long long size = -1;
  if (std::fseek(file, 0, SEEK_END) == 0) size = std::ftell(file);
  if (size < 0 || std::fseek(file, 0, SEEK_SET) != 0) {
    result = eReadResult::Missing;
  } else if (size > kMaxBitmapFileBytes) {
    result = eReadResult::TooLarge;
  } else {
    out.data.reset(new (std::nothrow) uint8_t[static_cast<size_t>(size) + 1]);
    if (!out.data) result = eReadResult::OutOfMemory;
    else out.size = std::fread(out.data.get(), 1, static_cast<size_t>(size), file);
  }
  std::fclose(file);
  return result;
}

bool ReadBitmapPalette(cColourTable& out, const std::string& stored) {
  cFileBytes file;
  if (ReadWholeFile(stored, file) != eReadResult::Ok) return false;
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
  Put32(out, offset + dataBytes);
  Put32(out, 0);
  Put32(out, offset);
  Put32(out, static_cast<uint32_t>(kBitmapInfoHeaderSize));
  Put32(out, static_cast<uint32_t>(image.Width()));
  Put32(out, static_cast<uint32_t>(image.Height()));
  Put16(out, 1);
  Put16(out, static_cast<uint16_t>(image.Depth()));
  Put32(out, 0);  // no compression
  Put32(out, dataBytes);
  Put32(out, 2835);  // 72 dots an inch
  Put32(out, 2835);
  Put32(out, image.Depth() == 8 ? 256 : 0);
  Put32(out, 0);
  if (tableBytes != 0) {
    for (const cRgbQuad& q : table) out.insert(out.end(), {q.blue, q.green, q.red, q.reserved});
  }
  for (int y = image.Height() - 1; y >= 0; --y) out.insert(out.end(), image.Row(y), image.Row(y) + image.Stride());
  return out;
}

bool WriteBitmap(const std::string& stored, const cPixelImage& image, const cColourTable& table) {
  std::vector<uint8_t> bytes = EncodeBitmap(image, table);
  std::FILE* file = OpenFile(stored, "wb");
  if (!file) return false;
  bool ok = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && ok;
}

}  // namespace velmora
