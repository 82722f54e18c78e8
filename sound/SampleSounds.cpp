#include "sound/SampleSounds.h"

#include <vorbis/vorbisenc.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/WholeFile.h"
#include "sound/SmfWriter.h"
#include "sound/WaveFile.h"

namespace velmora {
namespace {

constexpr int kRate = 22050;
constexpr double kPi = 3.14159265358979323846;

// The tune: MIDI keys of a short phrase, one a beat.
const uint8_t kMelody[] = {72, 76, 79, 76, 74, 77, 81, 77, 72, 76, 79, 84};
const uint8_t kBass[] = {48, 53, 55, 48};

double KeyFrequency(int key) { return 440.0 * std::pow(2.0, (key - 69) / 12.0); }

// A plucked tone: a sine with its octave, fading out.
void AddTone(std::vector<float>& out, size_t start, double frequency, double seconds, float level) {
  size_t frames = static_cast<size_t>(seconds * kRate);
  if (out.size() < start + frames) out.resize(start + frames, 0.0f);
  for (size_t i = 0; i < frames; ++i) {
    double t = static_cast<double>(i) / kRate;
    double envelope = std::exp(-4.0 * t / seconds) * std::min(1.0, t * 200);
    out[start + i] += static_cast<float>(level * envelope *
                                         (std::sin(2 * kPi * frequency * t) + 0.3 * std::sin(4 * kPi * frequency * t)));
  }
}

std::vector<float> TuneSamples() {
  std::vector<float> samples;
  const double beat = 0.3;
  for (size_t i = 0; i < std::size(kMelody); ++i) {
    AddTone(samples, static_cast<size_t>(i * beat * kRate), KeyFrequency(kMelody[i]), beat * 1.5, 0.25f);
  }
  for (size_t i = 0; i < std::size(kBass); ++i) {
    AddTone(samples, static_cast<size_t>(i * 3 * beat * kRate), KeyFrequency(kBass[i]), beat * 3, 0.2f);
  }
  return samples;
}

bool WriteOggPages(ogg_stream_state& stream, std::vector<uint8_t>& out, bool flush) {
  ogg_page page;
  while (flush ? ogg_stream_flush(&stream, &page) : ogg_stream_pageout(&stream, &page)) {
    out.insert(out.end(), page.header, page.header + page.header_len);
    out.insert(out.end(), page.body, page.body + page.body_len);
    if (ogg_page_eos(&page)) return true;
  }
  return true;
}

std::vector<uint8_t> EncodeOgg(const std::vector<float>& samples) {
  std::vector<uint8_t> out;
  vorbis_info info;
  vorbis_info_init(&info);
  if (vorbis_encode_init_vbr(&info, 1, kRate, 0.3f) != 0) {
    vorbis_info_clear(&info);
    return out;
  }
  vorbis_comment comment;
  vorbis_comment_init(&comment);
  vorbis_dsp_state dsp;
  vorbis_analysis_init(&dsp, &info);
  vorbis_block block;
  vorbis_block_init(&dsp, &block);
  ogg_stream_state stream;
  ogg_stream_init(&stream, 1);
  ogg_packet header, commentPacket, codebook;
  vorbis_analysis_headerout(&dsp, &comment, &header, &commentPacket, &codebook);
  ogg_stream_packetin(&stream, &header);
  ogg_stream_packetin(&stream, &commentPacket);
  ogg_stream_packetin(&stream, &codebook);
  WriteOggPages(stream, out, true);

  constexpr size_t kChunk = 1024;
  for (size_t at = 0; at <= samples.size(); at += kChunk) {
    size_t count = std::min(kChunk, samples.size() - std::min(at, samples.size()));
    if (count) {
      float** buffer = vorbis_analysis_buffer(&dsp, static_cast<int>(count));
      std::copy(samples.begin() + at, samples.begin() + at + count, buffer[0]);
    }
    vorbis_analysis_wrote(&dsp, static_cast<int>(count));  // 0 marks the end
    while (vorbis_analysis_blockout(&dsp, &block) == 1) {
      vorbis_analysis(&block, nullptr);
      vorbis_bitrate_addblock(&block);
      ogg_packet packet;
      while (vorbis_bitrate_flushpacket(&dsp, &packet)) {
        ogg_stream_packetin(&stream, &packet);
        WriteOggPages(stream, out, false);
      }
    }
    if (!count) break;
  }
  WriteOggPages(stream, out, true);
  ogg_stream_clear(&stream);
  vorbis_block_clear(&block);
  vorbis_dsp_clear(&dsp);
  vorbis_comment_clear(&comment);
  vorbis_info_clear(&info);
  return out;
}

}  // namespace

bool WriteSampleWave(const std::string& path) {
  cWaveSound sound;
  sound.channels = 1;
  sound.rate = kRate;
  sound.bits = 16;
  std::vector<float> samples;
  AddTone(samples, 0, KeyFrequency(84), 0.25, 0.4f);
  AddTone(samples, kRate / 12, KeyFrequency(91), 0.2, 0.3f);
  for (float sample : samples) {
    int16_t value = static_cast<int16_t>(std::lround(std::clamp(sample, -1.0f, 1.0f) * 32767));
    sound.samples.push_back(static_cast<uint8_t>(value & 0xFF));
    sound.samples.push_back(static_cast<uint8_t>((value >> 8) & 0xFF));
  }
  return WriteWholeFile(path, EncodeWave(sound));
}

bool WriteSampleMidi(const std::string& path) {
  constexpr uint32_t kBeat = 96;
  cSmfWriter file(1, kBeat);
  cSmfTrack& conductor = file.AddTrack();
  conductor.Meta(0, 0x03, "Free").Tempo(0, 500000).Tempo(kBeat * 8, 428571);  // quicker in the second bar pair
  conductor.End(kBeat * 4);
  cSmfTrack& tune = file.AddTrack();
  tune.Event(0, {0xC0, 11}).Event(0, {0xC1, 32});  // vibraphone, acoustic bass
  for (uint8_t key : kMelody) tune.Event(0, {0x90, key, 90}).Event(kBeat, {0x80, key, 0});
  uint32_t rest = 0;
  for (uint8_t key : kBass) {
    tune.Event(rest, {0x91, key, 80}).Event(kBeat * 3 - 8, {0x81, key, 0});
    rest = 8;
  }
  tune.End(0);
  return WriteWholeFile(path, file.Bytes());
}

bool WriteSampleOgg(const std::string& path) {
  std::vector<uint8_t> bytes = EncodeOgg(TuneSamples());
  return !bytes.empty() && WriteWholeFile(path, bytes);
}

}  // namespace velmora
