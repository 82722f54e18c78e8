#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace velmora {

// The bare parts that some records keep behind their blocks: a count, then
// that many bytes, 32-bit numbers or strings. A count below 1 leaves the
// part as it was; a count beyond what the file could still hold is damage
// and ends the stream.
void LoadBytes(std::vector<uint8_t>& part, cDataFile& file);
void SaveBytes(const std::vector<uint8_t>& part, cDataFile& file);
void LoadInts(std::vector<int32_t>& part, cDataFile& file);
void SaveInts(const std::vector<int32_t>& part, cDataFile& file);
// Strings are a nested list: emptied and sized to the count.
void LoadStrings(std::vector<std::string>& part, cDataFile& file);
void SaveStrings(std::vector<std::string>& part, cDataFile& file);

// The count of a list that stays as it was when the count is below 1.
// Gives 0 for such a count and for a damaged one.
int32_t ReadKeepingCount(cDataFile& file, uint64_t minBytesPerElement);

// The old files' way of growing a fixed-length part: every element from
// `index` on moves up one place, the last falls off, and `index` takes the
// value. An index outside the part changes nothing.
template <class T>
void InsertKeepingSize(std::vector<T>& part, size_t index, const T& value) {
  if (index >= part.size()) return;
  for (size_t i = part.size() - 1; i > index; --i) part[i] = part[i - 1];
  part[index] = value;
}

}  // namespace velmora
