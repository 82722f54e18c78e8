#pragma once
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/Log.h"
#include "platform/ByteOrder.h"
#include "platform/MidiOutputDevice.h"
#include "platform/MidiRecordingSink.h"
#include "platform/MidiStream.h"
#include "platform/TextCodec.h"
#include "sound/MidiVarLen.h"
#include "sound/SmfFlattener.h"
#include "support/TempProject.h"

namespace velmora::testing {

// An image event with its absolute time.
struct cTimedEvent {
  uint32_t time;
  std::vector<uint8_t> bytes;
  bool operator==(const cTimedEvent&) const = default;
};

inline void PrintTo(const cTimedEvent& event, std::ostream* out) {
  *out << event.time << ":";
  for (uint8_t byte : event.bytes) *out << " " << std::hex << int{byte} << std::dec;
}

// Reads an image back; each event stands whole with its status byte.
inline std::vector<cTimedEvent> ImageEvents(const std::vector<uint8_t>& image) {
  std::vector<cTimedEvent> events;
  const uint8_t* p = image.data() + kSmfImageEvents;
  const uint8_t* end = image.data() + SmfImageEnd(image);
  uint32_t time = 0;
  while (p < end) {
    cVarLen delta = ReadVarLen(p, end);
    p += delta.bytes;
    time += delta.value;
    size_t size = 3;
    uint8_t status = *p;
    if ((status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0) size = 2;
    if (status == 0xFF) size = 2 + ReadVarLen(p + 2, end).bytes + ReadVarLen(p + 2, end).value;
    if (status == 0xF0 || status == 0xF7) size = 1 + ReadVarLen(p + 1, end).bytes + ReadVarLen(p + 1, end).value;
    events.push_back({time, std::vector<uint8_t>(p, p + size)});
    p += size;
  }
  return events;
}

inline uint32_t WordAt(const uint8_t* p) { return ReadLittle(p, 4); }

// A stream event read back out of a buffer.
struct cBufferEvent {
  uint32_t delta;
  uint32_t word;
  std::vector<uint8_t> data;  // a long event's bytes
};

inline std::vector<cBufferEvent> BufferEvents(const cMidiHeader& header) {
  std::vector<cBufferEvent> events;
  for (uint32_t at = 0; at + kMidiEventWords <= header.dwBytesRecorded;) {
    cBufferEvent event{WordAt(header.lpData + at), WordAt(header.lpData + at + 8), {}};
    at += kMidiEventWords;
    if (event.word & MEVT_F_LONG) {
      uint32_t size = event.word & 0xFFFFFF;
      event.data.assign(header.lpData + at, header.lpData + at + size);
      at += (size + 3) & ~3u;
    }
    events.push_back(std::move(event));
  }
  return events;
}

// A buffer of the player's size, owned by the test.
struct cTestBuffer {
  explicit cTestBuffer(uint32_t size = 24000) : bytes(size) {
    header.lpData = bytes.data();
    header.dwBufferLength = size;
  }
  std::vector<uint8_t> bytes;
  cMidiHeader header;
};

// A project folder with the report log open, the way the editor runs.
class cReportedProject {
 public:
  cReportedProject() { OpenReportLog("Report_Editor.txt"); }
  ~cReportedProject() { OpenReportLog(""); }
  std::string Report() const { return ToUtf8(ReadText("Report_Editor.txt")); }

 private:
  cTempProject m_project;
};

// Streams opened while this stands play to a recorder on a manual clock.
class cRecordedMidiOutput {
 public:
  explicit cRecordedMidiOutput(cManualMidiClock::eMode mode)
      : sink(std::make_shared<cRecordingMidiSink>()), clock(std::make_shared<cManualMidiClock>(mode)) {
    SetMidiOutput({sink, clock});
  }
  ~cRecordedMidiOutput() { SetMidiOutput({}); }
  std::shared_ptr<cRecordingMidiSink> sink;
  std::shared_ptr<cManualMidiClock> clock;
};

}  // namespace velmora::testing
