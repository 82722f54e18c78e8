#include "objects/InheritFlags.h"

#include <algorithm>
#include <cstring>

namespace velmora {

// A heap block is exactly as long as the flags, so every change of a long
// set's size takes a new one; long sets are rare and rarely resized.
void cInheritFlags::Reshape(size_t size) {
  if (size == m_nSize) return;
  const size_t kept = std::min<size_t>(size, m_nSize);
  if (size > kInline) {
    uint8_t* heap = new uint8_t[size];
    std::memcpy(heap, data(), kept);
    Release();
    m_store.heap = heap;
  } else if (OnHeap()) {
    uint8_t* heap = m_store.heap;
    std::memcpy(m_store.local, heap, kept);
    delete[] heap;
  }
  m_nSize = static_cast<uint32_t>(size);
}

void cInheritFlags::Release() {
  if (OnHeap()) delete[] m_store.heap;
}

void cInheritFlags::CopyFrom(const uint8_t* flags, size_t size) {
  Reshape(size);
  if (size) std::memcpy(data(), flags, size);
}

void cInheritFlags::MoveFrom(cInheritFlags& other) noexcept {
  Release();
  m_store = other.m_store;
  m_nSize = other.m_nSize;
  other.m_nSize = 0;
}

void cInheritFlags::assign(size_t size, uint8_t value) {
  Reshape(size);
  std::memset(data(), value, size);
}

void cInheritFlags::resize(size_t size, uint8_t value) {
  const size_t old = m_nSize;
  Reshape(size);
  if (size > old) std::memset(data() + old, value, size - old);
}

bool cInheritFlags::operator==(const cInheritFlags& other) const {
  return m_nSize == other.m_nSize && std::memcmp(data(), other.data(), m_nSize) == 0;
}

bool cInheritFlags::operator==(const std::vector<uint8_t>& flags) const {
  return m_nSize == flags.size() && std::equal(begin(), end(), flags.begin());
}

}  // namespace velmora
