#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "core/EditConfig.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "objects/Chara.h"
#include "objects/Cmd.h"
#include "objects/CmdSummary.h"
#include "objects/CmdTable.h"
#include "objects/GValInfo.h"
#include "objects/RefNames.h"
#include "objects/Shot.h"
#include "platform/ByteOrder.h"
#include "platform/HostPath.h"
#include "platform/TextCodec.h"
#include "project/Database.h"
#include "project/ExitSave.h"
#include "project/ProjectLoad.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "sample/SampleProject.h"
#include "stage/StageEdit.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using testing::ReadBytes;
using testing::WriteBytes;

const char* const kMissingText =
    "%s の読み込みに失敗しました！\nこのファイルが存在しない場合は「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。";
const char* const kTooNewText = "%s の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。";

std::string Formatted(const char* format, const std::string& path) {
  char text[512];
  std::snprintf(text, sizeof text, format, path.c_str());
  return text;
}

uint32_t VersionOf(const std::string& storedPath) {
  const std::vector<uint8_t> bytes = ReadBytes(HostPath(storedPath));
  return bytes.size() < 4 ? 0 : ReadLittle(bytes.data(), 4);
}

void SetVersion(const std::string& storedPath, uint32_t version) {
  std::vector<uint8_t> bytes = ReadBytes(HostPath(storedPath));
  StoreLittle(bytes.data(), version, 4);
  WriteBytes(HostPath(storedPath), bytes);
}

// The sample project, with the editor's globals as a fresh start has them.
class ProjectLoadTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_bNoSave = 0;
    Database() = cEdDatabase();
    g_vecCommonVar.clear();
    StageEdit().m_strPath = "data\\stg4\\old.stg4_950";
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject("p", Fresh(), error)) << error;
    fs::current_path("p");
  }
  void TearDown() override {
    fs::current_path("..");
    InstallRefSizes(nullptr);
    InstallRefNames(nullptr);
    Database() = cEdDatabase();
    g_bNoSave = 0;
  }
  virtual bool Fresh() const { return false; }
  std::string FailureOf(const std::string& path) {
    const size_t before = prompt.Shown().size();
    EXPECT_FALSE(LoadProject()) << path;
    return prompt.Shown().size() == before + 1 ? prompt.LastText() : std::string("(no single box)");
  }

  testing::cTempProject project;
  testing::cScriptedPrompt prompt;
};

TEST_F(ProjectLoadTest, SampleOpensAndChecksSeeTheRealLists) {
  fs::remove("data/stg4/Default.stg4_950");
  ASSERT_TRUE(LoadProject());
  EXPECT_TRUE(prompt.Shown().empty()) << prompt.LastText();
  EXPECT_EQ(static_cast<size_t>(kCommonVarCount), g_vecCommonVar.size());
  EXPECT_EQ(ToCp932("スコア"), g_vecCommonVar[1].m_strName);
  EXPECT_TRUE(fs::exists("data/stg4/Default.stg4_950"));
  EXPECT_TRUE(StageEdit().m_strPath.empty());
  EXPECT_EQ(0, StageEdit().m_bHasStage);

  // The sample has three animation sets and two sounds.
  cEdChara chara;
  chara.m_nAnimeSet = 3;
  chara.CheckRefs();
  EXPECT_EQ(0, chara.m_nAnimeSet);
  chara.m_nAnimeSet = 2;
  chara.CheckRefs();
  EXPECT_EQ(2, chara.m_nAnimeSet);
  cEdCmd sound;
  sound.m_nKind = kCmdSound;
  sound.m_vParam = {3};
  sound.CheckCmd();
  EXPECT_EQ(1, sound.m_vParam[0]);

  // A sword command runs as long as its sword's three positions.
  cEdCmd sword;
  sword.m_nKind = kCmdSword;
  sword.m_pShot.Make();
  sword.CheckCmd();
  EXPECT_EQ(3, sword.m_nTime);

  cEdCmd music;
  music.m_nKind = kCmdBgm;
  music.m_vParam = {1};
  EXPECT_NE(std::string::npos, ToUtf8(CmdSummaryText(music)).find("フリーMIDI"));
  cEdCmd anime;
  anime.m_nKind = kCmdAnime;
  anime.m_vParam = {2, 0};
  EXPECT_NE(std::string::npos, ToUtf8(CmdSummaryText(anime)).find("ジャンプ"));
  EXPECT_EQ(5, RefNames().EffectTime(eDbList::CharaEffect, 1));
  EXPECT_EQ(0, RefNames().EffectTime(eDbList::CharaEffect, 0));
}

TEST_F(ProjectLoadTest, FirstFileMissingStopsTheLoadWithItsName) {
  const std::vector<ePath> files = {ePath::GValInfo, ePath::Picture, ePath::System,
                                    ePath::CommonPalette, ePath::PrjOption, ePath::WorldMap};
  for (ePath file : files) {
    const std::string& path = PathOf(file);
    const std::vector<uint8_t> kept = ReadBytes(HostPath(path));
    fs::remove(HostPath(path));
    EXPECT_EQ(Formatted(kMissingText, path), FailureOf(path));
    WriteBytes(HostPath(path), kept);
  }
  // Two files missing: the one read first is named.
  fs::remove(HostPath(PathOf(ePath::WorldMap)));
  fs::remove(HostPath(PathOf(ePath::System)));
  EXPECT_EQ(Formatted(kMissingText, PathOf(ePath::System)), FailureOf("two"));
}

