#include "platform/FluidSynthSink.h"

#include <unistd.h>

#include "platform/AudioDriver.h"

namespace velmora {
namespace {

const char* const kSoundfonts[] = {
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/default-GM.sf2",
};

using ChannelHandler = void (*)(fluid_synth_t*, int channel, int data1, int data2);

// By the high nibble of the status, 0x8 to 0xE.
const ChannelHandler kChannelHandlers[] = {
    [](fluid_synth_t* s, int c, int key, int) { fluid_synth_noteoff(s, c, key); },
    [](fluid_synth_t* s, int c, int key, int velocity) { fluid_synth_noteon(s, c, key, velocity); },
    [](fluid_synth_t* s, int c, int key, int value) { fluid_synth_key_pressure(s, c, key, value); },
    [](fluid_synth_t* s, int c, int control, int value) { fluid_synth_cc(s, c, control, value); },
    [](fluid_synth_t* s, int c, int program, int) { fluid_synth_program_change(s, c, program); },
    [](fluid_synth_t* s, int c, int value, int) { fluid_synth_channel_pressure(s, c, value); },
    [](fluid_synth_t* s, int c, int low, int high) { fluid_synth_pitch_bend(s, c, low | high << 7); },
};

constexpr int kAllNotesOff = 123;

}  // namespace

const char* GeneralMidiSoundfont() {
  for (const char* path : kSoundfonts) {
    if (::access(path, R_OK) == 0) return path;
  }
  return "";
}

std::shared_ptr<cFluidSynthSink> cFluidSynthSink::Create(eSynthAudio audio) {
  const char* soundfont = GeneralMidiSoundfont();
  if (!*soundfont) return nullptr;
  fluid_settings_t* settings = NewAudioSettings();
  if (!settings) return nullptr;
  fluid_synth_t* synth = new_fluid_synth(settings);
  if (!synth) {
    delete_fluid_settings(settings);
    return nullptr;
  }
  auto sink = std::make_shared<cFluidSynthSink>(settings, synth);
  if (audio == eSynthAudio::Device) {
    sink->m_pDriver = StartAudioDriver(settings, synth, nullptr, nullptr);
    if (!sink->m_pDriver) return nullptr;
  }
  if (fluid_synth_sfload(synth, soundfont, 1) == FLUID_FAILED) return nullptr;
  return sink;
}

cFluidSynthSink::cFluidSynthSink(fluid_settings_t* settings, fluid_synth_t* synth)
    : m_pSettings(settings), m_pSynth(synth) {}

cFluidSynthSink::~cFluidSynthSink() {
  if (m_pDriver) delete_fluid_audio_driver(m_pDriver);
  delete_fluid_synth(m_pSynth);
  delete_fluid_settings(m_pSettings);
}

void cFluidSynthSink::ShortMessage(uint32_t message, int64_t) {
  int status = message & 0xFF;
  if (status < 0x80 || status >= 0xF0) return;
  kChannelHandlers[(status >> 4) - 8](m_pSynth, status & 0x0F, (message >> 8) & 0x7F, (message >> 16) & 0x7F);
}

void cFluidSynthSink::LongMessage(const uint8_t* data, size_t size, int64_t) {
  // FluidSynth wants the message without its F0 and the closing F7.
  if (size < 2 || data[0] != 0xF0) return;
  size_t body = size - 1;
  if (data[size - 1] == 0xF7) --body;
  fluid_synth_sysex(m_pSynth, reinterpret_cast<const char*>(data + 1), static_cast<int>(body), nullptr, nullptr,
                    nullptr, 0);
}

void cFluidSynthSink::AllNotesOff(int64_t) {
  for (int channel = 0; channel < 16; ++channel) fluid_synth_cc(m_pSynth, channel, kAllNotesOff, 0);
}

void cFluidSynthSink::Render(float* left, float* right, int frames) {
  fluid_synth_write_float(m_pSynth, frames, left, 0, 1, right, 0, 1);
}

}  // namespace velmora
