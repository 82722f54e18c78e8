#include "sound/OggVoice.h"

#include "platform/HostPath.h"

namespace velmora {
namespace {

constexpr int kDecodeFrames = 1024;

}  // namespace

cOggVoice::~cOggVoice() {
  m_pOutput.reset();  // the driver's thread stops before the file goes
  Close();
}

bool cOggVoice::Load(const std::string& path) {
  std::lock_guard<std::mutex> lock(m_mutex);
  Close();
  if (ov_fopen(HostPath(path).c_str(), &m_file) != 0) return false;
  vorbis_info* info = ov_info(&m_file, -1);
  if (!info || info->channels < 1 || info->rate <= 0) {
    ov_clear(&m_file);
    return false;
  }
  m_bOpen = true;
  m_nChannels = info->channels;
  m_dStep = static_cast<double>(info->rate) / kAudioSampleRate;
  m_dPos = 0;
  m_left.clear();
  m_right.clear();
  return true;
}

void cOggVoice::Play() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_bOpen) return;
    m_bPlaying = true;
  }
  if (!m_pOutput) m_pOutput = cAudioOutput::Open([this](float* l, float* r, int n) { Render(l, r, n); });
}

void cOggVoice::Stop() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_bPlaying = false;
}

void cOggVoice::Reset() {
  std::lock_guard<std::mutex> lock(m_mutex);
  Close();
  m_uRepeat = 0;
  m_fVolume = 1.0f;
}

void cOggVoice::SetRepeat(uint32_t count) {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_uRepeat = count;
}

void cOggVoice::SetVolume(float volume) {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_fVolume = volume;
}

bool cOggVoice::IsPlaying() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_bPlaying;
}

float cOggVoice::Volume() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_fVolume;
}

void cOggVoice::Render(float* left, float* right, int frames) {
  std::lock_guard<std::mutex> lock(m_mutex);
  for (int i = 0; i < frames && m_bPlaying; ++i) {
    bool decoded = true;
    while (decoded && static_cast<size_t>(m_dPos) >= m_left.size()) decoded = Refill();
    if (!decoded) {
      m_bPlaying = false;
      break;
    }
    size_t at = static_cast<size_t>(m_dPos);
    left[i] += m_left[at] * m_fVolume;
    right[i] += m_right[at] * m_fVolume;
    m_dPos += m_dStep;
  }
}

// Decodes the next block, going back to the start at the end of the file
// while repeats are left.
bool cOggVoice::Refill() {
  m_dPos -= static_cast<double>(m_left.size());
  for (int tries = 0; tries < 2; ++tries) {
    float** pcm = nullptr;
    int section = 0;
    long got = ov_read_float(&m_file, &pcm, kDecodeFrames, &section);
    if (got > 0) {
      m_left.assign(pcm[0], pcm[0] + got);
      m_right.assign(pcm[m_nChannels > 1 ? 1 : 0], pcm[m_nChannels > 1 ? 1 : 0] + got);
      return true;
    }
    if (got < 0 || m_uRepeat == 0 || ov_pcm_seek(&m_file, 0) != 0) return false;
    if (m_uRepeat != kRepeatForever) --m_uRepeat;
  }
  return false;
}

void cOggVoice::Close() {
  if (m_bOpen) ov_clear(&m_file);
  m_bOpen = false;
  m_bPlaying = false;
}

}  // namespace velmora
