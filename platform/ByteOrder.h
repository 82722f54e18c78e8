#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

// Fixed-width integers of foreign formats, `bytes` wide (1 to 4): bitmaps,
// waves, MIDI and the game's messages. The record stream has its own reader.

inline uint32_t ReadLittle(const uint8_t* at, size_t bytes) {
  uint32_t value = 0;
  for (size_t i = bytes; i-- > 0;) value = value << 8 | at[i];
  return value;
}

inline uint32_t ReadBig(const uint8_t* at, size_t bytes) {
  uint32_t value = 0;
  for (size_t i = 0; i < bytes; ++i) value = value << 8 | at[i];
  return value;
}

inline void StoreLittle(uint8_t* at, uint32_t value, size_t bytes) {
  for (size_t i = 0; i < bytes; ++i) at[i] = static_cast<uint8_t>(value >> (8 * i));
}

inline void StoreBig(uint8_t* at, uint32_t value, size_t bytes) {
  for (size_t i = 0; i < bytes; ++i) at[i] = static_cast<uint8_t>(value >> (8 * (bytes - 1 - i)));
}

inline void AppendLittle(std::vector<uint8_t>& out, uint32_t value, size_t bytes) {
  out.resize(out.size() + bytes);
  StoreLittle(out.data() + out.size() - bytes, value, bytes);
}

inline void AppendBig(std::vector<uint8_t>& out, uint32_t value, size_t bytes) {
  out.resize(out.size() + bytes);
  StoreBig(out.data() + out.size() - bytes, value, bytes);
}

}  // namespace velmora
