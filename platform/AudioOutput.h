#pragma once
#include <fluidsynth.h>

#include <functional>
#include <memory>

#include "platform/AudioDriver.h"

namespace velmora {

// A stereo stream of float samples at kAudioSampleRate to the machine's
// audio output. The render function runs on the driver's thread and adds
// its frames into the two buffers it is given.
class cAudioOutput {
 public:
  using Render = std::function<void(float* left, float* right, int frames)>;

  // Null when the machine has no audio output.
  static std::unique_ptr<cAudioOutput> Open(Render render);
  ~cAudioOutput();
  cAudioOutput(const cAudioOutput&) = delete;
  cAudioOutput& operator=(const cAudioOutput&) = delete;

 private:
  explicit cAudioOutput(Render render) : m_render(std::move(render)) {}
  static int Fill(void* self, int frames, int effects, float* effectBuffers[], int outputs, float* buffers[]);

  Render m_render;
  fluid_settings_t* m_pSettings = nullptr;
  fluid_audio_driver_t* m_pDriver = nullptr;
};

}  // namespace velmora
