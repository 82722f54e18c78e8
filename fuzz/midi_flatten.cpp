// Feeds any bytes to the flattener as a Standard MIDI File, and every image
// it makes to the buffer encoder, buffer after buffer to the end.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "sound/MidiBufferEncoder.h"
#include "sound/SmfFlattener.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<uint8_t> file(data, data + size);
  std::vector<uint8_t> image = FlattenSmf(file.data(), file.size(), "fuzz.mid");
  if (image.empty()) return 0;
  uint32_t end = SmfImageEnd(image);
  // A small buffer makes the split between buffers happen often.
  std::vector<uint8_t> bytes(size % 2 ? 24000 : 64);
  cMidiHeader header;
  header.lpData = bytes.data();
  header.dwBufferLength = static_cast<uint32_t>(bytes.size());
  for (uint32_t pos = kSmfImageEvents; pos < end;) {
    uint32_t consumed = EncodeMidiBuffer(image, end, pos, header);
    if (consumed == 0) __builtin_trap();  // the player would wait for ever
    if (header.dwBytesRecorded > header.dwBufferLength) __builtin_trap();
    pos += consumed;
  }
  return 0;
}
