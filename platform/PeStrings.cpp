#include "platform/PeStrings.h"

#include <optional>

namespace velmora {
namespace {

constexpr uint32_t kStringType = 6;  // RT_STRING
constexpr uint32_t kSubdirectoryBit = 0x80000000u;
constexpr uint32_t kNamedEntryBit = 0x80000000u;
constexpr int kStringsPerBlock = 16;

struct cSection {
  uint32_t virtualAddress;
  uint32_t rawSize;
  uint32_t rawOffset;
};

class cPeImage {
 public:
  explicit cPeImage(const cFileBytes& file) : m_file(file) {}

  // Finds the section table and the resource root; false when the headers
  // don't hold together.
  bool Open() {
    uint32_t header = 0;
    uint16_t sectionCount = 0, optionalSize = 0, magic = 0;
    if (!m_file.Holds(0, "MZ", 2) || !m_file.U32(0x3c, header) || !m_file.Holds(header, "PE\0\0", 4)) return false;
    const uint64_t coff = uint64_t{header} + 4, optional = coff + 20;
    if (!m_file.U16(coff + 2, sectionCount) || !m_file.U16(coff + 16, optionalSize) || !m_file.U16(optional, magic)) {
      return false;
    }
    if (magic != 0x10b && magic != 0x20b) return false;
    const uint64_t countAt = optional + (magic == 0x10b ? 92 : 108);
    uint32_t directoryCount = 0, resourceRva = 0;
    if (!m_file.U32(countAt, directoryCount) || directoryCount < 3 || !m_file.U32(countAt + 4 + 2 * 8, resourceRva)) {
      return false;
    }
    m_sectionTable = optional + optionalSize;
    m_sectionCount = sectionCount;
    const std::optional<uint64_t> root = FileOffset(resourceRva);
    if (!root) return false;
    m_root = *root;
    return true;
  }

  std::optional<uint64_t> FileOffset(uint32_t rva) const {
    for (uint32_t i = 0; i < m_sectionCount; ++i) {
      const uint64_t at = m_sectionTable + uint64_t{i} * 40;
      cSection s{};
      if (!m_file.U32(at + 12, s.virtualAddress) || !m_file.U32(at + 16, s.rawSize) ||
          !m_file.U32(at + 20, s.rawOffset)) {
        return std::nullopt;
      }
      if (rva >= s.virtualAddress && rva - s.virtualAddress < s.rawSize) {
        return uint64_t{s.rawOffset} + (rva - s.virtualAddress);
      }
    }
    return std::nullopt;
  }

  // The entry of a resource directory with numeric id `id`, or with
  // `id` empty the entry of the default language, else the first one.
  // Gives the entry's offset word.
  std::optional<uint32_t> Entry(uint64_t directory, std::optional<uint32_t> id) const {
    uint16_t named = 0, numbered = 0;
    if (!m_file.U16(directory + 12, named) || !m_file.U16(directory + 14, numbered)) return std::nullopt;
    std::optional<uint32_t> first;
    for (uint32_t i = 0; i < numbered; ++i) {
      const uint64_t at = directory + 16 + (uint64_t{named} + i) * 8;
      uint32_t name = 0, offset = 0;
      if (!m_file.U32(at, name) || !m_file.U32(at + 4, offset)) return std::nullopt;
      if (name & kNamedEntryBit) continue;
      if (name == id.value_or(kPeDefaultLanguage)) return offset;
      if (!first) first = offset;
    }
    return id ? std::nullopt : first;
  }

  std::optional<uint64_t> Subdirectory(std::optional<uint32_t> offset) const {
    if (!offset || !(*offset & kSubdirectoryBit)) return std::nullopt;
    return m_root + (*offset & ~kSubdirectoryBit);
  }

  uint64_t Root() const { return m_root; }

 private:
  const cFileBytes& m_file;
  uint64_t m_sectionTable = 0;
  uint32_t m_sectionCount = 0;
  uint64_t m_root = 0;
};

// A string block: sixteen counted UTF-16 strings, the empty ones just a zero count.
bool StringOfBlock(const cFileBytes& file, uint64_t at, uint32_t size, int index, std::u16string& out) {
  const uint64_t end = at + size;
  for (int i = 0; i <= index; ++i) {
    uint16_t length = 0;
    if (end - at < 2 || !file.U16(at, length)) return false;
    at += 2;
    if ((end - at) / 2 < length) return false;
    if (i == index) {
      out.resize(length);
      for (uint16_t c = 0; c < length; ++c) {
        uint16_t unit = 0;
        if (!file.U16(at + 2u * c, unit)) return false;
        out[c] = static_cast<char16_t>(unit);
      }
      return true;
    }
    at += 2u * length;
  }
  return false;
}

}  // namespace

bool PeStringResource(cFileBytes& file, uint16_t id, std::u16string& out) {
  out.clear();
  file.SetBigEndian(false);
  cPeImage image(file);
  if (!image.Open()) return false;
  const std::optional<uint64_t> blocks = image.Subdirectory(image.Entry(image.Root(), kStringType));
  if (!blocks) return false;
  const std::optional<uint64_t> languages = image.Subdirectory(image.Entry(*blocks, uint32_t{id} / kStringsPerBlock + 1));
  if (!languages) return false;
  const std::optional<uint32_t> leaf = image.Entry(*languages, std::nullopt);
  if (!leaf || (*leaf & kSubdirectoryBit)) return false;
  uint32_t dataRva = 0, dataSize = 0;
  if (!file.U32(image.Root() + *leaf, dataRva) || !file.U32(image.Root() + *leaf + 4, dataSize)) return false;
  const std::optional<uint64_t> data = image.FileOffset(dataRva);
  if (!data) return false;
  return StringOfBlock(file, *data, dataSize, id % kStringsPerBlock, out);
}

}  // namespace velmora
