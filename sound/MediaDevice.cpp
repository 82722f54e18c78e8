#include "sound/MediaDevice.h"

#include <mutex>

#include "platform/AudioOutput.h"
#include "sound/MidiStreamPlayer.h"
#include "sound/WaveFile.h"

namespace velmora {
namespace {

// A wave plays from memory, resampled to the output rate by the nearest
// sample: previews are short and this costs nothing.
class cWaveDevice : public cMediaDevice {
 public:
  explicit cWaveDevice(cWaveSound sound) : m_sound(std::move(sound)) {}
  ~cWaveDevice() override { m_pOutput.reset(); }

  void Play(bool resume, uint32_t fromMs) override {
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      if (!resume) m_dFrame = static_cast<double>(fromMs) * m_sound.rate / 1000.0;
      m_bPlaying = true;
    }
    if (!m_pOutput) m_pOutput = cAudioOutput::Open([this](float* l, float* r, int n) { Render(l, r, n); });
  }
  void Stop() override { Halt(); }
  void SeekToStart() override {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_dFrame = 0;
  }
  void Pause() override { Halt(); }

 private:
  void Halt() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_bPlaying = false;
  }
  void Render(float* left, float* right, int frames) {
    std::lock_guard<std::mutex> lock(m_mutex);
    double step = static_cast<double>(m_sound.rate) / kAudioSampleRate;
    for (int i = 0; i < frames && m_bPlaying; ++i, m_dFrame += step) {
      size_t frame = static_cast<size_t>(m_dFrame);
      if (frame >= m_sound.Frames()) {
        m_bPlaying = false;
        break;
      }
      left[i] += m_sound.Sample(frame, 0);
      right[i] += m_sound.Sample(frame, m_sound.channels - 1);
    }
  }

  cWaveSound m_sound;
  std::mutex m_mutex;
  double m_dFrame = 0;
  bool m_bPlaying = false;
  std::unique_ptr<cAudioOutput> m_pOutput;
};

// A MIDI file plays once through the own stream player.
class cSequencerDevice : public cMediaDevice {
 public:
  explicit cSequencerDevice(std::unique_ptr<cMidiStreamPlayer> player) : m_pPlayer(std::move(player)) {}
  void Play(bool resume, uint32_t) override {
    if (!resume) m_pPlayer->Stop(false);
    m_pPlayer->Play(false);
  }
  void Stop() override { m_pPlayer->Stop(true); }
  void SeekToStart() override { m_pPlayer->Stop(false); }
  void Pause() override { m_pPlayer->Stop(true); }

 private:
  std::unique_ptr<cMidiStreamPlayer> m_pPlayer;
};

}  // namespace

std::unique_ptr<cMediaDevice> OpenMediaDevice(const std::string& deviceType, const std::string& path) {
  if (deviceType == "waveaudio") {
    cWaveSound sound;
    if (!ReadWaveFile(path, sound)) return nullptr;
    return std::make_unique<cWaveDevice>(std::move(sound));
  }
  if (deviceType == "sequencer") {
    auto player = std::make_unique<cMidiStreamPlayer>(path);
    if (!player->HasImage()) return nullptr;
    return std::make_unique<cSequencerDevice>(std::move(player));
  }
  return nullptr;
}

}  // namespace velmora
