#include "sound/MidiBufferEncoder.h"

#include <cstring>

#include "platform/ByteOrder.h"
#include "sound/MidiVarLen.h"

namespace velmora {
namespace {

constexpr uint32_t kEndEventWord = MEVT_F_CALLBACK | 0x002FFF;

// One image event as the stream will see it.
struct cStreamEvent {
  uint32_t word = 0;
  uint32_t sourceSize = 0;  // image bytes behind the delta
  bool writes = true;
  bool isEnd = false;
  const uint8_t* longData = nullptr;  // the data bytes of a system exclusive event
  uint32_t longSize = 0;
};

uint32_t StreamSize(const cStreamEvent& event) {
  return kMidiEventWords + (event.word & MEVT_F_LONG ? ((event.longSize + 1 + 3) & ~3u) : 0);
}

bool ClassifyMeta(const uint8_t* e, uint64_t left, cStreamEvent& out) {
  if (left >= 3 && e[1] == 0x2F && e[2] == 0x00) {
    out.word = kEndEventWord;
    out.sourceSize = 3;
    out.isEnd = true;
    return true;
  }
  if (left >= 6 && e[1] == 0x51 && e[2] == 0x03) {
    out.word = uint32_t{MEVT_TEMPO} << 24 | e[3] << 16 | e[4] << 8 | e[5];
    out.sourceSize = 6;
    return true;
  }
  if (left < 2) return false;
  cVarLen length = ReadVarLen(e + 2, e + left);
  out.writes = false;
  out.sourceSize = 2 + length.bytes + length.value;
  return length.bytes != 0 && out.sourceSize <= left;
}

bool ClassifySysEx(const uint8_t* e, uint64_t left, cStreamEvent& out) {
  cVarLen length = ReadVarLen(e + 1, e + left);
  out.sourceSize = 1 + length.bytes + length.value;
  out.word = MEVT_F_LONG | (length.value + 1);
  out.longData = e + 1 + length.bytes;
  out.longSize = length.value;
  return length.bytes != 0 && length.value < 0xFFFFFF && out.sourceSize <= left;
}

// False when the event runs past the end of the image.
bool Classify(const uint8_t* e, uint64_t left, cStreamEvent& out) {
  uint8_t status = e[0];
  if (status == 0xFF) return ClassifyMeta(e, left, out);
  if (status == 0xF0 || status == 0xF7) return ClassifySysEx(e, left, out);
  bool oneData = (status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0;
  out.sourceSize = oneData ? 2 : 3;
  if (out.sourceSize > left) return false;
  out.word = status | uint32_t{e[1]} << 8 | (oneData ? 0 : uint32_t{e[2]} << 16);
  return true;
}

void WriteEvent(uint8_t* at, uint32_t delta, const cStreamEvent& event, const uint8_t* status) {
  StoreLittle(at, delta, 4);
  StoreLittle(at + 4, 0, 4);
  StoreLittle(at + 8, event.word, 4);
  if (event.word & MEVT_F_LONG) {
    at[kMidiEventWords] = *status;
    std::memcpy(at + kMidiEventWords + 1, event.longData, event.longSize);
  }
}

}  // namespace

uint32_t EncodeMidiBuffer(const std::vector<uint8_t>& image, uint32_t imageEnd, uint32_t pos,
                          cMidiHeader& header) {
  std::memset(header.lpData, 0, header.dwBufferLength);
  const uint8_t* base = image.data();
  uint32_t written = 0;
  uint32_t carried = 0;    // delta of the events that wrote nothing since the last one written
  uint32_t committed = pos;  // behind the last event written
  uint8_t* lastWord = nullptr;
  uint32_t p = pos;
  while (p < imageEnd) {
    cVarLen delta = ReadVarLen(base + p, base + imageEnd);
    uint32_t at = p + delta.bytes;
    cStreamEvent event;
    if (at >= imageEnd || !Classify(base + at, imageEnd - at, event)) {
      p = committed = imageEnd;
      break;
    }
    uint32_t size = StreamSize(event);
    bool fits = size <= header.dwBufferLength - written;
    // An event too big for any buffer is passed over like a silent one.
    if (!event.writes || size > header.dwBufferLength) {
      carried += delta.value;
      p = at + event.sourceSize;
      continue;
    }
    // Whatever was passed over since the last event written comes again
    // with the next buffer, so its delta isn't lost.
    if (!fits) break;
    WriteEvent(header.lpData + written, carried + delta.value, event, base + at);
    lastWord = header.lpData + written + 8;
    written += size;
    carried = 0;
    p = committed = at + event.sourceSize;
    if (event.isEnd) break;
  }
  if (p >= imageEnd) committed = imageEnd;
  if (lastWord) lastWord[3] |= MEVT_F_CALLBACK >> 24;
  header.dwFlags = 0;
  header.lpNext = nullptr;
  header.reserved = 0;
  std::memset(header.dwReserved, 0, sizeof header.dwReserved);
  header.dwBytesRecorded = written;
  return committed - pos;
}

}  // namespace velmora
