#pragma once
#include <cstdint>
#include <string>

namespace velmora {

// The settings of "System.ini" that start from the default entries of the
// system record. The system record fills one of these with its defaults.
struct cSystemIniDefaults {
  int32_t nDirect3D = 0;
  int32_t nWindowMode = 0;
  int32_t nBpp = 0;
  int32_t nVSync = 0;
  int32_t nD3DFontCache = 0;
  int32_t nDDFontCache = 0;
  int32_t nDDVideoStretch = 0;
  int32_t nShowFps = 0;
  std::string strFreeStage;
  int32_t nEnglish = 0;
  int32_t nMidiDirectMusic = 0;
};

// What the editor holds of "System.ini": the settings above and the replay
// keys, which may be absent. Only Midi_DirectMusic is used.
struct cSystemIni : cSystemIniDefaults {
  int32_t nReplayOn = 0;
  bool bReplayOn = false;
  int32_t nReplayAutomaticSave = 0;
  bool bReplayAutomaticSave = false;
  int32_t nReplayPlaybackOrder = 0;
  bool bReplayPlaybackOrder = false;
  int32_t nReplayAutomaticMessageProgress = 0;
  bool bReplayAutomaticMessageProgress = false;
};

void ResetSystemIni(cSystemIni& ini, const cSystemIniDefaults& defaults);
// Starts from the defaults and reads the file over them. False when the
// file is missing or ends without its "Exit" line: the caller then goes
// back to the defaults.
bool LoadSystemIni(const std::string& name, cSystemIni& ini, const cSystemIniDefaults& defaults);

}  // namespace velmora
