#include <gtest/gtest.h>

#include "sound/MusicPlayer.h"
#include "sound/SoundPreview.h"
#include "sound/WavePlayer.h"
#include "support/PreviewProject.h"
#include "support/ScriptedPrompt.h"

namespace velmora::testing {
namespace {

class SoundPreview : public ::testing::Test {
 protected:
  std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& shown : prompt.Shown()) texts.push_back(shown.text);
    return texts;
  }

  cPreviewProject project;
  cScriptedPrompt prompt;
  cSoundPreview preview;
};

TEST_F(SoundPreview, ARowPlaysItsFileAndOneThatCantIsTold) {
  EXPECT_TRUE(preview.Play(eDbList::Sound, 1));
  EXPECT_EQ(WavePlayer().PlayingRow(), 0);
  EXPECT_TRUE(preview.Play(eDbList::Bgm, 1));
  EXPECT_TRUE(MusicPlayer().IsSounding(0));
  EXPECT_EQ(g_aOggTracks[0].volume, cPreviewProject::kMusicVolume) << "at the entry's volume";
  EXPECT_TRUE(Messages().empty());

  EXPECT_FALSE(preview.Play(eDbList::Sound, 2));
  EXPECT_FALSE(preview.Play(eDbList::Bgm, 2));
  EXPECT_EQ(Messages(), (std::vector<std::string>{"読み込み失敗！", "読み込み失敗！"}));
}

TEST_F(SoundPreview, NoneAndRowsBeyondTheListPlayNothingAndSayNothing) {
  for (int row : {0, 3, 4, -1, 9999}) {
    EXPECT_FALSE(preview.Play(eDbList::Sound, row)) << row;
    EXPECT_FALSE(preview.Play(eDbList::Bgm, row)) << row;
  }
  EXPECT_FALSE(preview.Play(eDbList::Picture, 1));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(WavePlayer().PlayingRow(), -1);
}

TEST_F(SoundPreview, StoppingEndsWhatThePreviewStarted) {
  {
    cSoundPreview owned;
    ASSERT_TRUE(owned.Play(eDbList::Bgm, 1));
    ASSERT_TRUE(owned.Play(eDbList::Sound, 1));
  }
  EXPECT_FALSE(MusicPlayer().IsSounding(0)) << "ended with its owner";
  EXPECT_EQ(WavePlayer().PlayingRow(), -1);
}

}  // namespace
}  // namespace velmora::testing
