#include "platform/AudioOutput.h"

namespace velmora {

std::unique_ptr<cAudioOutput> cAudioOutput::Open(Render render) {
  std::unique_ptr<cAudioOutput> output(new cAudioOutput(std::move(render)));
  output->m_pSettings = NewAudioSettings();
  if (!output->m_pSettings) return nullptr;
  output->m_pDriver = StartAudioDriver(output->m_pSettings, nullptr, &cAudioOutput::Fill, output.get());
  if (!output->m_pDriver) return nullptr;
  return output;
}

cAudioOutput::~cAudioOutput() {
  if (m_pDriver) delete_fluid_audio_driver(m_pDriver);
  if (m_pSettings) delete_fluid_settings(m_pSettings);
}

int cAudioOutput::Fill(void* self, int frames, int, float*[], int outputs, float* buffers[]) {
  if (outputs < 2) return FLUID_OK;
  static_cast<cAudioOutput*>(self)->m_render(buffers[0], buffers[1], frames);
  return FLUID_OK;
}

}  // namespace velmora
