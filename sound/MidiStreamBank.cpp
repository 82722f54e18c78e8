#include "sound/MidiStreamBank.h"

#include "core/CheckedAccess.h"
#include "sound/SoundPath.h"

namespace velmora {

cMidiStreamBank::~cMidiStreamBank() { Clear(); }

void cMidiStreamBank::Resize(int channels) { m_vecPlayers.resize(channels); }

int cMidiStreamBank::Load(int channel, const std::string& path, bool loop) {
  StopAll(true);
  DestroyPlayers();
  std::string extension;
  if (!SoundExtension(path, extension) || extension != "mid") return 0;
  std::unique_ptr<cMidiStreamPlayer>& slot = VecAt(m_vecPlayers, channel);
  slot = std::make_unique<cMidiStreamPlayer>(path);
  if (!slot->HasImage()) return 0;
  slot->Play(loop);
  return 1;
}

void cMidiStreamBank::StopAll(bool pause) {
  for (auto& player : m_vecPlayers) {
    if (player) player->Stop(pause);
  }
}

void cMidiStreamBank::Clear() {
  DestroyPlayers();
  m_vecPlayers.clear();
}

cMidiStreamPlayer* cMidiStreamBank::Player(int channel) const { return VecAt(m_vecPlayers, channel).get(); }

void cMidiStreamBank::DestroyPlayers() {
  for (auto& player : m_vecPlayers) player.reset();
}

}  // namespace velmora
