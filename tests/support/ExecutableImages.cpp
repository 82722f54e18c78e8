#include "support/ExecutableImages.h"

#include <algorithm>
#include <string_view>

namespace velmora::testing {
namespace {

// Bytes put at given offsets in either byte order, the way the headers of
// executables are laid out.
class cImage {
 public:
  explicit cImage(bool bigEndian = false) : m_big(bigEndian) {}
  cImage& Put(size_t at, uint64_t value, int width) {
    Grow(at + width);
    for (int i = 0; i < width; ++i) m_bytes[at + i] = static_cast<uint8_t>(value >> 8 * (m_big ? width - 1 - i : i));
    return *this;
  }
  cImage& Text(size_t at, std::string_view text) {
    Grow(at + text.size());
    std::copy(text.begin(), text.end(), m_bytes.begin() + static_cast<long>(at));
    return *this;
  }
  const std::vector<uint8_t>& Bytes() const { return m_bytes; }

 private:
  void Grow(size_t size) {
    if (m_bytes.size() < size) m_bytes.resize(size);
  }
  std::vector<uint8_t> m_bytes;
  bool m_big;
};


size_t Padded(size_t size) { return (size + 3) / 4 * 4; }

}  // namespace

std::vector<uint8_t> MakeElf(bool wide, bool big, bool inSections, const std::vector<cNote>& notes) {
  cImage elf(big);
  elf.Text(0, "\x7f" "ELF").Put(4, wide ? 2 : 1, 1).Put(5, big ? 2 : 1, 1).Put(6, 1, 1);
  const size_t notesAt = 0x100, tableAt = 0x200;
  size_t at = notesAt;
  for (const cNote& note : notes) {
    elf.Put(at, note.name.size() + 1, 4).Put(at + 4, note.desc.size(), 4).Put(at + 8, note.type, 4);
    elf.Text(at + 12, note.name + '\0').Text(at + 12 + Padded(note.name.size() + 1), note.desc);
    at += 12 + Padded(note.name.size() + 1) + Padded(note.desc.size());
  }
  const int word = wide ? 8 : 4;
  if (inSections) {
    elf.Put(wide ? 40 : 32, tableAt, word).Put(wide ? 58 : 46, wide ? 64 : 40, 2).Put(wide ? 60 : 48, 2, 2);
    const size_t entry = tableAt + (wide ? 64 : 40);  // entry 0 is the null section
    elf.Put(entry + 4, 7, 4).Put(entry + (wide ? 24 : 16), notesAt, word).Put(entry + (wide ? 32 : 20), at - notesAt, word);
    elf.Put(entry + (wide ? 48 : 32), 4, word).Put(entry + (wide ? 63 : 39), 0, 1);
  } else {
    elf.Put(wide ? 32 : 28, tableAt, word).Put(wide ? 54 : 42, wide ? 56 : 32, 2).Put(wide ? 56 : 44, 1, 2);
    elf.Put(tableAt, 4, 4).Put(tableAt + (wide ? 8 : 4), notesAt, word).Put(tableAt + (wide ? 32 : 16), at - notesAt, word);
    elf.Put(tableAt + (wide ? 48 : 28), 4, word).Put(tableAt + (wide ? 55 : 31), 0, 1);
  }
  return elf.Bytes();
}

std::vector<uint8_t> MakePe(bool wide, const std::vector<cLanguageString>& strings) {
  cImage pe;
  const size_t header = 0x80, optional = header + 24, optionalSize = wide ? 240 : 224;
  const size_t sections = optional + optionalSize, resource = 0x200;
  const uint32_t resourceRva = 0x1000;
  pe.Text(0, "MZ").Put(0x3c, header, 4).Text(header, std::string_view("PE\0\0", 4));
  pe.Put(header + 6, 1, 2).Put(header + 20, optionalSize, 2).Put(optional, wide ? 0x20b : 0x10b, 2);
  const size_t directories = optional + (wide ? 112 : 96);
  pe.Put(directories - 4, 16, 4).Put(directories + 16, resourceRva, 4);
  // Root: type 6; then block 1; then one entry per language.
  pe.Put(resource + 14, 1, 2).Put(resource + 16, 6, 4).Put(resource + 20, 0x80000000u | 0x18, 4);
  pe.Put(resource + 0x18 + 14, 1, 2).Put(resource + 0x18 + 16, 1, 4).Put(resource + 0x18 + 20, 0x80000000u | 0x30, 4);
  const size_t languages = resource + 0x30;
  pe.Put(languages + 14, strings.size(), 2);
  size_t leaf = 0x30 + 16 + 8 * strings.size(), text = leaf + 16 * strings.size();
  for (size_t i = 0; i < strings.size(); ++i, leaf += 16) {
    pe.Put(languages + 16 + 8 * i, strings[i].language, 4).Put(languages + 20 + 8 * i, leaf, 4);
    const size_t blockSize = 2 * (16 + strings[i].text.size());
    pe.Put(resource + leaf, resourceRva + text, 4).Put(resource + leaf + 4, blockSize, 4);
    pe.Put(resource + text + 2, strings[i].text.size(), 2);
    for (size_t c = 0; c < strings[i].text.size(); ++c) pe.Put(resource + text + 4 + 2 * c, strings[i].text[c], 2);
    text += blockSize;
  }
  pe.Put(resource + text - 2, 0, 2);  // the block's last, empty string
  const size_t rawSize = text;
  pe.Text(sections, ".rsrc").Put(sections + 8, rawSize, 4).Put(sections + 12, resourceRva, 4);
  pe.Put(sections + 16, rawSize, 4).Put(sections + 20, resource, 4);
  return pe.Bytes();
}

}  // namespace velmora::testing
