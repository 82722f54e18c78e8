#include "sound/VoxBank.h"

#include "core/CheckedAccess.h"

namespace velmora {

void cVoxBank::Create(int channels) {
  Destroy();
  m_vecVoices.resize(channels);
  for (auto& voice : m_vecVoices) voice = std::make_unique<cOggVoice>();
}

int cVoxBank::Start(int channel, const std::string& path, bool loop, int volume) {
  if (path.empty()) return 0;
  Stop();
  cOggVoice& voice = *VecAt(m_vecVoices, channel);
  voice.Reset();
  if (!voice.Load(path)) return 0;
  // A voice told nothing plays at full volume.
  if (volume < 100) voice.SetVolume(static_cast<float>(volume * 0.01));
  voice.SetRepeat(loop ? cOggVoice::kRepeatForever : 0);
  voice.Play();
  m_iPlaying = channel;
  return 1;
}

void cVoxBank::Stop() {
  if (m_iPlaying < 0) return;
  VecAt(m_vecVoices, m_iPlaying)->Stop();
  m_iPlaying = -1;
}

void cVoxBank::Destroy() {
  m_vecVoices.clear();
  m_iPlaying = -1;
}

cOggVoice* cVoxBank::Voice(int channel) const { return VecAt(m_vecVoices, channel).get(); }

}  // namespace velmora
