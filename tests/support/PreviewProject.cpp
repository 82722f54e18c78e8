#include "support/PreviewProject.h"

#include "project/Database.h"
#include "sound/MusicPlayer.h"
#include "sound/SampleSounds.h"
#include "sound/WavePlayer.h"

namespace velmora::testing {
namespace {

template <class Entry>
Entry WithFile(const char* path) {
  Entry entry;
  entry.m_strPath = path;
  return entry;
}

}  // namespace

cPreviewProject::cPreviewProject() {
  MakeDirs("bgm");
  MakeDirs("wave");
  WriteSampleWave("wave\\free.wav");
  WriteSampleOgg("bgm\\Free.ogg");
  Database().m_Sound.m_vecEntries = {cEdSound(), WithFile<cEdSound>("wave\\free.wav"),
                                     WithFile<cEdSound>("wave\\gone.wav"), WithFile<cEdSound>("")};
  cEdBgm music = WithFile<cEdBgm>("bgm\\Free.ogg");
  music.m_iVolume = kMusicVolume;
  Database().m_Bgm.m_vecEntries = {cEdBgm(), music, WithFile<cEdBgm>("bgm\\gone.ogg")};
  MusicPlayer().Init(1, g_aOggTracks, g_aMidiTracks, 1, 0);
  WavePlayer().Open("waveaudio", {"wave\\free.wav"});
}

cPreviewProject::~cPreviewProject() {
  MusicPlayer().Shutdown();
  WavePlayer().Close();
  Database().m_Sound.m_vecEntries.clear();
  Database().m_Bgm.m_vecEntries.clear();
}

}  // namespace velmora::testing
