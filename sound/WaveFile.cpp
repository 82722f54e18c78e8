#include "sound/WaveFile.h"

#include <cstring>

#include "sound/SoundFile.h"

namespace velmora {
namespace {

constexpr uint16_t kPcmFormat = 1;

uint32_t Little(const uint8_t* p, int bytes) {
  uint32_t value = 0;
  for (int i = bytes - 1; i >= 0; --i) value = value << 8 | p[i];
  return value;
}

void PutLittle(std::vector<uint8_t>& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

bool ReadFormat(const uint8_t* chunk, uint32_t size, cWaveSound& sound) {
  if (size < 16 || Little(chunk, 2) != kPcmFormat) return false;
  sound.channels = static_cast<int>(Little(chunk + 2, 2));
  sound.rate = static_cast<int>(Little(chunk + 4, 4));
  sound.bits = static_cast<int>(Little(chunk + 14, 2));
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
    uint32_t chunkSize = Little(data + at + 4, 4);
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
  std::vector<uint8_t> bytes;
  return ReadSoundFile(path, bytes) && ParseWave(bytes.data(), bytes.size(), sound);
}

std::vector<uint8_t> EncodeWave(const cWaveSound& sound) {
  std::vector<uint8_t> out = {'R', 'I', 'F', 'F'};
  PutLittle(out, static_cast<uint32_t>(36 + sound.samples.size()), 4);
  out.insert(out.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
  int blockAlign = sound.channels * sound.bits / 8;
  PutLittle(out, 16, 4);
  PutLittle(out, kPcmFormat, 2);
  PutLittle(out, sound.channels, 2);
  PutLittle(out, sound.rate, 4);
  PutLittle(out, sound.rate * blockAlign, 4);
  PutLittle(out, blockAlign, 2);
  PutLittle(out, sound.bits, 2);
  out.insert(out.end(), {'d', 'a', 't', 'a'});
  PutLittle(out, static_cast<uint32_t>(sound.samples.size()), 4);
  out.insert(out.end(), sound.samples.begin(), sound.samples.end());
  return out;
}

}  // namespace velmora
