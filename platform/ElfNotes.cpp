#include "platform/ElfNotes.h"

#include <vector>

namespace velmora {
namespace {

constexpr uint32_t kSectionNote = 7;  // SHT_NOTE
constexpr uint32_t kSegmentNote = 4;  // PT_NOTE

// Where the fields sit in the two classes of ELF file.
struct cElfLayout {
  bool wide;
  uint64_t tableOffset[2];  // program headers, section headers
  uint64_t entrySize[2];
  uint64_t entryCount[2];
  // Within one entry of each table: type, offset, size, alignment.
  uint64_t type[2], offset[2], size[2], align[2];
  uint64_t minEntry[2];
};

const cElfLayout kElf32 = {false, {28, 32}, {42, 46}, {44, 48}, {0, 4}, {4, 16}, {16, 20}, {28, 32}, {32, 40}};
const cElfLayout kElf64 = {true, {32, 40}, {54, 58}, {56, 60}, {0, 4}, {8, 24}, {32, 32}, {48, 48}, {56, 64}};

struct cRange {
  uint64_t offset;
  uint64_t size;
  uint64_t align;
};

bool Word(const cFileBytes& file, bool wide, uint64_t at, uint64_t& value) {
  if (wide) return file.U64(at, value);
  uint32_t narrow = 0;
  if (!file.U32(at, narrow)) return false;
  value = narrow;
  return true;
}

// The note ranges named by one of the two header tables (0 program, 1 section).
std::vector<cRange> NoteRanges(const cFileBytes& file, const cElfLayout& layout, int table, uint32_t noteType) {
  std::vector<cRange> ranges;
  uint64_t start = 0;
  uint16_t entrySize = 0, count = 0;
  if (!Word(file, layout.wide, layout.tableOffset[table], start) || !file.U16(layout.entrySize[table], entrySize) ||
      !file.U16(layout.entryCount[table], count) || entrySize < layout.minEntry[table] || start > file.Size()) {
    return ranges;
  }
  for (uint64_t i = 0; i < count; ++i) {
    const uint64_t entry = start + i * entrySize;
    uint32_t type = 0;
    cRange range{};
    if (!file.U32(entry + layout.type[table], type)) break;
    if (type != noteType) continue;
    if (Word(file, layout.wide, entry + layout.offset[table], range.offset) &&
        Word(file, layout.wide, entry + layout.size[table], range.size) &&
        Word(file, layout.wide, entry + layout.align[table], range.align)) {
      ranges.push_back(range);
    }
  }
  return ranges;
}

uint64_t Padded(uint64_t size, uint64_t align) { return (size + align - 1) / align * align; }

bool RangeHolds(const cFileBytes& file, const cRange& range, const cElfNote& note) {
  const uint64_t align = range.align == 8 ? 8 : 4;
  if (range.offset > file.Size() || range.size > file.Size() - range.offset) return false;
  const uint64_t end = range.offset + range.size;
  const std::string name = note.name + '\0';
  for (uint64_t at = range.offset; end - at >= 12;) {
    uint32_t nameSize = 0, descSize = 0, type = 0;
    if (!file.U32(at, nameSize) || !file.U32(at + 4, descSize) || !file.U32(at + 8, type)) return false;
    const uint64_t descAt = at + 12 + Padded(nameSize, align);
    const uint64_t next = descAt + Padded(descSize, align);
    if (next > end) return false;
    if (type == note.type && nameSize == name.size() && descSize == note.desc.size() &&
        file.Holds(at + 12, name.data(), name.size()) && file.Holds(descAt, note.desc.data(), note.desc.size())) {
      return true;
    }
    at = next;
  }
  return false;
}

}  // namespace

bool ElfHasNote(cFileBytes& file, const cElfNote& note) {
  uint8_t ident[6];
  if (!file.Read(0, ident, sizeof ident) || ident[0] != 0x7f || ident[1] != 'E' || ident[2] != 'L' || ident[3] != 'F') {
    return false;
  }
  if ((ident[4] != 1 && ident[4] != 2) || (ident[5] != 1 && ident[5] != 2)) return false;
  file.SetBigEndian(ident[5] == 2);
  const cElfLayout& layout = ident[4] == 2 ? kElf64 : kElf32;
  std::vector<cRange> ranges = NoteRanges(file, layout, 1, kSectionNote);
  if (ranges.empty()) ranges = NoteRanges(file, layout, 0, kSegmentNote);
  for (const cRange& range : ranges) {
    if (RangeHolds(file, range, note)) return true;
  }
  return false;
}

}  // namespace velmora
