#pragma once
#include <memory>
#include <string>
#include <vector>

#include "sound/OggVoice.h"

namespace velmora {

// The ogg voices of the music player, one per channel, and which one plays.
class cVoxBank {
 public:
  // Frees the old voices and makes one per channel.
  void Create(int channels);
  // Starts the file on the channel's voice: 1 when it plays.
  int Start(int channel, const std::string& path, bool loop, int volume);
  // Stops the voice that plays, if any.
  void Stop();
  void Destroy();
  cOggVoice* Voice(int channel) const;

 private:
  std::vector<std::unique_ptr<cOggVoice>> m_vecVoices;
  int m_iPlaying = -1;
};

}  // namespace velmora
