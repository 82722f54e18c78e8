#pragma once
#include <vorbis/vorbisfile.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/AudioOutput.h"

namespace velmora {

// One ogg voice: a file decoded while it plays, resampled to the output
// rate, repeated as often as asked. Without an audio device it still opens
// and checks its file, and plays unheard.
class cOggVoice {
 public:
  static constexpr uint32_t kRepeatForever = 0x7fffffff;

  cOggVoice() = default;
  ~cOggVoice();
  cOggVoice(const cOggVoice&) = delete;
  cOggVoice& operator=(const cOggVoice&) = delete;

  // Opens a file at a stored path; false when it isn't an ogg vorbis file.
  bool Load(const std::string& path);
  void Play();
  void Stop();
  // Closes the file and brings back full volume and a single play.
  void Reset();
  // 0 plays once; kRepeatForever loops.
  void SetRepeat(uint32_t count);
  void SetVolume(float volume);  // 0.0 to 1.0

  bool IsPlaying() const;
  float Volume() const;

 private:
  void Render(float* left, float* right, int frames);
  bool Refill();
  void Close();

  mutable std::mutex m_mutex;
  OggVorbis_File m_file{};
  bool m_bOpen = false;
  bool m_bPlaying = false;
  uint32_t m_uRepeat = 0;
  float m_fVolume = 1.0f;
  int m_nChannels = 0;
  double m_dStep = 1.0;  // source frames per output frame
  double m_dPos = 0;     // in the decoded block
  std::vector<float> m_left, m_right;
  std::unique_ptr<cAudioOutput> m_pOutput;
};

}  // namespace velmora
