#include "sound/MidiStreamPlayer.h"

#include <chrono>

#include "core/Log.h"
#include "core/SystemText.h"
#include "sound/MidiBufferEncoder.h"
#include "sound/SmfFlattener.h"

namespace velmora {
namespace {

// Posted until it arrives, so the thread surely takes messages before the
// stream is told to send it any.
constexpr uint32_t kWakeMessage = 0x8000;

constexpr uint32_t kEndEventWord = 0x002FFF;

uint32_t EventWordAt(const cMidiHeader& header) {
  const uint8_t* word = header.lpData + header.dwOffset + 8;
  return static_cast<uint32_t>(word[0]) | static_cast<uint32_t>(word[1]) << 8 |
         static_cast<uint32_t>(word[2]) << 16 | static_cast<uint32_t>(word[3]) << 24;
}

}  // namespace

cMidiStreamPlayer::cMidiStreamPlayer(const std::string& name) : cSmfImage(name) {
  if (!m_pImage) return;
  m_uEnd = SmfImageEnd(*m_pImage);
  SetUpStream();
}

void cMidiStreamPlayer::SetUpStream() {
  m_uCurBuffer = 0;
  m_pHeaders = std::make_unique<cMidiHeader[]>(m_byBuffers);
  m_pBuffers = std::make_unique<std::unique_ptr<uint8_t[]>[]>(m_byBuffers);
  for (uint32_t i = 0; i < m_byBuffers; ++i) {
    m_pBuffers[i] = std::make_unique<uint8_t[]>(m_uBufferSize);
    m_pHeaders[i].lpData = m_pBuffers[i].get();
    m_pHeaders[i].dwBufferLength = m_uBufferSize;
    m_pHeaders[i].dwUser = i;
  }
  m_hThread = std::thread([this] { RunThread(); });
  while (!m_queue.Post(kWakeMessage, nullptr)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  Check(SysText("Midi %s Open %s"), cMidiStream::Open(m_hStream, &m_queue));
  uint32_t division = static_cast<uint32_t>((*m_pImage)[12]) << 8 | (*m_pImage)[13];
  Check(SysText("Midi %s Property %s"), m_hStream->SetTimeDivision(division));
  std::lock_guard<std::mutex> lock(m_mutex);
  m_uPos = kSmfImageEvents;
  m_iState = kStopped;
  Pump();
}

cMidiStreamPlayer::~cMidiStreamPlayer() {
  if (!m_pImage) return;
  // The thread is ended and waited for before anything it uses goes.
  m_queue.PostQuit();
  m_hThread.join();
  Check(SysText("Midi %s Reset %s"), m_hStream->Reset());
  for (uint32_t i = 0; i < m_byBuffers; ++i) Check(SysText("Midi %s Unprepare %s"), m_hStream->Unprepare(m_pHeaders[i]));
  Check(SysText("Midi %s Close %s"), m_hStream->Close());
}

void cMidiStreamPlayer::Play(bool loop) {
  if (!m_pImage) return;
  std::lock_guard<std::mutex> lock(m_mutex);
  PlayLocked(loop);
}

void cMidiStreamPlayer::Stop(bool pause) {
  if (!m_pImage) return;
  std::lock_guard<std::mutex> lock(m_mutex);
  StopLocked(pause);
}

int cMidiStreamPlayer::State() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_iState;
}

uint32_t cMidiStreamPlayer::Position() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_uPos;
}

uint32_t cMidiStreamPlayer::ImageEnd() const { return m_uEnd; }

void cMidiStreamPlayer::PlayLocked(bool loop) {
  m_bLoop = loop;
  if (m_iState == kPlaying) return;
  Check(SysText("Midi %s Restart %s"), m_hStream->Restart());
  int old = m_iState;
  m_iState = kPlaying;
  // From a stop only the first buffer waits; a pause kept both.
  if (old == kStopped) Pump();
}

void cMidiStreamPlayer::StopLocked(bool pause) {
  if (!pause) {
    Check(SysText("Midi %s Stop %s"), m_hStream->Stop());
    m_iState = kStopped;
    m_uPos = kSmfImageEvents;
    Pump();
  } else if (m_iState == kPlaying) {
    Check(SysText("Midi %s Pause %s"), m_hStream->Pause());
    m_iState = kPaused;
  }
}

void cMidiStreamPlayer::Pump() {
  cMidiHeader& header = m_pHeaders[m_uCurBuffer];
  if (m_uPos >= m_uEnd || (header.dwFlags & MHDR_INQUEUE)) return;
  m_uPos += EncodeMidiBuffer(*m_pImage, m_uEnd, m_uPos, header);
  Check(SysText("Midi %s Prepare %s"), m_hStream->Prepare(header));
  Check(SysText("Midi %s Out %s"), m_hStream->Out(header));
  m_uCurBuffer = (m_uCurBuffer + 1) % m_byBuffers;
}

void cMidiStreamPlayer::RunThread() {
  m_queue.Open();
  cMidiThreadMessage message;
  while (m_queue.Get(message) == 1) {
    if (message.message == MM_MOM_POSITIONCB) OnPosition(*message.header);
  }
}

void cMidiStreamPlayer::OnPosition(const cMidiHeader& header) {
  std::lock_guard<std::mutex> lock(m_mutex);
  if ((EventWordAt(header) & 0xFFFFFF) == kEndEventWord) {
    // A stop from the user may have come between the end and this message.
    if (m_iState != kPlaying) return;
    StopLocked(false);
    if (m_bLoop) PlayLocked(true);
  } else if (m_uPos < m_uEnd) {
    Pump();
  }
}

void cMidiStreamPlayer::Check(const char* format, uint32_t code) const {
  if (code != MMSYSERR_NOERROR) ReportFormat(format, m_strName.c_str(), MidiErrorText(code).c_str());
}

}  // namespace velmora
