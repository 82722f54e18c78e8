#pragma once
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace velmora {

// The time base of the MIDI stream. The real one follows the monotonic
// clock. The manual one moves only when told, so a test can stop a song
// exactly between two events; told to jump, it leaps to every deadline a
// stream waits for, and a song of minutes plays in no time with each event
// stamped at its exact due time.
class cMidiClock {
 public:
  virtual ~cMidiClock() = default;
  virtual int64_t NowUs() const = 0;
  // Waits on `wake` (whose mutex `lock` holds) until `deadlineUs` or a
  // notification, whichever comes first. May return early: callers test again.
  virtual void WaitUntil(std::condition_variable& wake, std::unique_lock<std::mutex>& lock, int64_t deadlineUs) = 0;
};

class cSteadyMidiClock : public cMidiClock {
 public:
  int64_t NowUs() const override;
  void WaitUntil(std::condition_variable& wake, std::unique_lock<std::mutex>& lock, int64_t deadlineUs) override;
};

class cManualMidiClock : public cMidiClock {
 public:
  enum class eMode { Stepped, Jumping };
  explicit cManualMidiClock(eMode mode) : m_eMode(mode) {}
  int64_t NowUs() const override;
  void WaitUntil(std::condition_variable& wake, std::unique_lock<std::mutex>& lock, int64_t deadlineUs) override;
  void Advance(int64_t us);

 private:
  eMode m_eMode;
  std::atomic<int64_t> m_nNowUs{0};
};

}  // namespace velmora
