#include "sound/MusicPlayer.h"

#include <cstring>

#include "core/CheckedAccess.h"
#include "sound/SoundPath.h"
#include "sound/WavePlayer.h"

namespace velmora {
namespace {

template <size_t N>
void StoreRow(char (&row)[N], int32_t& rowVolume, const std::string& path, int volume) {
  size_t length = std::min(path.size(), N - 1);
  std::memcpy(row, path.data(), length);
  row[length] = '\0';
  rowVolume = volume;
}

}  // namespace

cOggTrackRow g_aOggTracks[1] = {{"bgm\\Free.ogg", 100}};
cMidiTrackRow g_aMidiTracks[1] = {{"bgm\\Free.mid", 100}};

int cMusicPlayer::Init(int channels, cOggTrackRow* oggTable, cMidiTrackRow* midiTable, int tracks, int) {
  m_bReady = 1;
  m_cStreams.Resize(channels);
  m_cVox.Create(channels);
  m_vecPlaying.assign(channels, 0);
  m_pOggTracks = oggTable;
  m_pMidiTracks = midiTable;
  m_vecKinds.assign(tracks, kUndecided);
  return 1;
}

int cMusicPlayer::SetTrack(int track, const std::string& path, int volume) {
  if (!m_bReady) return 1;
  track = CheckedTrack(track);
  int& kind = m_vecKinds[static_cast<size_t>(track)];
  cOggTrackRow& ogg = m_pOggTracks[track];
  cMidiTrackRow& midi = m_pMidiTracks[track];
  std::string extension;
  if (!SoundExtension(path, extension)) {
    StoreRow(ogg.path, ogg.volume, "", 0);
    StoreRow(midi.path, midi.volume, "", 0);
    kind = kUndecided;
    return 0;
  }
  if (extension == "mid" || extension == "MID") {
    std::string rewritten = path;
    RewriteSoundExtension(rewritten, "mid");
    StoreRow(midi.path, midi.volume, rewritten, volume);
    kind = kMidi;
    return 1;
  }
  StoreRow(ogg.path, ogg.volume, path, volume);
  if (extension == "ogg" || extension == "OGG") {
    kind = kOgg;
    return 1;
  }
  StoreRow(midi.path, midi.volume, path, volume);
  kind = kUndecided;
  return 0;
}

int cMusicPlayer::Play(int channel, int track, bool loop, bool force) {
  if (!m_bReady) return 1;
  if (track == m_iCurrent && !force) return 1;
  track = CheckedTrack(track);
  m_iCurrent = track;
  const int kind = m_vecKinds[static_cast<size_t>(track)];
  int& playing = VecAt(m_vecPlaying, channel);
  if (kind != kMidi && StartOgg(channel, track, loop)) {
    playing = kOgg;
    StopMidi();
    return 1;
  }
  if (kind != kOgg && StartMidi(channel, track, loop)) {
    playing = kMidi;
    m_cVox.Stop();
    return 1;
  }
  playing = 0;
  m_iCurrent = -1;
  m_cVox.Stop();
  StopMidi();
  return 0;
}

void cMusicPlayer::Stop() {
  if (!m_bReady) return;
  StopMidi();
  m_cVox.Stop();
}

void cMusicPlayer::Shutdown() {
  if (!m_bReady) return;
  m_cVox.Destroy();
  m_cStreams.Clear();
  m_bReady = 0;
}

// The track tables are the caller's arrays with a row per kind: a track
// outside them takes the bad-index stop of the kinds and row 0, and is
// never looked up in the tables as it came.
int cMusicPlayer::CheckedTrack(int track) const {
  return static_cast<int>(&VecAt(m_vecKinds, track) - m_vecKinds.data());
}

int cMusicPlayer::Playing(int channel) const { return VecAt(m_vecPlaying, channel); }

bool cMusicPlayer::IsSounding(int channel) const {
  if (!m_bReady) return false;
  const cOggVoice* voice = m_cVox.Voice(channel);
  const cMidiStreamPlayer* song = m_cStreams.Player(channel);
  return (voice && voice->IsPlaying()) || (song && song->State() == cMidiStreamPlayer::kPlaying);
}

bool cMusicPlayer::StartOgg(int channel, int track, bool loop) {
  const cOggTrackRow& row = m_pOggTracks[track];
  return m_cVox.Start(channel, row.path, loop, row.volume) == 1;
}

// The own player has no volume: the row's volume doesn't reach it.
bool cMusicPlayer::StartMidi(int channel, int track, bool loop) {
  return m_cStreams.Load(channel, m_pMidiTracks[track].path, loop) == 1;
}

void cMusicPlayer::StopMidi() { m_cStreams.StopAll(false); }

cMusicPlayer& MusicPlayer() {
  static cMusicPlayer player;
  return player;
}

cWavePlayer& WavePlayer() {
  static cWavePlayer player;
  return player;
}

}  // namespace velmora
