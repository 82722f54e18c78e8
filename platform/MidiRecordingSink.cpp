#include "platform/MidiRecordingSink.h"

namespace velmora {

void cRecordingMidiSink::ShortMessage(uint32_t message, int64_t timeUs) {
  Add({cRecordedMidi::eKind::Short, message, {}, timeUs});
}

void cRecordingMidiSink::LongMessage(const uint8_t* data, size_t size, int64_t timeUs) {
  Add({cRecordedMidi::eKind::Long, 0, std::vector<uint8_t>(data, data + size), timeUs});
}

void cRecordingMidiSink::AllNotesOff(int64_t timeUs) { Add({cRecordedMidi::eKind::AllNotesOff, 0, {}, timeUs}); }

void cRecordingMidiSink::Add(cRecordedMidi message) {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (message.kind == cRecordedMidi::eKind::Short) ++m_nShort;
    m_messages.push_back(std::move(message));
  }
  m_added.notify_all();
}

std::vector<cRecordedMidi> cRecordingMidiSink::Messages() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_messages;
}

std::vector<cRecordedMidi> cRecordingMidiSink::ShortMessages() const {
  std::vector<cRecordedMidi> shorts;
  for (cRecordedMidi& message : Messages()) {
    if (message.kind == cRecordedMidi::eKind::Short) shorts.push_back(std::move(message));
  }
  return shorts;
}

bool cRecordingMidiSink::WaitForShortMessages(size_t count, std::chrono::milliseconds timeout) const {
  std::unique_lock<std::mutex> lock(m_mutex);
  return m_added.wait_for(lock, timeout, [&] { return m_nShort >= count; });
}

void cRecordingMidiSink::Clear() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_messages.clear();
  m_nShort = 0;
}

}  // namespace velmora
