#pragma once
#include <fluidsynth.h>

namespace velmora {

// Sound reaches the machine's output through FluidSynth's audio drivers,
// for the synthesiser and for decoded waves alike. Each start tries the
// sound systems in turn and gives null when the machine has none: callers
// then go on silently.

// Keeps FluidSynth from printing its complaints about missing devices.
void QuietFluidSynth();

// Settings for the output: 44100 Hz stereo.
fluid_settings_t* NewAudioSettings();
constexpr int kAudioSampleRate = 44100;

// With `func` null the driver plays `synth`; else it calls `func`.
fluid_audio_driver_t* StartAudioDriver(fluid_settings_t* settings, fluid_synth_t* synth, fluid_audio_func_t func,
                                       void* data);

}  // namespace velmora
