#include <gtest/gtest.h>

#include "core/EditConfig.h"
#include "core/OptionLists.h"
#include "core/SheetSize.h"
#include "core/SystemIni.h"
#include "platform/Screen.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cTempProject;
using testing::WriteBytes;
using testing::WriteText;

TEST(EditConfigTest, DefaultsRoundTripAndPairedVisibility) {
  cTempProject project;
  EditConfig config;
  EXPECT_EQ("data\\stg4\\Default.stg4_***", config.m_strTemplateStage);
  EXPECT_EQ("bmp\\convert", config.m_strBmpFolder);
  EXPECT_EQ(15, config.m_nBmpLineOut);
  config.m_strLastStage = "data\\stg4\\a.stg4_950";
  config.m_aPlace[1].m_bVisible = 0;
  config.m_aPlace[2].m_bVisible = 1;
  config.m_aPlace[4].m_bVisible = 0;
  config.m_aPlace[0].m_nX = 50;
  ASSERT_EQ(1, config.SaveFile("e.dat"));
  EditConfig loaded;
  ASSERT_EQ(1, loaded.LoadFile("e.dat"));
  EXPECT_EQ("data\\stg4\\a.stg4_950", loaded.m_strLastStage);
  EXPECT_EQ(50, loaded.m_aPlace[0].m_nX);
  EXPECT_EQ(0, loaded.m_aPlace[3].m_bVisible);
  EXPECT_EQ(0, loaded.m_aPlace[5].m_bVisible);
  EXPECT_EQ(1, loaded.m_aPlace[4].m_bVisible);
  EXPECT_EQ(1, loaded.m_aPlace[6].m_bVisible);
}

TEST(EditConfigTest, PlacesAreClampedIntoTheScreenAsRead) {
  cTempProject project;
  EditConfig config;
  config.m_aPlace[0].m_nX = 5000;
  config.m_aPlace[0].m_nY = -20;
  config.m_aPlace[7].m_nY = 3000;
  ASSERT_EQ(1, config.SaveFile("e.dat"));
  SetScreenSize({800, 600});
  EditConfig loaded;
  loaded.LoadFile("e.dat");
  SetScreenSize({});
  EXPECT_EQ(800, loaded.m_aPlace[0].m_nX);
  EXPECT_EQ(0, loaded.m_aPlace[0].m_nY);
  EXPECT_EQ(600, loaded.m_aPlace[7].m_nY);
}

TEST(EditConfigTest, OldFilesKeepBuiltInPlacesAndSkipRetiredFields) {
  cTempProject project;
  // Version 100: retired string, last stage, three pages, five values,
  // three bitmap values, mode, folder; no window places.
  cBytes body;
  body.I32(3 + 5 + 3 + 1).I32(1).I32(2).I32(0);
  body.I32(1).I32(0).I32(0).I32(0).I32(7).I32(1).I32(3).I32(14).I32(1);
  body.I32(3).Str("old").Str("data\\stg4\\x.stg4_100").Str("bmp\\out");
  cBytes file;
  file.U32(100).Raw(body.Data().data(), body.Data().size());
  WriteBytes("e.dat", file.Data());
  EditConfig loaded;
  ASSERT_EQ(1, loaded.LoadFile("e.dat"));
  EXPECT_EQ("data\\stg4\\x.stg4_100", loaded.m_strLastStage);
  EXPECT_EQ(2, loaded.m_anEditPage[1]);
  EXPECT_EQ(1, loaded.m_bEditIfPlaced);
  EXPECT_EQ(7, loaded.m_nBmpTransColor);
  EXPECT_EQ(14, loaded.m_nBmpLineOut);
  EXPECT_EQ(1, loaded.m_bBmpSameAsInput);
  EXPECT_EQ("bmp\\out", loaded.m_strBmpFolder);
  EXPECT_EQ("data\\stg4\\Default.stg4_***", loaded.m_strTemplateStage);
  EXPECT_EQ(1, loaded.m_aPlace[0].m_bVisible);
}

