#pragma once
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "platform/MidiClock.h"
#include "platform/MidiSink.h"
#include "platform/MidiThreadQueue.h"

namespace velmora {

// The MIDI stream service that the Windows player was written against,
// rebuilt here: buffers of stream events are queued, played on a timing
// thread of the stream's own by their delta times, the division and the
// tempo events, and each event that carries the callback flag is reported
// to the player's thread once it has sounded.

// A buffer of stream events, laid out like MIDIHDR.
struct cMidiHeader {
  uint8_t* lpData = nullptr;
  uint32_t dwBufferLength = 0;
  uint32_t dwBytesRecorded = 0;
  uintptr_t dwUser = 0;
  std::atomic<uint32_t> dwFlags{0};  // the stream thread marks buffers done while the player looks
  cMidiHeader* lpNext = nullptr;
  uintptr_t reserved = 0;
  uint32_t dwOffset = 0;  // of the event that set off the last position callback
  uintptr_t dwReserved[4] = {};
};

constexpr uint32_t MHDR_DONE = 0x1;
constexpr uint32_t MHDR_PREPARED = 0x2;
constexpr uint32_t MHDR_INQUEUE = 0x4;

// Stream events: three little-endian words (delta, stream id, event word),
// a long event's data behind them padded to a multiple of 4.
constexpr uint32_t kMidiEventWords = 12;
constexpr uint32_t MEVT_F_LONG = 0x80000000;
constexpr uint32_t MEVT_F_CALLBACK = 0x40000000;
constexpr uint8_t MEVT_SHORTMSG = 0x00;
constexpr uint8_t MEVT_TEMPO = 0x01;

constexpr uint32_t MM_MOM_POSITIONCB = 0x3CA;

// Results, numbered as the Windows multimedia codes.
constexpr uint32_t MMSYSERR_NOERROR = 0;
constexpr uint32_t MMSYSERR_INVALHANDLE = 5;
constexpr uint32_t MMSYSERR_INVALPARAM = 11;
constexpr uint32_t MIDIERR_UNPREPARED = 64;
constexpr uint32_t MIDIERR_STILLPLAYING = 65;

// The text of a failure code for the report log; empty for success.
std::string MidiErrorText(uint32_t code);

constexpr uint32_t kDefaultMidiTempo = 500000;  // microseconds per quarter note
constexpr uint32_t kDefaultMidiDivision = 96;

class cMidiStream {
 public:
  // Opens a stream on the present MIDI output (see MidiOutputDevice.h). It
  // stands paused until Restart. Callbacks go to `callback`.
  static uint32_t Open(std::unique_ptr<cMidiStream>& stream, cMidiThreadQueue* callback);
  cMidiStream(std::shared_ptr<cMidiSink> sink, std::shared_ptr<cMidiClock> clock, cMidiThreadQueue* callback);
  ~cMidiStream();
  cMidiStream(const cMidiStream&) = delete;
  cMidiStream& operator=(const cMidiStream&) = delete;

  // Ticks per quarter note, or with bit 15 set SMPTE frames and ticks per frame.
  uint32_t SetTimeDivision(uint32_t division);
  uint32_t SetTempo(uint32_t microsecondsPerQuarter);
  uint32_t Prepare(cMidiHeader& header);
  uint32_t Unprepare(cMidiHeader& header);
  uint32_t Out(cMidiHeader& header);
  uint32_t Restart();
  // Holds the position; the notes that sound are silenced.
  uint32_t Pause();
  // Gives back every queued buffer, silences and rewinds to tick 0, paused.
  uint32_t Stop();
  // As Stop, for the device as a whole.
  uint32_t Reset();
  // Ends the timing thread; fails while buffers are queued.
  uint32_t Close();

 private:
  struct cEvent;
  void Run();
  bool NextEvent(cEvent& event) const;
  double TickDurationUs() const;
  int64_t DueTimeUs(uint64_t tick) const;
  void Dispatch(const cEvent& event, int64_t nowUs);
  void FinishHeaderIfDone();
  void ReturnAllBuffers();
  void Rewind();

  std::shared_ptr<cMidiSink> m_pSink;
  std::shared_ptr<cMidiClock> m_pClock;
  cMidiThreadQueue* m_pCallback;

  std::mutex m_mutex;
  std::condition_variable m_wake;
  std::deque<cMidiHeader*> m_queue;
  uint32_t m_uOffset = 0;  // of the next event in the front buffer
  uint32_t m_uDivision = kDefaultMidiDivision;
  uint32_t m_uTempo = kDefaultMidiTempo;
  uint64_t m_uTick = 0;         // of the last event played
  uint64_t m_uAnchorTick = 0;   // tick at the last tempo change or start
  double m_dAnchorUs = 0;       // clock time of the anchor tick
  int64_t m_nPausedAtUs = 0;
  bool m_bRunning = false;
  bool m_bStarted = false;  // the clock has been anchored since the last rewind
  bool m_bClosing = false;
  bool m_bThreadReady = false;
  std::thread m_thread;
};

}  // namespace velmora
