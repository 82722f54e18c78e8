#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

// Wave files as the game plays them: uncompressed PCM of 8 or 16 bits, one
// or two channels, in the plain format (not the extensible one).
struct cWaveSound {
  int channels = 0;
  int rate = 0;
  int bits = 0;
  std::vector<uint8_t> samples;

  size_t Frames() const { return bits && channels ? samples.size() / (bits / 8 * channels) : 0; }
  // One channel's sample of a frame, -1.0 to 1.0.
  float Sample(size_t frame, int channel) const;
};

// False for anything else, or a damaged file.
bool ParseWave(const uint8_t* data, size_t size, cWaveSound& sound);
bool ReadWaveFile(const std::string& path, cWaveSound& sound);  // a stored path
std::vector<uint8_t> EncodeWave(const cWaveSound& sound);

}  // namespace velmora
