#include "sound/SoundFile.h"

namespace velmora {
namespace {

// The 32-bit chunk lengths of wave and MIDI files can describe no more.
constexpr long long kMaxSoundFileBytes = 4LL << 30;

}  // namespace

bool ReadSoundFile(const std::string& path, cWholeFile& file) {
  return ReadWholeFile(path, file, kMaxSoundFileBytes) == eReadResult::Ok;
}

}  // namespace velmora
