#include "sound/SoundPreview.h"

#include <string>

#include "core/Log.h"
#include "core/SystemText.h"
#include "project/Database.h"
#include "sound/MusicPlayer.h"
#include "sound/WavePlayer.h"

namespace velmora {
namespace {

template <class Entry>
const Entry* EntryWithFile(const cDbList<Entry>& list, eDbList which, int row) {
  const Entry* entry = list.Resolve(row, DbListInfo(which).rule);
  return entry && !entry->m_strPath.empty() ? entry : nullptr;
}

bool StartSound(std::string path) { return WavePlayer().PlayFile(nullptr, 0, path, 0) == 1; }

bool StartMusic(const std::string& path, int volume) {
  MusicPlayer().SetTrack(0, path, volume);
  return MusicPlayer().Play(0, 0, true, true) == 1;
}

bool ToldIfFailed(bool started) {
  if (!started) ErrorBoxText(SysText("読み込み失敗！"));
  return started;
}

}  // namespace

bool cSoundPreview::Play(eDbList list, int row) {
  if (list == eDbList::Sound) {
    const cEdSound* entry = EntryWithFile(Database().m_Sound, list, row);
    return entry && PlaySoundFile(entry->m_strPath);
  }
  if (list == eDbList::Bgm) {
    const cEdBgm* entry = EntryWithFile(Database().m_Bgm, list, row);
    return entry && PlayMusicFile(entry->m_strPath, entry->m_iVolume);
  }
  return false;
}

bool cSoundPreview::PlaySoundFile(const std::string& path) {
  if (path.empty()) return false;
  m_bSound = StartSound(path);
  return ToldIfFailed(m_bSound);
}

bool cSoundPreview::PlayMusicFile(const std::string& path, int volume) {
  if (path.empty()) return false;
  m_bMusic = StartMusic(path, volume);
  return ToldIfFailed(m_bMusic);
}

void cSoundPreview::Stop() {
  if (m_bSound) WavePlayer().Halt(false);
  if (m_bMusic) MusicPlayer().Stop();
  m_bSound = m_bMusic = false;
}

}  // namespace velmora
