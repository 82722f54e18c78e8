#pragma once
#include <cstdint>
#include <string>

#include "platform/FileBytes.h"

namespace velmora {

// One ELF note, as a program carries it to say what it is.
struct cElfNote {
  std::string name;  // without the terminating zero
  uint32_t type = 0;
  std::string desc;
};

// Whether an ELF file (32 or 64 bits, either byte order) carries `note`:
// in a note section, or in a note segment when the section table is gone.
// Anything damaged or out of bounds reads as "not there".
bool ElfHasNote(cFileBytes& file, const cElfNote& note);

}  // namespace velmora
