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

bool StartMusic(const cEdBgm& entry) {
  MusicPlayer().SetTrack(0, entry.m_strPath, entry.m_iVolume);
  return MusicPlayer().Play(0, 0, true, true) == 1;
}

}  // namespace

bool cSoundPreview::Play(eDbList list, int row) {
  bool started = false;
  if (list == eDbList::Sound) {
    const cEdSound* entry = EntryWithFile(Database().m_Sound, list, row);
    if (!entry) return false;
    started = m_bSound = StartSound(entry->m_strPath);
  } else if (list == eDbList::Bgm) {
    const cEdBgm* entry = EntryWithFile(Database().m_Bgm, list, row);
    if (!entry) return false;
    started = m_bMusic = StartMusic(*entry);
  } else {
    return false;
  }
  if (!started) ErrorBoxText(SysText("読み込み失敗！"));
  return started;
}

bool cSoundPreview::PlaySoundFile(const std::string& path) {
  if (path.empty()) return false;
  m_bSound = StartSound(path);
  if (!m_bSound) ErrorBoxText(SysText("読み込み失敗！"));
  return m_bSound;
}

void cSoundPreview::Stop() {
  if (m_bSound) WavePlayer().Halt(false);
  if (m_bMusic) MusicPlayer().Stop();
  m_bSound = m_bMusic = false;
}

}  // namespace velmora
