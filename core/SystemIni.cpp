#include "core/SystemIni.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/FileSystem.h"

namespace velmora {
namespace {

constexpr int kLineLimit = 10000;

struct cIntKey {
  const char* name;
  int32_t cSystemIniDefaults::*value;
};

const cIntKey kIntKeys[] = {
    {"Direct3D", &cSystemIniDefaults::nDirect3D},
    {"WindowMode", &cSystemIniDefaults::nWindowMode},
    {"Bpp", &cSystemIniDefaults::nBpp},
    {"VSync", &cSystemIniDefaults::nVSync},
    {"D3D_FontCache", &cSystemIniDefaults::nD3DFontCache},
    {"DD_FontCache", &cSystemIniDefaults::nDDFontCache},
    {"DD_VideoStretch", &cSystemIniDefaults::nDDVideoStretch},
    {"ShowFps", &cSystemIniDefaults::nShowFps},
    {"English", &cSystemIniDefaults::nEnglish},
    {"Midi_DirectMusic", &cSystemIniDefaults::nMidiDirectMusic},
};

// Keys that may be absent: a negative value marks them so.
struct cOptionalKey {
  const char* name;
  int32_t cSystemIni::*value;
  bool cSystemIni::*present;
  int32_t over;    // a value above this ...
  int32_t becomes; // ... is stored as this
};

const cOptionalKey kOptionalKeys[] = {
    {"Replay_On", &cSystemIni::nReplayOn, &cSystemIni::bReplayOn, INT32_MAX, INT32_MAX},
    {"Replay_AutomaticSave", &cSystemIni::nReplayAutomaticSave, &cSystemIni::bReplayAutomaticSave, 2, 2},
    {"Replay_PlaybackOrder", &cSystemIni::nReplayPlaybackOrder, &cSystemIni::bReplayPlaybackOrder, 2, 2},
    {"Replay_AutomaticMessageProgress", &cSystemIni::nReplayAutomaticMessageProgress,
     &cSystemIni::bReplayAutomaticMessageProgress, 21, 20},
};

void StoreValue(cSystemIni& ini, const std::string& key, const std::string& value) {
  for (const cIntKey& entry : kIntKeys) {
    if (key == entry.name) {
      ini.*entry.value = std::atoi(value.c_str());
      return;
    }
  }
  for (const cOptionalKey& entry : kOptionalKeys) {
    if (key != entry.name) continue;
    int32_t number = std::atoi(value.c_str());
    ini.*entry.present = number >= 0;
    if (number >= 0) ini.*entry.value = number > entry.over ? entry.becomes : number;
    return;
  }
  if (key == "FreeStage" && value.size() > 1 && value.size() < 260) ini.strFreeStage = value;
}

enum class eKeyEnd { Key, LineWithoutValue, EndOfFile, ZeroByte };

eKeyEnd ReadKey(std::FILE* file, std::string& key) {
  key.clear();
  for (;;) {
    int c = std::fgetc(file);
    if (c == EOF) return eKeyEnd::EndOfFile;
    if (c == '\r' || c == ' ' || c == '\t') continue;
    if (c == 0) return eKeyEnd::ZeroByte;
    if (c == '=') return eKeyEnd::Key;
    if (c == '\n') return eKeyEnd::LineWithoutValue;
    key += static_cast<char>(c);
  }
}

std::string ReadValue(std::FILE* file) {
  std::string value;
  for (;;) {
    int c = std::fgetc(file);
    if (c == EOF || c == ' ' || c == '\t' || c == '/' || c == '\n' || c == 0) return value;
    value += static_cast<char>(c);
  }
}

bool Parse(std::FILE* file, cSystemIni& ini) {
  std::string key;
  for (int line = 0; line < kLineLimit; ++line) {
    switch (ReadKey(file, key)) {
      case eKeyEnd::EndOfFile:
        return false;
      case eKeyEnd::ZeroByte:
        return true;
      case eKeyEnd::LineWithoutValue:
        if (key == "Exit") return true;
        continue;
      case eKeyEnd::Key:
        StoreValue(ini, key, ReadValue(file));
        continue;
    }
  }
  return true;
}

}  // namespace

void ResetSystemIni(cSystemIni& ini, const cSystemIniDefaults& defaults) {
  ini = cSystemIni();
  static_cast<cSystemIniDefaults&>(ini) = defaults;
}

bool LoadSystemIni(const std::string& name, cSystemIni& ini, const cSystemIniDefaults& defaults) {
  std::FILE* file = OpenFile(name, "rb");
  if (!file) return false;
  ResetSystemIni(ini, defaults);
  const bool complete = Parse(file, ini);
  std::fclose(file);
  return complete;
}

}  // namespace velmora
