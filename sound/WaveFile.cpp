#include "sound/WaveFile.h"

#include <cstring>

#include "platform/ByteOrder.h"
#include "sound/SoundFile.h"

namespace velmora {
namespace {

constexpr uint16_t kPcmFormat = 1;

void AppendTag(std::vector<uint8_t>& out, const char* tag) { out.insert(out.end(), tag, tag + std::strlen(tag)); }

bool ReadFormat(const uint8_t* chunk, uint32_t size, cWaveSound& sound) {
  if (size < 16 || ReadLittle(chunk, 2) != kPcmFormat) return false;
  sound.channels = static_cast<int>(ReadLittle(chunk + 2, 2));
  sound.rate = static_cast<int>(ReadLittle(chunk + 4, 4));
  sound.bits = static_cast<int>(ReadLittle(chunk + 14, 2));
  return (sound.channels == 1 || sound.channels == 2) && (sound.bits == 8 || sound.bits == 16) && sound.rate > 0 &&
         sound.rate <= 192000;
}

}  // namespace

float cWaveSound::Sample(size_t frame, int channel) const {
  size_t at = (frame * channels + channel) * (bits / 8);
  if (bits == 8) return (samples[at] - 128) / 128.0f;
  return static_cast<int16_t>(samples[at] | samples[at + 1] << 8) / 32768.0f;
}

bool ParseWave(const uint8_t* data, size_t size, cWaveSound& sound) {
  if (size < 12 || std::memcmp(data, "RIFF", 4) != 0 || std::memcmp(data + 8, "WAVE", 4) != 0) return false;
  bool haveFormat = false;
  for (size_t at = 12; at + 8 <= size;) {
    uint32_t chunkSize = ReadLittle(data + at + 4, 4);
    const uint8_t* chunk = data + at + 8;
    size_t left = size - at - 8;
    if (std::memcmp(data + at, "fmt ", 4) == 0) {
      if (chunkSize > left || !ReadFormat(chunk, chunkSize, sound)) return false;
      haveFormat = true;
    } else if (std::memcmp(data + at, "data", 4) == 0) {
      if (!haveFormat) return false;
      sound.samples.assign(chunk, chunk + std::min<size_t>(chunkSize, left));  // a cut file keeps what it has
      return true;
    }
    if (chunkSize > left) return false;
    at += 8 + chunkSize + (chunkSize & 1);
  }
  return false;
}

bool ReadWaveFile(const std::string& path, cWaveSound& sound) {
  cWholeFile file;
  return ReadSoundFile(path, file) && ParseWave(file.data.get(), file.size, sound);
}

std::vector<uint8_t> EncodeWave(const cWaveSound& sound) {
  std::vector<uint8_t> out;
  AppendTag(out, "RIFF");
  AppendLittle(out, static_cast<uint32_t>(36 + sound.samples.size()), 4);
  AppendTag(out, "WAVEfmt ");
  int blockAlign = sound.channels * sound.bits / 8;
  AppendLittle(out, 16, 4);
  AppendLittle(out, kPcmFormat, 2);
  AppendLittle(out, sound.channels, 2);
  AppendLittle(out, sound.rate, 4);
  AppendLittle(out, sound.rate * blockAlign, 4);
  AppendLittle(out, blockAlign, 2);
  AppendLittle(out, sound.bits, 2);
  AppendTag(out, "data");
  AppendLittle(out, static_cast<uint32_t>(sound.samples.size()), 4);
  out.insert(out.end(), sound.samples.begin(), sound.samples.end());
  return out;
}

}  // namespace velmora
