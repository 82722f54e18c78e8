#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;
using testing::ReadBytes;
using testing::WriteBytes;

const char* kStored = "data\\stg4\\a.stg4_950";
const char* kHost = "data/stg4/a.stg4_950";
const char* kBackupHost = "data/work/a.stg4_950";

// A project with the stage folders and an edit stage that has a player,
// saved once through the dialog.
class cStageFilesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeStageFolders();
    StageEdit() = cStageEdit();
    EditStage().InitDefault();
    cEdChara& player = EditStage().m_vecCharaCell[0];
    player.m_nGraphicNo = 1;
    player.m_nControl = 0;
    m_prompt.QueuePath(kStored);
    ASSERT_EQ(1, SaveStage(1));
  }

  cTempProject m_project;
  cScriptedPrompt m_prompt;
};

TEST_F(cStageFilesTest, FirstSaveAsksForAPathAndAnUnchangedStageWritesNothing) {
  EXPECT_EQ(".\\data\\stg4\\a.stg4_950", StageEdit().m_strPath);
  EXPECT_EQ(0, StageEdit().m_bStageChanged);
  std::remove(kHost);
  EXPECT_EQ(1, SaveStage(1));
  EXPECT_TRUE(ReadBytes(kHost).empty());
}

TEST_F(cStageFilesTest, OverwriteLeavesNoBackupAndAFailedOneKeepsTheOldFile) {
  const std::vector<uint8_t> before = ReadBytes(kHost);
  EditStage().m_vecBlockCell[3].m_nGraphicNo = 2;
  StageEdit().m_bStageChanged = 1;
  ASSERT_EQ(1, SaveStage(1));
  EXPECT_NE(before, ReadBytes(kHost));
  EXPECT_TRUE(ReadBytes(kBackupHost).empty());

  const std::vector<uint8_t> good = ReadBytes(kHost);
  StageEdit().m_bStageChanged = 1;
  g_bNoSave = 1;
  EXPECT_EQ(0, SaveStage(1));
  g_bNoSave = 0;
  EXPECT_EQ(good, ReadBytes(kHost));
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
}

TEST_F(cStageFilesTest, FileCutOffMidSaveIsReplacedByTheBackup) {
  const std::vector<uint8_t> good = ReadBytes(kHost);
  WriteBytes(kBackupHost, good);
  std::vector<uint8_t> cut(good.begin(), good.end() - 1);
  WriteBytes(kHost, cut);
  EditStage().InitDefault();
  ASSERT_EQ(1, LoadStage(kStored));
  EXPECT_EQ(good, ReadBytes(kHost));
  EXPECT_TRUE(EditStage().HasPlayer());
  EXPECT_NE(std::string::npos, m_prompt.LastText().find("を復旧しました"));

  // With no backup the broken file is all there is, and it stays.
  WriteBytes(kHost, cut);
  CheckStageFile(kStored);
  EXPECT_EQ(cut, ReadBytes(kHost));
}

TEST_F(cStageFilesTest, OldVersionIsSavedBesideItThroughTheDialog) {
  const std::vector<uint8_t> bytes = ReadBytes(kHost);
  std::vector<uint8_t> old = bytes;
  const uint32_t version = 700;
  std::memcpy(old.data(), &version, 4);
  WriteBytes("data/stg4/a.stg4_700", old);
  std::string latest;
  ASSERT_EQ(1, FindLatestVersion(latest, "data\\stg4\\a.stg4_***", "stg4"));
  EXPECT_EQ(kStored, latest);

  std::remove(kHost);
  StageEdit().m_strPath = ".\\data\\stg4\\a.stg4_700";
  m_prompt.QueuePath(kStored);
  ASSERT_EQ(1, SaveStage(1));  // the default option deletes the old version
  EXPECT_TRUE(ReadBytes("data/stg4/a.stg4_700").empty());
  EXPECT_FALSE(ReadBytes(kHost).empty());
}