TEST(SheetSizeTest, RoundTrip) {
  cTempProject project;
  SheetSize size;
  size.m_nSystemMajor = 6;
  size.m_strFontFace = "IPAGothic";
  size.m_dRateX = 1.5;
  ASSERT_EQ(1, size.SaveFile("s.dat"));
  SheetSize loaded;
  ASSERT_EQ(1, loaded.LoadFile("s.dat"));
  EXPECT_TRUE(IsSame(size, loaded));
  EXPECT_EQ(1.5, loaded.m_dRateX);
}

class SystemIniTest : public ::testing::Test {
 protected:
  bool Load(const std::string& text) {
    WriteText("System.ini", text);
    return LoadSystemIni("System.ini", ini, defaults);
  }
  cTempProject project;
  cSystemIniDefaults defaults;
  cSystemIni ini;
};

TEST_F(SystemIniTest, ExitLineEndsTheFileAndBlanksAroundItCount) {
  defaults.nBpp = 32;
  EXPECT_TRUE(Load("Midi_DirectMusic=1\r\nBpp=16 // colour depth\r\n  Exit \r\nShowFps=1\n"));
  EXPECT_EQ(1, ini.nMidiDirectMusic);
  EXPECT_EQ(16, ini.nBpp);
  EXPECT_EQ(0, ini.nShowFps);
  EXPECT_FALSE(Load("Midi_DirectMusic=1\nExit=\n"));
  EXPECT_FALSE(Load("Midi_DirectMusic=1\n"));
  EXPECT_FALSE(LoadSystemIni("missing.ini", ini, defaults));
  EXPECT_TRUE(Load(std::string("WindowMode=1\n\0rest", 18)));
  EXPECT_EQ(1, ini.nWindowMode);
  EXPECT_EQ(32, ini.nBpp);  // from the defaults
}

TEST_F(SystemIniTest, ReplayKeysAreCappedOrMarkedAbsent) {
  EXPECT_TRUE(Load("Replay_AutomaticSave=5\nReplay_PlaybackOrder=-1\nReplay_AutomaticMessageProgress=22\n"
                   "Replay_On=7\nExit\n"));
  EXPECT_TRUE(ini.bReplayAutomaticSave);
  EXPECT_EQ(2, ini.nReplayAutomaticSave);
  EXPECT_FALSE(ini.bReplayPlaybackOrder);
  EXPECT_EQ(20, ini.nReplayAutomaticMessageProgress);
  EXPECT_EQ(7, ini.nReplayOn);
  EXPECT_TRUE(Load("Replay_AutomaticMessageProgress=21\nExit\n"));
  EXPECT_EQ(21, ini.nReplayAutomaticMessageProgress);
}

TEST_F(SystemIniTest, FreeStageNeedsMoreThanOneCharacter) {
  defaults.strFreeStage = "default";
  EXPECT_TRUE(Load("FreeStage=a\nExit\n"));
  EXPECT_EQ("default", ini.strFreeStage);
  EXPECT_TRUE(Load("FreeStage=ab\nExit\n"));
  EXPECT_EQ("ab", ini.strFreeStage);
  EXPECT_TRUE(Load("FreeStage=" + std::string(260, 'x') + "\nExit\n"));
  EXPECT_EQ("default", ini.strFreeStage);
}

TEST(OptionListsTest, HitLevelsRepeatAtTheLimit) {
  const std::vector<std::string>& levels = OptionList(eOptionList::HitLevel);
  ASSERT_EQ(19u, levels.size());
  EXPECT_EQ("レベル10 (速度制限=600)", levels[9]);
  EXPECT_EQ("レベル1 (速度制限=600)", levels[10]);
  EXPECT_EQ("レベル9 (速度制限=600)", levels[18]);
  EXPECT_EQ(8u, OptionList(eOptionList::Colour).size());
}

}  // namespace
}  // namespace velmora
