#pragma once
#include <fluidsynth.h>

#include <memory>

#include "platform/MidiSink.h"

namespace velmora {

enum class eSynthAudio {
  Device,   // plays to the machine's audio output; no sink without one
  Offline,  // renders only on request, for checks without a device
};

// The General MIDI synthesiser: FluidSynth with the soundfont of the
// timgm6mb-soundfont package.
class cFluidSynthSink : public cMidiSink {
 public:
  static std::shared_ptr<cFluidSynthSink> Create(eSynthAudio audio);
  cFluidSynthSink(fluid_settings_t* settings, fluid_synth_t* synth);
  ~cFluidSynthSink() override;
  cFluidSynthSink(const cFluidSynthSink&) = delete;
  cFluidSynthSink& operator=(const cFluidSynthSink&) = delete;

  void ShortMessage(uint32_t message, int64_t timeUs) override;
  void LongMessage(const uint8_t* data, size_t size, int64_t timeUs) override;
  void AllNotesOff(int64_t timeUs) override;
  // Renders stereo frames; for an offline synthesiser only.
  void Render(float* left, float* right, int frames);

 private:
  fluid_settings_t* m_pSettings;
  fluid_synth_t* m_pSynth;
  fluid_audio_driver_t* m_pDriver = nullptr;
};

// The soundfont file, or empty when the package is missing.
const char* GeneralMidiSoundfont();

}  // namespace velmora
