#pragma once
#include <cstdint>
#include <cstdio>
#include <string>

namespace velmora {

// Random reads from an open file where every offset comes from the file
// itself: a read that would leave the file fails instead of reading past
// it, so parsers of foreign formats can trust nothing and still stay in
// bounds.
class cFileBytes {
 public:
  explicit cFileBytes(std::FILE* file);
  uint64_t Size() const { return m_size; }
  void SetBigEndian(bool big) { m_bigEndian = big; }

  bool Read(uint64_t offset, void* out, size_t size) const;
  bool U8(uint64_t offset, uint8_t& value) const;
  bool U16(uint64_t offset, uint16_t& value) const;
  bool U32(uint64_t offset, uint32_t& value) const;
  bool U64(uint64_t offset, uint64_t& value) const;
  // Whether `text` stands at `offset`, byte for byte.
  bool Holds(uint64_t offset, const void* text, size_t size) const;

 private:
  template <class T>
  bool Integer(uint64_t offset, T& value) const;
  std::FILE* m_file;
  uint64_t m_size = 0;
  bool m_bigEndian = false;
};

}  // namespace velmora
