#include "platform/MidiStream.h"

#include <pthread.h>
#include <sys/prctl.h>

#include <cstring>

#include "platform/MidiOutputDevice.h"

namespace velmora {
namespace {

constexpr uint8_t kLongMessage = 0x80;  // MEVT_LONGMSG: the event type of a long event

uint32_t ReadWord(const uint8_t* p) {
  return static_cast<uint32_t>(p[0]) | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16 |
         static_cast<uint32_t>(p[3]) << 24;
}

uint32_t PaddedLength(uint32_t size) { return (size + 3) & ~3u; }

// A note that comes late is heard, so the timing thread asks for real-time
// scheduling and the finest timer slack. Where the system refuses, it runs
// at normal priority.
void RaiseTimingPriority() {
  sched_param param{};
  param.sched_priority = 10;
  pthread_setschedparam(pthread_self(), SCHED_FIFO, &param);
  prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
}

struct cErrorText {
  uint32_t code;
  const char* text;
};

const cErrorText kErrorTexts[] = {
    {MMSYSERR_INVALHANDLE, "The specified device handle is invalid."},
    {MMSYSERR_INVALPARAM, "An invalid parameter was passed to a system function."},
    {MIDIERR_UNPREPARED, "The header has not been prepared."},
    {MIDIERR_STILLPLAYING, "Buffers are still in the queue."},
};

}  // namespace

struct cMidiStream::cEvent {
  cMidiHeader* header = nullptr;
  uint32_t offset = 0;  // of the event in the header's data
  uint32_t next = 0;    // offset behind it
  uint32_t delta = 0;
  uint32_t word = 0;
};

std::string MidiErrorText(uint32_t code) {
  if (code == MMSYSERR_NOERROR) return {};
  for (const cErrorText& entry : kErrorTexts) {
    if (entry.code == code) return entry.text;
  }
  return "Undefined MIDI error " + std::to_string(code) + ".";
}

uint32_t cMidiStream::Open(std::unique_ptr<cMidiStream>& stream, cMidiThreadQueue* callback) {
  cMidiOutput output = PresentMidiOutput();
  stream = std::make_unique<cMidiStream>(output.sink, output.clock, callback);
  return MMSYSERR_NOERROR;
}

cMidiStream::cMidiStream(std::shared_ptr<cMidiSink> sink, std::shared_ptr<cMidiClock> clock,
                         cMidiThreadQueue* callback)
    : m_pSink(std::move(sink)), m_pClock(std::move(clock)), m_pCallback(callback) {
  // The stream counts as open once its thread waits for work: a song
  // started at once then doesn't lose its first notes to the thread's start.
  std::unique_lock<std::mutex> lock(m_mutex);
  m_thread = std::thread([this] { Run(); });
  m_wake.wait(lock, [this] { return m_bThreadReady; });
}

cMidiStream::~cMidiStream() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    ReturnAllBuffers();
    m_bClosing = true;
  }
  m_wake.notify_all();
  if (m_thread.joinable()) m_thread.join();
}

uint32_t cMidiStream::SetTimeDivision(uint32_t division) {
  bool smpte = (division & 0x8000) != 0;
  if (division == 0 || division > 0xFFFF || (smpte && (division & 0xFF) == 0)) {
    return MMSYSERR_INVALPARAM;
  }
  std::lock_guard<std::mutex> lock(m_mutex);
  m_uDivision = division;
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::SetTempo(uint32_t microsecondsPerQuarter) {
  if (microsecondsPerQuarter == 0) return MMSYSERR_INVALPARAM;
  std::lock_guard<std::mutex> lock(m_mutex);
  m_dAnchorUs = static_cast<double>(DueTimeUs(m_uTick));
  m_uAnchorTick = m_uTick;
  m_uTempo = microsecondsPerQuarter;
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Prepare(cMidiHeader& header) {
  if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
  header.dwFlags |= MHDR_PREPARED;
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Unprepare(cMidiHeader& header) {
  if (header.dwFlags & MHDR_INQUEUE) return MIDIERR_STILLPLAYING;
  header.dwFlags &= ~MHDR_PREPARED;
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Out(cMidiHeader& header) {
  if (!(header.dwFlags & MHDR_PREPARED)) return MIDIERR_UNPREPARED;
  if (header.dwFlags & MHDR_INQUEUE) return MIDIERR_STILLPLAYING;
  if (header.dwBytesRecorded > header.dwBufferLength) return MMSYSERR_INVALPARAM;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    header.dwFlags = (header.dwFlags & ~MHDR_DONE) | MHDR_INQUEUE;
    m_queue.push_back(&header);
  }
  m_wake.notify_all();
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Restart() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_bRunning) return MMSYSERR_NOERROR;
    int64_t now = m_pClock->NowUs();
    if (!m_bStarted) {
      m_dAnchorUs = static_cast<double>(now);
      m_uAnchorTick = m_uTick;
      m_bStarted = true;
    } else {
      m_dAnchorUs += static_cast<double>(now - m_nPausedAtUs);
    }
    m_bRunning = true;
  }
  m_wake.notify_all();
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Pause() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_bRunning) return MMSYSERR_NOERROR;
    m_nPausedAtUs = m_pClock->NowUs();
    m_bRunning = false;
    m_pSink->AllNotesOff(m_nPausedAtUs);
  }
  m_wake.notify_all();
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Stop() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    ReturnAllBuffers();
    Rewind();
    m_pSink->AllNotesOff(m_pClock->NowUs());
  }
  m_wake.notify_all();
  return MMSYSERR_NOERROR;
}

