#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "MidiTestSupport.h"
#include "sound/MidiStreamBank.h"
#include "sound/SmfWriter.h"

namespace velmora::testing {
namespace {

using namespace std::chrono_literals;

bool WaitFor(const std::function<bool()>& done) {
  for (auto until = std::chrono::steady_clock::now() + 5s; std::chrono::steady_clock::now() < until;) {
    if (done()) return true;
    std::this_thread::sleep_for(1ms);
  }
  return done();
}

std::vector<uint8_t> Keys(const cRecordingMidiSink& sink) {
  std::vector<uint8_t> keys;
  for (const cRecordedMidi& message : sink.ShortMessages()) keys.push_back((message.message >> 8) & 0x7F);
  return keys;
}

// Two tracks at 96 ticks a quarter; the second track ends last, at tick 288.
void WriteShortSong(const std::string& name) {
  cSmfWriter file(1, 96);
  file.AddTrack().Tempo(0, 250000).Event(0, {0x90, 60, 100}).Event(96, {0x80, 60, 0}).End(0);
  file.AddTrack().Event(96, {0x91, 64, 100}).Event(192, {0x81, 64, 0}).End(0);
  WriteBytes(name, file.Bytes());
}

void WriteLongSong(const std::string& name, int notes) {
  cSmfWriter file(0, 96);
  cSmfTrack& track = file.AddTrack();
  for (int i = 0; i < notes; ++i) track.Event(1, {0x90, static_cast<uint8_t>(i % 128), 1});
  track.End(0);
  WriteBytes(name, file.Bytes());
}

class MidiStreamPlayerTest : public ::testing::Test {
 protected:
  cReportedProject m_project;
};

TEST_F(MidiStreamPlayerTest, ASongInOneBufferPlaysOnTimeThenStopsRewoundOrLoopsFromTickZero) {
  cRecordedMidiOutput output(cManualMidiClock::eMode::Jumping);
  WriteShortSong("short.mid");
  cMidiStreamPlayer player("short.mid");
  ASSERT_TRUE(player.HasImage());
  EXPECT_EQ(player.Position(), player.ImageEnd()) << "the whole song went into the first buffer";
  EXPECT_TRUE(player.Header(0).dwFlags & MHDR_INQUEUE);
  EXPECT_EQ(player.State(), cMidiStreamPlayer::kStopped);

  player.Play(false);
  ASSERT_TRUE(WaitFor([&] { return player.State() == cMidiStreamPlayer::kStopped; }));
  std::vector<cRecordedMidi> played = output.sink->ShortMessages();
  ASSERT_EQ(played.size(), 4u);
  // 250 ms a quarter from the tempo event on: ticks 0, 96, 96, 288.
  EXPECT_EQ(played[0].timeUs, 0);
  EXPECT_EQ(played[1].timeUs, 250000);
  EXPECT_EQ(played[1].message & 0xFF, 0x80u) << "a tie goes to the first track";
  EXPECT_EQ(played[2].timeUs, 250000);
  EXPECT_EQ(played[3].timeUs, 750000);
  EXPECT_EQ(output.clock->NowUs(), 750000) << "the song ends with its longest track";
  EXPECT_EQ(player.Position(), player.ImageEnd()) << "rewound and queued again";

  output.sink->Clear();
  player.Play(true);
  ASSERT_TRUE(output.sink->WaitForShortMessages(9, 5s));
  std::vector<cRecordedMidi> looped = output.sink->ShortMessages();
  EXPECT_EQ(looped[4].timeUs - looped[0].timeUs, 750000);
  EXPECT_EQ(looped[5].timeUs - looped[4].timeUs, 250000) << "the tempo comes again with the loop";
  EXPECT_EQ(player.State(), cMidiStreamPlayer::kPlaying);
}

TEST_F(MidiStreamPlayerTest, ALongSongRefillsItsBuffersAndAPauseResumesWithoutANewBuffer) {
  cRecordedMidiOutput output(cManualMidiClock::eMode::Stepped);
  WriteLongSong("long.mid", 5000);
  cMidiStreamPlayer player("long.mid");
  uint32_t afterFirst = player.Position();
  player.Play(false);
  uint32_t afterSecond = player.Position();
  EXPECT_EQ(afterSecond - afterFirst, afterFirst - kSmfImageEvents) << "play queues the second buffer";
  EXPECT_TRUE(player.Header(1).dwFlags & MHDR_INQUEUE);

  output.clock->Advance(100 * 5209);  // 100 notes, each 1/96 of half a second apart
  ASSERT_TRUE(output.sink->WaitForShortMessages(100, 5s));
  player.Stop(true);
  EXPECT_EQ(player.State(), cMidiStreamPlayer::kPaused);
  size_t heard = output.sink->ShortMessages().size();
  player.Play(false);
  EXPECT_EQ(player.State(), cMidiStreamPlayer::kPlaying);
  EXPECT_EQ(player.Position(), afterSecond) << "no buffer added on resume";

  output.clock->Advance(60'000'000);
  ASSERT_TRUE(WaitFor([&] { return player.State() == cMidiStreamPlayer::kStopped; }));
  std::vector<uint8_t> keys = Keys(*output.sink);
  ASSERT_EQ(keys.size(), 5000u);
  for (size_t i = 0; i < keys.size(); ++i) ASSERT_EQ(keys[i], i % 128) << "event " << i << " after " << heard;
}

TEST_F(MidiStreamPlayerTest, FollowsTheStateTable) {
  cRecordedMidiOutput output(cManualMidiClock::eMode::Stepped);
  WriteLongSong("long.mid", 3000);
  cMidiStreamPlayer player("long.mid");
  using P = cMidiStreamPlayer;
  struct cStep {
    std::function<void()> act;
    int state;
  } steps[] = {
      {[&] { player.Stop(true); }, P::kStopped},  {[&] { player.Stop(false); }, P::kStopped},
      {[&] { player.Play(false); }, P::kPlaying}, {[&] { player.Play(true); }, P::kPlaying},
      {[&] { player.Stop(true); }, P::kPaused},   {[&] { player.Stop(true); }, P::kPaused},
      {[&] { player.Play(false); }, P::kPlaying}, {[&] { player.Stop(false); }, P::kStopped},
      {[&] { player.Play(false); }, P::kPlaying}, {[&] { player.Stop(true); }, P::kPaused},
      {[&] { player.Stop(false); }, P::kStopped},
  };
  uint32_t rewound = player.Position();
  for (size_t i = 0; i < std::size(steps); ++i) {
    steps[i].act();
    EXPECT_EQ(player.State(), steps[i].state) << "step " << i;
  }
  EXPECT_EQ(player.Position(), rewound) << "a stop rewinds and queues the first buffer again";
}

TEST_F(MidiStreamPlayerTest, TheBankPlaysOnlyLowerCaseMidAndKeepsAFailedPlayerInItsSlot) {
  cRecordedMidiOutput output(cManualMidiClock::eMode::Stepped);
  WriteShortSong("song.mid");
  WriteShortSong("song.MID");
  cSmfWriter format2(2, 96);
  format2.AddTrack().End(0);
  WriteBytes("f2.mid", format2.Bytes());

  cMidiStreamBank bank;
  bank.Resize(1);
  EXPECT_EQ(bank.Load(0, "song.MID", true), 0);
  EXPECT_EQ(bank.Player(0), nullptr);
  EXPECT_EQ(bank.Load(0, "song", true), 0);
  EXPECT_EQ(bank.Load(0, "song.mid", true), 1);
  ASSERT_NE(bank.Player(0), nullptr);
  EXPECT_EQ(bank.Player(0)->State(), cMidiStreamPlayer::kPlaying);

  EXPECT_EQ(bank.Load(0, "f2.mid", true), 0);
  ASSERT_NE(bank.Player(0), nullptr);
  EXPECT_FALSE(bank.Player(0)->HasImage());
  EXPECT_EQ(bank.Load(0, "gone.mid", false), 0);
  bank.StopAll(false);  // a player without an image takes it quietly
  EXPECT_EQ(m_project.Report(),
            "Midi f2.mid Init 対応フォーマットが2でない\n"
            "Midi gone.mid Create ファイルが開けません\n");
}

}  // namespace
}  // namespace velmora::testing
