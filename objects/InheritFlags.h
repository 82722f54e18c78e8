#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>


namespace velmora {

// An entry's inherit flags, one byte per group. Every cell of a stage
// carries a set, and a stage has up to three quarters of a million cells:
// a short set (a block's or an item's) lives inside the entry instead of in
// a block of its own, in the room a vector would take; a longer one goes
// to the heap.
class cInheritFlags {
 public:
  static constexpr size_t kInline = 16;

  cInheritFlags() = default;
  ~cInheritFlags() { Release(); }
  cInheritFlags(const cInheritFlags& other) { CopyFrom(other.data(), other.size()); }
  cInheritFlags& operator=(const cInheritFlags& other) {
    if (this != &other) CopyFrom(other.data(), other.size());
    return *this;
  }
  cInheritFlags(cInheritFlags&& other) noexcept { MoveFrom(other); }
  cInheritFlags& operator=(cInheritFlags&& other) noexcept {
    if (this != &other) MoveFrom(other);
    return *this;
  }
  cInheritFlags(const std::vector<uint8_t>& flags) { CopyFrom(flags.data(), flags.size()); }
  cInheritFlags& operator=(const std::vector<uint8_t>& flags) {
    CopyFrom(flags.data(), flags.size());
    return *this;
  }

  size_t size() const { return m_nSize; }
  bool empty() const { return m_nSize == 0; }
  uint8_t* data() { return OnHeap() ? m_store.heap : m_store.local; }
  const uint8_t* data() const { return OnHeap() ? m_store.heap : m_store.local; }
  uint8_t* begin() { return data(); }
  uint8_t* end() { return data() + m_nSize; }
  const uint8_t* begin() const { return data(); }
  const uint8_t* end() const { return data() + m_nSize; }
  uint8_t& operator[](size_t index) { return data()[index]; }
  const uint8_t& operator[](size_t index) const { return data()[index]; }

  // `size` flags of `value`.
  void assign(size_t size, uint8_t value);
  // Keeps the first flags, fills new ones with `value`.
  void resize(size_t size, uint8_t value = 0);
  void clear() { Reshape(0); }

  bool operator==(const cInheritFlags& other) const;
  bool operator==(const std::vector<uint8_t>& flags) const;

 private:
  bool OnHeap() const { return m_nSize > kInline; }
  // Sets the size, keeping as many of the old flags as fit.
  void Reshape(size_t size);
  void CopyFrom(const uint8_t* flags, size_t size);
  void MoveFrom(cInheritFlags& other) noexcept;
  void Release();

  union {
    uint8_t local[kInline] = {};
    uint8_t* heap;
  } m_store;
  uint32_t m_nSize = 0;
};

}  // namespace velmora
