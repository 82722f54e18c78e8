// Plays real Standard MIDI Files through the own stream player into the
// recording sink, and through FluidSynth's own file player, and measures
// how far each channel event lands from the time its tick and the tempo map
// give. Also times the flattening of the largest file.

#include <fluidsynth.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/AudioDriver.h"
#include "platform/MidiClock.h"
#include "platform/MidiOutputDevice.h"
#include "platform/MidiRecordingSink.h"
#include "sound/MidiStreamPlayer.h"
#include "sound/MidiVarLen.h"
#include "sound/SmfFlattener.h"
#include "sound/SmfWriter.h"

using namespace velmora;

namespace {

const char* const kSongFolder = "/usr/share/games/openttd/baseset/openmsx";
const char* const kSongs[] = {"tttheme2.mid", "midnight_snow_run.mid", "be_sharp_bw_redfarn.mid"};
constexpr auto kPlayTime = std::chrono::milliseconds(2000);

std::vector<uint8_t> ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The due time in microseconds of every channel event of an image, from
// its ticks, its division and its tempo events.
std::vector<double> DueTimes(const std::vector<uint8_t>& image) {
  double division = image[12] << 8 | image[13];
  double tempo = 500000, timeUs = 0;
  std::vector<double> due;
  const uint8_t* p = image.data() + kSmfImageEvents;
  const uint8_t* end = image.data() + SmfImageEnd(image);
  while (p < end) {
    cVarLen delta = ReadVarLen(p, end);
    p += delta.bytes;
    timeUs += delta.value * tempo / division;
    uint8_t status = *p;
    if (status == 0xFF) {
      cVarLen length = ReadVarLen(p + 2, end);
      if (p[1] == 0x51 && length.value == 3) tempo = p[3] << 16 | p[4] << 8 | p[5];
      p += 2 + length.bytes + length.value;
    } else if (status == 0xF0 || status == 0xF7) {
      cVarLen length = ReadVarLen(p + 1, end);
      p += 1 + length.bytes + length.value;
    } else {
      due.push_back(timeUs);
      p += ((status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0) ? 2 : 3;
    }
  }
  return due;
}

int64_t NowUs() { return cSteadyMidiClock().NowUs(); }

// Errors in ms of the events heard, matched in order to their due times.
void AddErrors(const std::vector<double>& due, const std::vector<int64_t>& heard, int64_t startUs,
               std::vector<double>& errors) {
  for (size_t i = 0; i < heard.size() && i < due.size(); ++i) {
    errors.push_back(std::abs(static_cast<double>(heard[i] - startUs) - due[i]) / 1000.0);
  }
}

void PlayOwn(const std::string& path, const std::vector<double>& due, std::vector<double>& errors) {
  auto sink = std::make_shared<cRecordingMidiSink>();
  SetMidiOutput({sink, std::make_shared<cSteadyMidiClock>()});
  cMidiStreamPlayer player(path);
  int64_t start = NowUs();
  player.Play(false);
  std::this_thread::sleep_for(kPlayTime);
  player.Stop(false);
  std::vector<int64_t> heard;
  for (const cRecordedMidi& message : sink->ShortMessages()) heard.push_back(message.timeUs);
  AddErrors(due, heard, start, errors);
  SetMidiOutput({});
}

struct cPeerLog {
  fluid_synth_t* synth;
  std::mutex mutex;
  std::vector<int64_t> heard;
};

int OnPeerEvent(void* data, fluid_midi_event_t* event) {
  auto* log = static_cast<cPeerLog*>(data);
  int type = fluid_midi_event_get_type(event);
  if (type >= 0x80 && type < 0xF0) {
    std::lock_guard<std::mutex> lock(log->mutex);
    log->heard.push_back(NowUs());
  }
  return fluid_synth_handle_midi_event(log->synth, event);
}

void PlayPeer(const std::string& path, const std::vector<double>& due, std::vector<double>& errors) {
  fluid_settings_t* settings = NewAudioSettings();
  fluid_settings_setstr(settings, "player.timing-source", "system");
  fluid_synth_t* synth = new_fluid_synth(settings);
  fluid_player_t* player = new_fluid_player(synth);
  cPeerLog log{synth, {}, {}};
  fluid_player_set_playback_callback(player, OnPeerEvent, &log);
  fluid_player_add(player, path.c_str());
  int64_t start = NowUs();
  fluid_player_play(player);
  std::this_thread::sleep_for(kPlayTime);
  fluid_player_stop(player);
  fluid_player_join(player);
  delete_fluid_player(player);
  AddErrors(due, log.heard, start, errors);
  delete_fluid_synth(synth);
  delete_fluid_settings(settings);
}

double Percentile(std::vector<double> values, double fraction) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[std::min(values.size() - 1, static_cast<size_t>(fraction * (values.size() - 1) + 0.5))];
}

std::vector<std::string> SongPaths() {
  std::vector<std::string> paths;
  for (const char* song : kSongs) {
    std::string path = std::string(kSongFolder) + "/" + song;
    if (std::filesystem::exists(path)) paths.push_back(path);
  }
  if (paths.empty()) {
    // Without the Debian songs, a written one keeps the figures coming.
    cSmfWriter file(1, 480);
    file.AddTrack().Tempo(0, 400000).Tempo(1920, 300000).End(0);
    cSmfTrack& notes = file.AddTrack();
    for (int i = 0; i < 400; ++i) notes.Event(60, {0x90, static_cast<uint8_t>(40 + i % 40), 80});
    notes.End(0);
    std::string path = (std::filesystem::temp_directory_path() / "velmora_bench.mid").string();
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(file.Bytes().data()),
                                                static_cast<std::streamsize>(file.Bytes().size()));
    paths.push_back(path);
  }
  return paths;
}

