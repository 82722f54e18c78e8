#pragma once
#include <iterator>
#include <list>
#include <vector>

#include "core/AppControl.h"
#include "core/Log.h"

namespace velmora {

// Every vector of records and every list is indexed through these. A bad
// index never reads outside the container: it runs the bad-index stop and
// gives element 0, so the caller can run on to its end with nothing saved
// after. An empty container has no element 0 and the process ends.

template <class T>
T& VecAt(std::vector<T>& vec, int index, eBadIndexClose close = eBadIndexClose::DestroyAtOnce) {
  if (index >= 0 && static_cast<size_t>(index) < vec.size()) return vec[static_cast<size_t>(index)];
  BadIndex('V', index, static_cast<int>(vec.size()), static_cast<int>(sizeof(T)), close);
  if (vec.empty()) AppControl().EndProcess(3);
  return vec[0];
}

template <class T>
const T& VecAt(const std::vector<T>& vec, int index, eBadIndexClose close = eBadIndexClose::DestroyAtOnce) {
  return VecAt(const_cast<std::vector<T>&>(vec), index, close);
}

template <class T>
T& ListAt(std::list<T>& list, int index, eBadIndexClose close = eBadIndexClose::DestroyAtOnce) {
  if (index >= 0 && static_cast<size_t>(index) < list.size()) return *std::next(list.begin(), index);
  BadIndex('L', index, static_cast<int>(list.size()), static_cast<int>(sizeof(T)), close);
  if (list.empty()) AppControl().EndProcess(3);
  return list.front();
}

template <class T>
const T& ListAt(const std::list<T>& list, int index, eBadIndexClose close = eBadIndexClose::DestroyAtOnce) {
  return ListAt(const_cast<std::list<T>&>(list), index, close);
}

}  // namespace velmora
