#include "platform/MidiThreadQueue.h"

namespace velmora {

void cMidiThreadQueue::Open() {
  std::lock_guard<std::mutex> lock(m_mutex);
  if (!m_bQuit) m_bOpen = true;
}

bool cMidiThreadQueue::Post(uint32_t message, cMidiHeader* header) {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_bOpen || m_bQuit) return false;
    m_messages.push_back({message, header});
  }
  m_wake.notify_one();
  return true;
}

void cMidiThreadQueue::PostQuit() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_bQuit = true;
  }
  m_wake.notify_all();
}

int cMidiThreadQueue::Get(cMidiThreadMessage& out) {
  std::unique_lock<std::mutex> lock(m_mutex);
  m_wake.wait(lock, [this] { return m_bQuit || !m_messages.empty(); });
  if (m_bQuit) return 0;
  out = m_messages.front();
  m_messages.pop_front();
  return 1;
}

}  // namespace velmora
