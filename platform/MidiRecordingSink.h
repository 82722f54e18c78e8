#pragma once
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "platform/MidiSink.h"

namespace velmora {

// Keeps every message with the stream time it went out at: the ear of the
// tests and of the timing benchmark.
struct cRecordedMidi {
  enum class eKind { Short, Long, AllNotesOff };
  eKind kind = eKind::Short;
  uint32_t message = 0;       // a short message
  std::vector<uint8_t> data;  // a long message
  int64_t timeUs = 0;
};

class cRecordingMidiSink : public cMidiSink {
 public:
  void ShortMessage(uint32_t message, int64_t timeUs) override;
  void LongMessage(const uint8_t* data, size_t size, int64_t timeUs) override;
  void AllNotesOff(int64_t timeUs) override;

  std::vector<cRecordedMidi> Messages() const;
  std::vector<cRecordedMidi> ShortMessages() const;
  // Waits, in real time, until `count` short messages have come.
  bool WaitForShortMessages(size_t count, std::chrono::milliseconds timeout) const;
  void Clear();

 private:
  void Add(cRecordedMidi message);
  mutable std::mutex m_mutex;
  mutable std::condition_variable m_added;
  std::vector<cRecordedMidi> m_messages;
  size_t m_nShort = 0;
};

}  // namespace velmora