TEST_F(cStageFilesTest, LeavingAsksForStageThenCommonPalette) {
  StageEdit().m_bHasStage = 1;
  StageEdit().m_bStageChanged = 1;
  StageEdit().m_bCommonChanged = 1;
  m_prompt.QueueAnswer(eAnswer::No);
  m_prompt.QueueAnswer(eAnswer::Cancel);
  EXPECT_EQ(0, AskSaveBeforeExit());
  m_prompt.QueueAnswer(eAnswer::No);
  m_prompt.QueueAnswer(eAnswer::No);
  EXPECT_EQ(1, AskSaveBeforeExit());

  CloseStage();
  EXPECT_EQ(0, StageEdit().m_bHasStage);
  EXPECT_TRUE(StageEdit().m_strPath.empty());
}

TEST_F(cStageFilesTest, StartUpOpensTheLastStageOrAnEmptyOne) {
  OpenLastStage(".\\data\\stg4\\a.stg4_950");
  EXPECT_EQ(1, StageEdit().m_bHasStage);
  EXPECT_TRUE(EditStage().HasPlayer());
  OpenLastStage(".\\data\\stg4\\gone.stg4_950");
  EXPECT_EQ(0, StageEdit().m_bHasStage);
  EXPECT_EQ(32, EditStage().m_nWidth);
}

// Every way of getting a stage builds its history for the stage's own
// level count, so the first stroke after it can be undone.
TEST_F(cStageFilesTest, OpenCloseAndNewLeaveAHistoryOfTheStagesDepth) {
  EditStage().m_iUndoCount = 2;
  EditStage().m_vecBlockCell[0].m_nGraphicNo = 1;
  StageEdit().m_bStageChanged = 1;
  ASSERT_EQ(1, SaveStage(1));
  m_prompt.QueuePath(kStored);
  ASSERT_EQ(1, OpenStage());
  EXPECT_EQ(2u, StageEdit().m_vecUndoBlock.size());
  RecordStep(kLayerAll);
  EXPECT_TRUE(CanUndo());
  CloseStage();
  EXPECT_FALSE(CanUndo());
  EXPECT_EQ(static_cast<size_t>(EditStage().m_iUndoCount), StageEdit().m_vecUndoBlock.size());
  OpenLastStage(".\\data\\stg4\\a.stg4_950");
  EXPECT_EQ(2u, StageEdit().m_vecRedoItem.size());
}

TEST_F(cStageFilesTest, NewStageReadsTheNewestTemplateAndItsPaletteSource) {
  EditStage().m_vecBlockPlt.resize(5);
  EditStage().m_vecBlockPlt[4].m_nGraphicNo = 9;
  StageEdit().m_bStageChanged = 1;
  ASSERT_EQ(1, SaveStage(1));
  StageEdit().m_bHasStage = 1;

  const int windowsClosedBefore = m_prompt.ClosedMessageWindows();
  EXPECT_EQ(eNewStageResult::Kept, CreateNewStage("", kNewPaletteEmpty, ""));
  m_prompt.QueueAnswer(eAnswer::Yes);
  ASSERT_EQ(eNewStageResult::Created, CreateNewStage("data\\stg4\\a.stg4_700", kNewPaletteFromTemplate, ""));
  EXPECT_TRUE(EditStage().HasPlayer());
  EXPECT_EQ(9, EditStage().m_vecBlockPlt[4].m_nGraphicNo);
  EXPECT_TRUE(StageEdit().m_strPath.empty());

  m_prompt.QueueAnswer(eAnswer::Yes);
  ASSERT_EQ(eNewStageResult::Created, CreateNewStage("data\\stg4\\a.stg4_700", kNewPaletteEmpty, ""));
  EXPECT_EQ(2u, EditStage().m_vecBlockPlt.size());

  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(eNewStageResult::Failed, CreateNewStage("", kNewPaletteFromFile, "data\\plt4\\none.plt4"));
  EXPECT_EQ(m_prompt.LastText(), "ステージパレットファイル data\\plt4\\none.plt4 が見つかりません！");
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(eNewStageResult::Failed, CreateNewStage("data\\stg4\\gone.stg4_950", kNewPaletteEmpty, ""));
  EXPECT_EQ(m_prompt.LastText(), "ステージファイル data\\stg4\\gone.stg4_950 が見つかりません！");
  // Every progress window that opened was closed again, the failures' too.
  EXPECT_EQ(m_prompt.ClosedMessageWindows() - windowsClosedBefore, 4);
}

}  // namespace
}  // namespace velmora