TEST_F(ProjectLoadTest, NewerFileIsRefusedWithItsOwnTextAndLeftUntouched) {
  const std::string& path = PathOf(ePath::Sound);
  SetVersion(path, 951);
  const std::vector<uint8_t> before = ReadBytes(HostPath(path));
  EXPECT_EQ(Formatted(kTooNewText, path), FailureOf(path));
  EXPECT_EQ(before, ReadBytes(HostPath(path)));
}

TEST_F(ProjectLoadTest, OnlyFilesUpgradedFromOlderVersionsAreWrittenBack) {
  // Version 900 has today's layout for these files.
  for (ePath file : {ePath::Bgm, ePath::WorldMap, ePath::GValInfo}) SetVersion(PathOf(file), 900);
  // Bytes behind the list are never read: a rewrite would drop them.
  std::vector<uint8_t> sound = ReadBytes(HostPath(PathOf(ePath::Sound)));
  sound.push_back(0x5A);
  WriteBytes(HostPath(PathOf(ePath::Sound)), sound);

  // An open that fails on a picture, after every file was read, writes nothing.
  const std::vector<uint8_t> block = ReadBytes("bmp/Block.bmp");
  fs::remove("bmp/Block.bmp");
  EXPECT_EQ("bmp\\Block.bmp が読み込めません！", FailureOf("bmp"));
  EXPECT_EQ(900u, VersionOf(PathOf(ePath::Bgm)));
  WriteBytes("bmp/Block.bmp", block);

  ASSERT_TRUE(LoadProject()) << prompt.LastText();
  EXPECT_EQ(950u, VersionOf(PathOf(ePath::Bgm)));
  EXPECT_EQ(950u, VersionOf(PathOf(ePath::WorldMap)));
  EXPECT_EQ(900u, VersionOf(PathOf(ePath::GValInfo)));
  EXPECT_EQ(sound, ReadBytes(HostPath(PathOf(ePath::Sound))));
}

TEST_F(ProjectLoadTest, MissingCharacterPictureIsToldAndTheProjectStillOpens) {
  const std::string& path = PathOf(ePath::BmpCharaExc);
  cEdDatabase written;
  ASSERT_TRUE(written.LoadList(eDbList::BmpCharaExc, path));
  written.m_CharaBmp.At(1).m_strPath = "bmp\\gone.bmp";
  ASSERT_EQ(1, written.List(eDbList::BmpCharaExc).SaveFile(path));
  ASSERT_TRUE(LoadProject());
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ("bmp\\gone.bmp の読み込みに失敗！", prompt.LastText());
}

TEST_F(ProjectLoadTest, ExitKeepsTheLastStageAndNamesOnlyAfterAFullStart) {
  ASSERT_TRUE(LoadProject());
  const std::vector<uint8_t> config = ReadBytes(HostPath(PathOf(ePath::EditConfig)));
  const std::vector<uint8_t> names = ReadBytes(HostPath(PathOf(ePath::GValInfo)));
  g_vecCommonVar[5].m_strName = "hp";
  StageEdit().m_strPath = "data\\stg4\\Stage2.stg4_950";
  EditConfig edit;

  EXPECT_FALSE(SaveOnExit(edit, false));
  g_bNoSave = 1;
  EXPECT_FALSE(SaveOnExit(edit, true));
  EXPECT_EQ(config, ReadBytes(HostPath(PathOf(ePath::EditConfig))));
  EXPECT_EQ(names, ReadBytes(HostPath(PathOf(ePath::GValInfo))));

  g_bNoSave = 0;
  EXPECT_TRUE(SaveOnExit(edit, true));
  EditConfig read;
  ASSERT_EQ(1, read.LoadFile(PathOf(ePath::EditConfig)));
  EXPECT_EQ("data\\stg4\\Stage2.stg4_950", read.m_strLastStage);
  g_vecCommonVar.clear();
  ASSERT_TRUE(LoadCommonVars());
  EXPECT_EQ("hp", g_vecCommonVar[5].m_strName);
}

class FirstStartTest : public ProjectLoadTest {
 protected:
  bool Fresh() const override { return true; }
};

TEST_F(FirstStartTest, DefaultDataBecomesTheProjectAfterYes) {
  EXPECT_FALSE(CreateDefaultData(nullptr));
  EXPECT_FALSE(fs::exists("data"));
  prompt.QueueAnswer(eAnswer::Yes);
  ASSERT_TRUE(CreateDefaultData(nullptr));
  CreateProjectFolders();
  ASSERT_TRUE(LoadProject()) << prompt.LastText();
  EXPECT_TRUE(fs::exists("data/stg4/Default.stg4_950"));
  EXPECT_EQ(2u, prompt.Shown().size());
}

}  // namespace
}  // namespace velmora
