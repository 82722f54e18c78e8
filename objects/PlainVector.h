#pragma once
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/DataFile.h"

namespace velmora {

// A nested list of plain numbers: a signed 32-bit count, then the values.
// A stored count below 1 leaves the list as it was; a count beyond what
// the file still holds is damage and ends the stream, list untouched.
// `List` is a vector or a list of the same interface that can be assigned
// a vector (an entry's inherit flags).
template <class List, class T = std::remove_cvref_t<decltype(*std::declval<List&>().data())>>
void LoadPlainVector(List& vec, cDataFile& file) {
  int32_t count = 0;
  if (!file.ReadInt32(count) || count < 1) return;
  if (static_cast<uint64_t>(count) * sizeof(T) > file.Remaining()) {
    file.MarkDamaged();
    return;
  }
  const size_t bytes = static_cast<size_t>(count) * sizeof(T);
  // A list of the stored length is read in place: a stage's cells come with
  // their flag lists already made.
  if (vec.size() == static_cast<size_t>(count)) {
    if (const char* values = file.ReadSpan(bytes)) {
      std::memcpy(vec.data(), values, bytes);
      return;
    }
  }
  std::vector<T> values(static_cast<size_t>(count));
  if (file.Read(values.data(), bytes)) vec = std::move(values);
}

template <class List>
void SavePlainVector(const List& vec, cDataFile& file) {
  file.WriteInt32(static_cast<int32_t>(vec.size()));
  if (!vec.empty()) file.Write(vec.data(), vec.size() * sizeof(*vec.data()));
}

}  // namespace velmora
