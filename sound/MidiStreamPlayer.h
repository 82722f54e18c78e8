#pragma once
#include <memory>
#include <mutex>
#include <thread>

#include "platform/MidiStream.h"
#include "platform/MidiThreadQueue.h"
#include "sound/SmfImage.h"

namespace velmora {

// Plays one song from its image through a MIDI stream, two buffers taking
// turns: whenever the stream has played the last event of a buffer, the
// player's own thread encodes the next part of the song into it. At the end
// of the song the same thread rewinds, and starts again when looping.
class cMidiStreamPlayer : public cSmfImage {
 public:
  enum eState { kStopped = 0, kPlaying = 1, kPaused = 2 };

  // Reads the file; with a good image also opens the stream and queues the
  // first buffer, the stream standing paused.
  explicit cMidiStreamPlayer(const std::string& name);
  ~cMidiStreamPlayer() override;

  // Stores the loop flag and starts or resumes.
  void Play(bool loop);
  // Pause false stops and rewinds; pause true holds the song where it is.
  void Stop(bool pause);

  int State() const;
  uint32_t Position() const;  // image offset of the next event to encode
  uint32_t ImageEnd() const;
  const cMidiHeader& Header(int index) const { return m_pHeaders[index]; }

 private:
  void SetUpStream();
  void Pump();
  void PlayLocked(bool loop);
  void StopLocked(bool pause);
  void RunThread();
  void OnPosition(const cMidiHeader& header);
  void Check(const char* format, uint32_t code) const;

  uint32_t m_uCurBuffer = 0;
  std::unique_ptr<cMidiStream> m_hStream;
  std::unique_ptr<cMidiHeader[]> m_pHeaders;
  std::unique_ptr<std::unique_ptr<uint8_t[]>[]> m_pBuffers;
  uint8_t m_byBuffers = 2;
  uint32_t m_uBufferSize = 24000;  // 2000 short events
  uint32_t m_uPos = 0;
  int m_iState = kStopped;
  std::thread m_hThread;
  int m_bLoop = 0;

  uint32_t m_uEnd = 0;
  cMidiThreadQueue m_queue;
  // The user-interface thread and the player's thread both drive the
  // player; one at a time, so no buffer is filled by both.
  mutable std::mutex m_mutex;
};

}  // namespace velmora
