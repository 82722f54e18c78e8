#pragma once
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>

namespace velmora {

struct cMidiHeader;

// The message queue of a MIDI player's thread, standing where a Windows
// thread queue stood: the stream posts its position callbacks here. Posting
// fails until the owning thread has opened the queue, as it does on a
// thread that has not yet made its queue, and again after the quit.
struct cMidiThreadMessage {
  uint32_t message = 0;
  cMidiHeader* header = nullptr;
};

class cMidiThreadQueue {
 public:
  void Open();
  bool Post(uint32_t message, cMidiHeader* header);
  // Makes the next Get give 0 and refuses every later post.
  void PostQuit();
  // Waits for a message: 1 with one, 0 after the quit.
  int Get(cMidiThreadMessage& out);

 private:
  std::mutex m_mutex;
  std::condition_variable m_wake;
  std::deque<cMidiThreadMessage> m_messages;
  bool m_bOpen = false;
  bool m_bQuit = false;
};

}  // namespace velmora
