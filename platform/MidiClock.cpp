#include "platform/MidiClock.h"

#include <chrono>

namespace velmora {
namespace {

using SteadyTime = std::chrono::steady_clock::time_point;

SteadyTime FromUs(int64_t us) { return SteadyTime(std::chrono::microseconds(us)); }

// A waiting stream thread looks at the manual clock this often; a test that
// advances it waits at most this long for the thread to notice.
constexpr auto kManualPoll = std::chrono::microseconds(200);

}  // namespace

int64_t cSteadyMidiClock::NowUs() const {
  using namespace std::chrono;
  return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

void cSteadyMidiClock::WaitUntil(std::condition_variable& wake, std::unique_lock<std::mutex>& lock,
                                 int64_t deadlineUs) {
  wake.wait_until(lock, FromUs(deadlineUs));
}

int64_t cManualMidiClock::NowUs() const { return m_nNowUs.load(); }

void cManualMidiClock::WaitUntil(std::condition_variable& wake, std::unique_lock<std::mutex>& lock,
                                 int64_t deadlineUs) {
  if (m_eMode == eMode::Jumping) {
    int64_t now = m_nNowUs.load();
    while (now < deadlineUs && !m_nNowUs.compare_exchange_weak(now, deadlineUs)) {
    }
    return;
  }
  if (NowUs() < deadlineUs) wake.wait_for(lock, kManualPoll);
}

void cManualMidiClock::Advance(int64_t us) { m_nNowUs += us; }

}  // namespace velmora