double FlattenLargestMs(const std::vector<std::string>& paths) {
  std::vector<uint8_t> largest;
  for (const std::string& path : paths) {
    std::vector<uint8_t> bytes = ReadFile(path);
    if (bytes.size() > largest.size()) largest = std::move(bytes);
  }
  double best = 1e9;
  for (int round = 0; round < 20; ++round) {
    auto begin = std::chrono::steady_clock::now();
    std::vector<uint8_t> image = FlattenSmf(largest.data(), largest.size(), "bench");
    std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    best = std::min(best, took.count());
  }
  std::printf("# largest file %zu bytes\n", largest.size());
  return best;
}

}  // namespace

int main() {
  QuietFluidSynth();
  std::vector<std::string> paths = SongPaths();
  std::vector<double> own, peer;
  for (const std::string& path : paths) {
    std::vector<uint8_t> bytes = ReadFile(path);
    std::vector<uint8_t> image = FlattenSmf(bytes.data(), bytes.size(), path);
    std::vector<double> due = DueTimes(image);
    size_t ownBefore = own.size(), peerBefore = peer.size();
    PlayOwn(path, due, own);
    PlayPeer(path, due, peer);
    std::printf("# %s: %zu events heard by the own player, %zu by the peer\n",
                std::filesystem::path(path).filename().c_str(), own.size() - ownBefore, peer.size() - peerBefore);
  }
  std::printf("# own:  p50 %.3f ms  p99 %.3f ms  max %.3f ms\n", Percentile(own, 0.5), Percentile(own, 0.99),
              Percentile(own, 1.0));
  std::printf("# peer: p50 %.3f ms  p99 %.3f ms  max %.3f ms\n", Percentile(peer, 0.5), Percentile(peer, 0.99),
              Percentile(peer, 1.0));
  std::printf("BENCH midi_timing_p50_ms %.3f ms target <= 1\n", Percentile(own, 0.5));
  std::printf("BENCH midi_timing_p99_ms %.3f ms target <= 1\n", Percentile(own, 0.99));
  std::printf("BENCH midi_timing_max_ms %.3f ms target <= 5\n", Percentile(own, 1.0));
  std::printf("BENCH midi_timing_p99_peer_ms %.3f ms target >= %.3f\n", Percentile(peer, 0.99),
              Percentile(own, 0.99));
  std::printf("BENCH midi_flatten_largest_ms %.3f ms target <= 5\n", FlattenLargestMs(paths));
  return 0;
}
