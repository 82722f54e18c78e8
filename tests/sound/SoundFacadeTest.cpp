#include <gtest/gtest.h>

#include <cstring>

#include "MidiTestSupport.h"
#include "core/SaveData.h"
#include "sound/MusicPlayer.h"
#include "sound/SampleSounds.h"
#include "sound/SoundFile.h"
#include "sound/WaveFile.h"
#include "sound/WavePlayer.h"

namespace velmora::testing {
namespace {

class SoundFacadeTest : public ::testing::Test {
 protected:
  void SetUp() override {
    MakeDirs("bgm");
    MakeDirs("wave");
    ASSERT_TRUE(WriteSampleWave("wave\\free.wav"));
    ASSERT_TRUE(WriteSampleMidi("bgm\\Free.mid"));
    ASSERT_TRUE(WriteSampleOgg("bgm\\Free.ogg"));
  }
  cReportedProject m_project;
  cRecordedMidiOutput m_output{cManualMidiClock::eMode::Stepped};
};

TEST_F(SoundFacadeTest, TheSampleSoundsAreWhatTheGameReads) {
  cWaveSound wave;
  ASSERT_TRUE(ReadWaveFile("wave\\free.wav", wave));
  EXPECT_EQ(wave.bits, 16);
  EXPECT_EQ(wave.channels, 1);
  EXPECT_GT(wave.Frames(), 2000u);

  cWholeFile midi;
  ASSERT_TRUE(ReadSoundFile("bgm\\Free.mid", midi));
  ASSERT_GT(midi.size, 11u);
  EXPECT_EQ(midi.data[9], 1) << "format 1";
  EXPECT_EQ(midi.data[11], 2) << "two tracks";
  int tempos = 0;
  for (const cTimedEvent& event : ImageEvents(FlattenSmf(midi.data.get(), midi.size, "Free.mid"))) {
    tempos += event.bytes[0] == 0xFF && event.bytes[1] == 0x51;
  }
  EXPECT_EQ(tempos, 2);

  cOggVoice voice;
  EXPECT_TRUE(voice.Load("bgm\\Free.ogg"));
  EXPECT_FALSE(voice.Load("bgm\\Free.mid"));
}

TEST_F(SoundFacadeTest, SetTrackSortsByExactExtension) {
  cOggTrackRow ogg[1] = {{"old.ogg", 7}};
  cMidiTrackRow midi[1] = {{"old.mid", 7}};
  cMusicPlayer player;
  player.Init(1, ogg, midi, 1, 1);
  struct cCase {
    const char* path;
    int result;
    const char* oggRow;
    const char* midiRow;
  } cases[] = {
      {"bgm\\a.MID", 1, "old.ogg", "bgm\\a.mid"},
      {"bgm\\b.ogg", 1, "bgm\\b.ogg", "bgm\\a.mid"},
      {"bgm\\c.Mid", 0, "bgm\\c.Mid", "bgm\\c.Mid"},
      {"bgm\\none", 0, "", ""},
  };
  for (const cCase& c : cases) {
    EXPECT_EQ(player.SetTrack(0, c.path, 40), c.result) << c.path;
    EXPECT_STREQ(ogg[0].path, c.oggRow) << c.path;
    EXPECT_STREQ(midi[0].path, c.midiRow) << c.path;
  }
  player.Shutdown();
}

TEST_F(SoundFacadeTest, ATrackBeyondTheTablesTakesTheBadIndexStopAndRowZero) {
  cOggTrackRow ogg[2] = {{"zero.ogg", 7}, {"beyond.ogg", 7}};
  cMidiTrackRow midi[2] = {{"zero.mid", 7}, {"beyond.mid", 7}};
  cMusicPlayer player;
  player.Init(1, ogg, midi, 1, 1);  // one track: the second rows are not the player's
  EXPECT_EQ(player.SetTrack(1, "bgm\\late.ogg", 40), 1);
  EXPECT_EQ(g_bNoSave, 1);
  EXPECT_STREQ(ogg[0].path, "bgm\\late.ogg");
  EXPECT_STREQ(ogg[1].path, "beyond.ogg");
  g_bNoSave = 0;
  player.Shutdown();
}

TEST_F(SoundFacadeTest, PlayStartsOggOrMidiAndFailsWithNothingPlaying) {
  cOggTrackRow ogg[1] = {{"", 0}};
  cMidiTrackRow midi[1] = {{"", 0}};
  cMusicPlayer player;
  EXPECT_EQ(player.Play(0, 0, true, true), 1) << "not ready: nothing to refuse";
  player.Init(1, ogg, midi, 1, 1);

  player.SetTrack(0, "bgm\\Free.ogg", 50);
  EXPECT_EQ(player.Play(0, 0, true, true), 1);
  EXPECT_EQ(player.Playing(0), cMusicPlayer::kOgg);

  player.SetTrack(0, "bgm\\Free.MID", 50);
  WriteBytes("bgm/Free.MID", {});  // the upper-case name is rewritten, never opened
  EXPECT_EQ(player.Play(0, 0, true, true), 1);
  EXPECT_EQ(player.Playing(0), cMusicPlayer::kMidi);
  EXPECT_EQ(player.Current(), 0);
  EXPECT_EQ(player.Play(0, 0, true, false), 1) << "playing already";

  WriteBytes("bgm/odd.xyz", ReadBytes("bgm/Free.mid"));
  player.SetTrack(0, "bgm\\odd.xyz", 50);
  EXPECT_EQ(player.Play(0, 0, true, true), 0) << "MIDI wants its extension, ogg its format";
  EXPECT_EQ(player.Playing(0), 0);
  EXPECT_EQ(player.Current(), -1);

  player.SetTrack(0, "", 50);
  EXPECT_EQ(player.Play(0, 0, true, true), 0);
  player.Stop();
  player.Shutdown();
}

TEST_F(SoundFacadeTest, AVoiceGetsAVolumeOnlyBelowAHundred) {
  cVoxBank bank;
  bank.Create(1);
  ASSERT_EQ(bank.Start(0, "bgm\\Free.ogg", true, 100), 1);
  EXPECT_EQ(bank.Voice(0)->Volume(), 1.0f);
  ASSERT_EQ(bank.Start(0, "bgm\\Free.ogg", true, 50), 1);
  EXPECT_FLOAT_EQ(bank.Voice(0)->Volume(), 0.5f);
  EXPECT_TRUE(bank.Voice(0)->IsPlaying());
  bank.Stop();
  EXPECT_FALSE(bank.Voice(0)->IsPlaying());
  EXPECT_EQ(bank.Start(0, "", true, 50), 0);
}

TEST_F(SoundFacadeTest, TheWavePreviewPlaysWaveAndMidiOnce) {
  cWavePlayer wave;
  EXPECT_EQ(wave.Open("waveaudio", {"wave\\missing.wav"}), 1) << "a row that can't open stays empty";
  std::string path = "wave\\free.wav";
  EXPECT_EQ(wave.PlayFile(nullptr, 0, path, 0), 1);
  path = "bgm\\Free.MID";
  EXPECT_EQ(wave.PlayFile(nullptr, 0, path, 0), 1);
  EXPECT_EQ(path, "bgm\\Free.mid") << "rewritten in the caller's string";
  for (std::string refused : {"bgm\\Free.ogg", "wave\\free", "wave\\gone.wav", "wave\\free.Wav"}) {
    EXPECT_EQ(wave.PlayFile(nullptr, 0, refused, 0), 0) << refused;
  }
  wave.Close();
}

}  // namespace
}  // namespace velmora::testing
