#include "sound/WavePlayer.h"

#include "core/CheckedAccess.h"
#include "core/Log.h"
#include "core/SystemText.h"
#include "sound/SoundPath.h"

namespace velmora {

int cWavePlayer::Open(const char* deviceType, const std::vector<std::string>& names) {
  Close();
  if (names.empty()) return 0;
  m_vecRows.resize(names.size());
  for (size_t i = 0; i < names.size(); ++i) {
    m_vecRows[i].deviceType = deviceType;
    m_vecRows[i].element = names[i];
    OpenRow(m_vecRows[i]);  // a row that fails stays empty; the first play tries again
  }
  return 1;
}

int cWavePlayer::PlayFile(OwnerWindow window, int row, std::string& path, uint32_t from) {
  std::string extension;
  if (!SoundExtension(path, extension)) return 0;
  if (extension == "mid" || extension == "MID") {
    RewriteSoundExtension(path, "mid");
    if (!ChangeSound(row, "sequencer", path)) return 0;
    Start(window, row, true, false, from);
    return 1;
  }
  if (extension == "wav" || extension == "WAV") {
    if (!ChangeSound(row, "waveaudio", path)) return 0;
    Start(window, row, false, false, from);
    return 1;
  }
  return 0;
}

bool cWavePlayer::ChangeSound(int row, const char* deviceType, const std::string& path) {
  Halt(false);
  cOpenRow& target = VecAt(m_vecRows, row);
  // One sequencer at a time: every row lets go of its device first.
  if (std::string(deviceType) == "sequencer") {
    for (cOpenRow& each : m_vecRows) each.device.reset();
  }
  target = cOpenRow{deviceType, path, nullptr};
  OpenRow(target);
  if (target.device) return true;
  DebugFormat(SysText("ChangeSound失敗！ %s"), path.c_str());
  return false;
}

void cWavePlayer::Start(OwnerWindow, int row, bool, bool resume, uint32_t from) {
  if (m_iPlaying >= 0) Halt(false);
  cOpenRow& target = VecAt(m_vecRows, row);
  if (target.device) target.device->Play(resume, from);
  m_iPlaying = row;
}

void cWavePlayer::Halt(bool pause) {
  if (m_iPlaying < 0) return;
  cOpenRow& row = VecAt(m_vecRows, m_iPlaying);
  if (!row.device) {
    m_iPlaying = -1;
    return;
  }
  if (pause) {
    row.device->Pause();
  } else {
    row.device->Stop();
    DebugFormat(SysText("Stop成功！ mr = %8x stop =%d"), 0u, m_iPlaying);
    row.device->SeekToStart();
  }
  m_iPlaying = -1;
}

void cWavePlayer::Close() {
  m_vecRows.clear();
  m_iPlaying = -1;
}

void cWavePlayer::OpenRow(cOpenRow& row) { row.device = OpenMediaDevice(row.deviceType, row.element); }

}  // namespace velmora
