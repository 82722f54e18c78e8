#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "sound/MidiStreamBank.h"
#include "sound/VoxBank.h"

namespace velmora {

// A numbered file that can be played: one row in each of two tables.
struct cOggTrackRow {
  char path[260];
  int32_t volume;
};
struct cMidiTrackRow {
  char path[264];
  int32_t volume;
};

// The editor's one track, in both tables.
extern cOggTrackRow g_aOggTracks[1];
extern cMidiTrackRow g_aMidiTracks[1];

// The music preview: one ".ogg" or ".mid" file at a time, looping, with a
// volume from 0 to 100 (MIDI plays at its own volume). On this system MIDI
// always goes through the own stream player.
class cMusicPlayer {
 public:
  enum eKind { kUndecided = 0, kOgg = 1, kMidi = 2 };

  // `directMusic` chose the device of an outside MIDI library this build
  // doesn't have; it is taken and not used. Gives 1.
  int Init(int channels, cOggTrackRow* oggTable, cMidiTrackRow* midiTable, int tracks, int directMusic);
  // 1 when the extension says ogg or MIDI.
  int SetTrack(int track, const std::string& path, int volume);
  // 1 if playing.
  int Play(int channel, int track, bool loop, bool force);
  void Stop();
  void Shutdown();

  int Current() const { return m_iCurrent; }
  int Playing(int channel) const;
  // Whether the channel's ogg voice or MIDI song still sounds; Playing
  // tells only what was started last.
  bool IsSounding(int channel) const;

 private:
  int CheckedTrack(int track) const;
  bool StartOgg(int channel, int track, bool loop);
  bool StartMidi(int channel, int track, bool loop);
  void StopMidi();

  int m_bReady = 0;
  cVoxBank m_cVox;
  cOggTrackRow* m_pOggTracks = nullptr;
  cMidiStreamBank m_cStreams;
  cMidiTrackRow* m_pMidiTracks = nullptr;
  int m_iCurrent = -1;
  std::vector<int> m_vecKinds;
  std::vector<int> m_vecPlaying;
};

// The process-wide sound objects, made before the main window.
cMusicPlayer& MusicPlayer();
class cWavePlayer;
cWavePlayer& WavePlayer();

}  // namespace velmora