uint32_t cMidiStream::Reset() { return Stop(); }

uint32_t cMidiStream::Close() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_queue.empty()) return MIDIERR_STILLPLAYING;
    m_bClosing = true;
  }
  m_wake.notify_all();
  if (m_thread.joinable()) m_thread.join();
  return MMSYSERR_NOERROR;
}

void cMidiStream::Run() {
  RaiseTimingPriority();
  std::unique_lock<std::mutex> lock(m_mutex);
  m_bThreadReady = true;
  m_wake.notify_all();
  while (!m_bClosing) {
    cEvent event;
    if (m_bRunning) FinishHeaderIfDone();
    if (!m_bRunning || !NextEvent(event)) {
      m_wake.wait(lock);
      continue;
    }
    int64_t due = DueTimeUs(m_uTick + event.delta);
    int64_t now = m_pClock->NowUs();
    if (now < due) {
      // Anything may change while waiting (pause, stop, a tempo): look again.
      m_pClock->WaitUntil(m_wake, lock, due);
      continue;
    }
    m_uTick += event.delta;
    Dispatch(event, now);
    m_uOffset = event.next;
    // The buffer is given back before its callback goes out, so the player
    // woken by it finds the buffer free to fill again.
    FinishHeaderIfDone();
    if (event.word & MEVT_F_CALLBACK) {
      event.header->dwOffset = event.offset;
      m_pCallback->Post(MM_MOM_POSITIONCB, event.header);
    }
  }
}

bool cMidiStream::NextEvent(cEvent& event) const {
  if (m_queue.empty()) return false;
  cMidiHeader* header = m_queue.front();
  if (m_uOffset + kMidiEventWords > header->dwBytesRecorded) return false;
  const uint8_t* p = header->lpData + m_uOffset;
  event.header = header;
  event.offset = m_uOffset;
  event.delta = ReadWord(p);
  event.word = ReadWord(p + 8);
  event.next = m_uOffset + kMidiEventWords;
  if (event.word & MEVT_F_LONG) event.next += PaddedLength(event.word & 0xFFFFFF);
  return event.next <= header->dwBytesRecorded;
}

double cMidiStream::TickDurationUs() const {
  if (m_uDivision & 0x8000) {
    uint32_t frames = 0x100 - ((m_uDivision >> 8) & 0xFF);  // stored as a negative byte
    double rate = frames == 29 ? 29.97 : frames;
    return 1e6 / (rate * (m_uDivision & 0xFF));
  }
  return static_cast<double>(m_uTempo) / m_uDivision;
}

int64_t cMidiStream::DueTimeUs(uint64_t tick) const {
  return static_cast<int64_t>(m_dAnchorUs + static_cast<double>(tick - m_uAnchorTick) * TickDurationUs());
}

void cMidiStream::Dispatch(const cEvent& event, int64_t nowUs) {
  uint8_t type = static_cast<uint8_t>((event.word >> 24) & ~(MEVT_F_CALLBACK >> 24));
  uint32_t parameter = event.word & 0xFFFFFF;
  if (type == MEVT_SHORTMSG) {
    uint8_t status = parameter & 0xFF;
    if (status >= 0x80 && status < 0xF0) m_pSink->ShortMessage(parameter, nowUs);
  } else if (type == MEVT_TEMPO && parameter != 0) {
    m_dAnchorUs = m_dAnchorUs + static_cast<double>(m_uTick - m_uAnchorTick) * TickDurationUs();
    m_uAnchorTick = m_uTick;
    m_uTempo = parameter;
  } else if (type == kLongMessage) {
    m_pSink->LongMessage(event.header->lpData + event.offset + kMidiEventWords, parameter, nowUs);
  }
}

void cMidiStream::FinishHeaderIfDone() {
  if (m_queue.empty()) return;
  cMidiHeader* header = m_queue.front();
  cEvent next;
  if (NextEvent(next)) return;
  header->dwFlags = (header->dwFlags & ~MHDR_INQUEUE) | MHDR_DONE;
  m_queue.pop_front();
  m_uOffset = 0;
}

void cMidiStream::ReturnAllBuffers() {
  for (cMidiHeader* header : m_queue) header->dwFlags = (header->dwFlags & ~MHDR_INQUEUE) | MHDR_DONE;
  m_queue.clear();
  m_uOffset = 0;
}

void cMidiStream::Rewind() {
  m_uTick = 0;
  m_uAnchorTick = 0;
  m_dAnchorUs = 0;
  m_uTempo = kDefaultMidiTempo;
  m_bRunning = false;
  m_bStarted = false;
}

}  // namespace velmora
