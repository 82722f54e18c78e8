// A wave file as the sound preview reads it, every sample of it taken.
#include "sound/WaveFile.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  cWaveSound sound;
  if (!ReadWaveFile(fuzz::PlaceInput("wave\\fuzz.wav", data, size), sound)) return 0;
  float sum = 0;
  for (size_t frame = 0; frame < sound.Frames(); ++frame) {
    for (int channel = 0; channel < sound.channels; ++channel) sum += sound.Sample(frame, channel);
  }
  if (sum != sum) __builtin_trap();  // a sample that is no number
  return 0;
}
