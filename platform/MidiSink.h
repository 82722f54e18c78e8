#pragma once
#include <cstddef>
#include <cstdint>

namespace velmora {

// Where the MIDI stream delivers what it plays: a synthesiser, nothing, or a
// recorder for tests. Called from the stream's timing thread.
class cMidiSink {
 public:
  virtual ~cMidiSink() = default;
  // A channel message packed like a Windows short message: status in the
  // low byte, then the data bytes. `timeUs` is the stream clock's time.
  virtual void ShortMessage(uint32_t message, int64_t timeUs) = 0;
  // A system exclusive message, its status byte first.
  virtual void LongMessage(const uint8_t* data, size_t size, int64_t timeUs) = 0;
  // Silences every channel: sent on stop, pause and reset so no note hangs.
  virtual void AllNotesOff(int64_t timeUs) = 0;
};

// The sink of a machine without an audio device: playing goes on, unheard.
class cNullMidiSink : public cMidiSink {
 public:
  void ShortMessage(uint32_t, int64_t) override {}
  void LongMessage(const uint8_t*, size_t, int64_t) override {}
  void AllNotesOff(int64_t) override {}
};

}  // namespace velmora
