#pragma once
#include <string>
#include <vector>

namespace velmora::testing {

// A palette list of `count` entries behind the blank entry 0, named
// "<prefix>1" on and showing picture 1 on, so that they count as occupied.
template <class T>
std::vector<T> Named(const char* prefix, int count) {
  std::vector<T> list(static_cast<size_t>(count));
  for (int i = 1; i < count; ++i) {
    list[static_cast<size_t>(i)].m_strName = prefix + std::to_string(i);
    list[static_cast<size_t>(i)].m_nGraphicNo = static_cast<int16_t>(i);
  }
  return list;
}

}  // namespace velmora::testing
