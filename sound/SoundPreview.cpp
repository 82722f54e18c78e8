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

bool StartSound(const std::string& file) {
  std::string path = file;
  return WavePlayer().PlayFile(nullptr, 0, path, 0) == 1;
}

bool StartMusic(const std::string& path, int volume) {
  MusicPlayer().SetTrack(0, path, volume);
  return MusicPlayer().Play(0, 0, true, true) == 1;
}

}  // namespace

bool cSoundPreview::Play(eDbList list, int row) {
  if (list == eDbList::Sound) {
    const cEdSound* entry = EntryWithFile(Database().m_Sound, list, row);
    return entry && PlayFile(list, entry->m_strPath, 0);
  }
  if (list == eDbList::Bgm) {
    const cEdBgm* entry = EntryWithFile(Database().m_Bgm, list, row);
    return entry && PlayFile(list, entry->m_strPath, entry->m_iVolume);
  }
  return false;
}

bool cSoundPreview::PlayFile(eDbList list, const std::string& path, int volume) {
  if (path.empty() || (list != eDbList::Sound && list != eDbList::Bgm)) return false;
  bool started = false;
  if (list == eDbList::Sound) started = m_bSound = StartSound(path);
  else started = m_bMusic = StartMusic(path, volume);
  if (!started) ErrorBoxText(SysText("読み込み失敗！"));
  return started;
}

void cSoundPreview::Stop() {
  if (m_bSound) WavePlayer().Halt(false);
  if (m_bMusic) MusicPlayer().Stop();
  m_bSound = m_bMusic = false;
}

}  // namespace velmora
