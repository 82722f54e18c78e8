#pragma once
#include <memory>
#include <string>
#include <vector>

#include "sound/MidiStreamPlayer.h"

namespace velmora {

// One slot per music channel, each holding the player of its song or none.
// Every load replaces all players: a stream is never reused for a new song.
class cMidiStreamBank {
 public:
  ~cMidiStreamBank();
  // New slots are empty.
  void Resize(int channels);
  // Plays the ".mid" file at `path` in the channel's slot: 1 if it plays.
  int Load(int channel, const std::string& path, bool loop);
  void StopAll(bool pause);
  // Destroys every player and leaves no slot.
  void Clear();
  cMidiStreamPlayer* Player(int channel) const;

 private:
  void DestroyPlayers();
  std::vector<std::unique_ptr<cMidiStreamPlayer>> m_vecPlayers;
};

}  // namespace velmora
