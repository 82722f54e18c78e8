#include "sound/MidiVarLen.h"

namespace velmora {

cVarLen ReadVarLen(const uint8_t* data, const uint8_t* end) {
  cVarLen result;
  for (uint32_t i = 0; i < 4 && data + i < end; ++i) {
    result.value = result.value << 7 | (data[i] & 0x7F);
    if (!(data[i] & 0x80)) {
      result.bytes = i + 1;
      return result;
    }
  }
  return {result.value, 0};
}

void WriteVarLen(std::vector<uint8_t>& out, uint32_t value) {
  if (value >= kVarLenLimit) return;
  uint8_t groups[4];
  int count = 0;
  do {
    groups[count++] = value & 0x7F;
    value >>= 7;
  } while (value);
  while (count > 1) out.push_back(groups[--count] | 0x80);
  out.push_back(groups[0]);
}

}  // namespace velmora
