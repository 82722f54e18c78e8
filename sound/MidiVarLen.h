#pragma once
#include <cstdint>
#include <vector>

namespace velmora {

// Variable-length numbers of Standard MIDI Files: 7 bits a byte, high bits
// first, the top bit set on every byte but the last.
struct cVarLen {
  uint32_t value = 0;
  uint32_t bytes = 0;  // 0 when four bytes all carry the top bit, or the data ends first
};

constexpr uint32_t kVarLenLimit = 0x10000000;  // the first value that has no 4-byte form

cVarLen ReadVarLen(const uint8_t* data, const uint8_t* end);
// Appends the shortest form; a value of kVarLenLimit or more appends nothing.
void WriteVarLen(std::vector<uint8_t>& out, uint32_t value);

}  // namespace velmora
