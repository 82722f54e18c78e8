#include "platform/FileBytes.h"

#include <cstring>
#include <vector>

namespace velmora {

cFileBytes::cFileBytes(std::FILE* file) : m_file(file) {
  if (m_file && std::fseek(m_file, 0, SEEK_END) == 0) {
    const long end = std::ftell(m_file);
    if (end > 0) m_size = static_cast<uint64_t>(end);
  }
}

bool cFileBytes::Read(uint64_t offset, void* out, size_t size) const {
  if (!m_file || offset > m_size || size > m_size - offset) return false;
  if (size == 0) return true;
  if (std::fseek(m_file, static_cast<long>(offset), SEEK_SET) != 0) return false;
  return std::fread(out, 1, size, m_file) == size;
}

template <class T>
bool cFileBytes::Integer(uint64_t offset, T& value) const {
  uint8_t bytes[sizeof(T)];
  if (!Read(offset, bytes, sizeof bytes)) return false;
  value = 0;
  for (size_t i = 0; i < sizeof bytes; ++i) {
    const size_t shift = 8 * (m_bigEndian ? sizeof bytes - 1 - i : i);
    value = static_cast<T>(value | static_cast<T>(static_cast<T>(bytes[i]) << shift));
  }
  return true;
}

bool cFileBytes::U8(uint64_t offset, uint8_t& value) const { return Read(offset, &value, 1); }
bool cFileBytes::U16(uint64_t offset, uint16_t& value) const { return Integer(offset, value); }
bool cFileBytes::U32(uint64_t offset, uint32_t& value) const { return Integer(offset, value); }
bool cFileBytes::U64(uint64_t offset, uint64_t& value) const { return Integer(offset, value); }

bool cFileBytes::Holds(uint64_t offset, const void* text, size_t size) const {
  std::vector<uint8_t> bytes(size);
  return Read(offset, bytes.data(), size) && std::memcmp(bytes.data(), text, size) == 0;
}

}  // namespace velmora
