#include "platform/AudioDriver.h"

#include <mutex>

namespace velmora {
namespace {

// Sound servers first: they mix with other programs. JACK is left out, as
// trying it may start a server of its own.
const char* const kDriverOrder[] = {"pulseaudio", "pipewire", "alsa"};

const int kQuietLevels[] = {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG};

}  // namespace

void QuietFluidSynth() {
  static std::once_flag once;
  std::call_once(once, [] {
    for (int level : kQuietLevels) fluid_set_log_function(level, nullptr, nullptr);
  });
}

fluid_settings_t* NewAudioSettings() {
  QuietFluidSynth();
  fluid_settings_t* settings = new_fluid_settings();
  if (!settings) return nullptr;
  fluid_settings_setnum(settings, "synth.sample-rate", kAudioSampleRate);
  fluid_settings_setint(settings, "audio.period-size", 256);
  return settings;
}

fluid_audio_driver_t* StartAudioDriver(fluid_settings_t* settings, fluid_synth_t* synth, fluid_audio_func_t func,
                                       void* data) {
  for (const char* driver : kDriverOrder) {
    if (fluid_settings_setstr(settings, "audio.driver", driver) != FLUID_OK) continue;
    fluid_audio_driver_t* started =
        func ? new_fluid_audio_driver2(settings, func, data) : new_fluid_audio_driver(settings, synth);
    if (started) return started;
  }
  return nullptr;
}

}  // namespace velmora
