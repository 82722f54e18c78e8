#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velmora::testing {

// Executables made by hand, with only the parts that the search for the
// game program reads.

struct cNote {
  std::string name;
  uint32_t type;
  std::string desc;
};

// An ELF file whose notes are named by its section table or, when
// `inSections` is false, only by its program header table.
std::vector<uint8_t> MakeElf(bool wide, bool big, bool inSections, const std::vector<cNote>& notes);

struct cLanguageString {
  uint16_t language;
  std::u16string text;  // string 1 of the first block
};

// A Windows executable with one resource section holding string block 1
// in the given languages.
std::vector<uint8_t> MakePe(bool wide, const std::vector<cLanguageString>& strings);

}  // namespace velmora::testing
