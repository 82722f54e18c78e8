// Songs written elsewhere (the openttd-openmsx package of Debian) played by
// the own player and by FluidSynth's file player: both must sound every
// channel event at the same time.

#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "MidiTestSupport.h"
#include "platform/AudioDriver.h"
#include "sound/MidiStreamPlayer.h"
#include "sound/SoundFile.h"

namespace velmora::testing {
namespace {

const char* const kSongFolder = "/usr/share/games/openttd/baseset/openmsx";
const char* const kSongs[] = {"midnight_snow_run.mid", "be_sharp_bw_redfarn.mid", "ttsong_iii_imuh3.mid"};
constexpr int64_t kCompareUs = 30'000'000;  // the first half minute is enough
constexpr int kBlock = 64;                   // FluidSynth's player moves on once a block

struct cPeer {
  int64_t samples = 0;
  std::vector<int64_t> times;
};

int OnPeerEvent(void* data, fluid_midi_event_t* event) {
  auto* peer = static_cast<cPeer*>(data);
  int type = fluid_midi_event_get_type(event);
  if (type >= 0x80 && type < 0xF0) peer->times.push_back(peer->samples * 1'000'000 / kAudioSampleRate);
  return FLUID_OK;
}

std::vector<int64_t> PeerTimes(const std::string& path) {
  QuietFluidSynth();
  fluid_settings_t* settings = NewAudioSettings();
  fluid_synth_t* synth = new_fluid_synth(settings);
  fluid_player_t* player = new_fluid_player(synth);
  cPeer peer;
  fluid_player_set_playback_callback(player, OnPeerEvent, &peer);
  fluid_player_add(player, path.c_str());
  fluid_player_play(player);
  float left[kBlock], right[kBlock];
  while (fluid_player_get_status(player) == FLUID_PLAYER_PLAYING && peer.samples * 1'000'000 / kAudioSampleRate < kCompareUs) {
    fluid_synth_write_float(synth, kBlock, left, 0, 1, right, 0, 1);
    peer.samples += kBlock;
  }
  fluid_player_stop(player);
  delete_fluid_player(player);
  delete_fluid_synth(synth);
  delete_fluid_settings(settings);
  return peer.times;
}

std::vector<int64_t> OwnTimes(const std::string& path, size_t count) {
  cRecordedMidiOutput output(cManualMidiClock::eMode::Jumping);
  cMidiStreamPlayer player(path);
  EXPECT_TRUE(player.HasImage());
  player.Play(false);
  EXPECT_TRUE(output.sink->WaitForShortMessages(count, std::chrono::seconds(20)));
  player.Stop(false);
  std::vector<int64_t> times;
  for (const cRecordedMidi& message : output.sink->ShortMessages()) times.push_back(message.timeUs);
  return times;
}

TEST(DebianMidiFiles, PlayInStepWithFluidSynthsPlayer) {
  int compared = 0;
  for (const char* song : kSongs) {
    std::string path = std::string(kSongFolder) + "/" + song;
    if (!std::filesystem::exists(path)) continue;
    std::vector<int64_t> peer = PeerTimes(path);
    // The peer was stopped inside a block: leave out what it may have cut short.
    while (!peer.empty() && peer.back() > kCompareUs - 10'000) peer.pop_back();
    ASSERT_GT(peer.size(), 50u) << song;
    std::vector<int64_t> own = OwnTimes(path, peer.size());
    ASSERT_GE(own.size(), peer.size()) << song;
    for (size_t i = 0; i < peer.size(); ++i) {
      ASSERT_NEAR(own[i], peer[i], 1500) << song << " event " << i;  // the peer's block is 1.45 ms
    }
    ++compared;
  }
  if (compared == 0) GTEST_SKIP() << "openttd-openmsx is not installed";
}

TEST(DebianMidiFiles, FlattenToImagesThatFlattenToThemselves) {
  int flattened = 0;
  for (const char* song : kSongs) {
    cWholeFile file;
    if (!ReadSoundFile(std::string(kSongFolder) + "/" + song, file)) continue;
    std::vector<uint8_t> image = FlattenSmf(file.data.get(), file.size, song);
    ASSERT_FALSE(image.empty()) << song;
    EXPECT_EQ(FlattenSmf(image.data(), image.size(), song), image) << song << " as format 0";
    ++flattened;
  }
  if (flattened == 0) GTEST_SKIP() << "openttd-openmsx is not installed";
}

}  // namespace
}  // namespace velmora::testing
