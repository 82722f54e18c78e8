#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageLoader.h"
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
  cStage read;
  ASSERT_EQ(eStageLoad::Loaded, LoadStage(kStored, read));
  EXPECT_EQ(good, ReadBytes(kHost));
  EXPECT_TRUE(read.HasPlayer());
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

  m_prompt.QueueAnswer(eAnswer::No);
  m_prompt.QueueAnswer(eAnswer::No);
  EXPECT_EQ(1, CloseStage());
  EXPECT_EQ(0, StageEdit().m_bHasStage);
  EXPECT_TRUE(StageEdit().m_strPath.empty());
}

TEST_F(cStageFilesTest, StartUpOpensTheLastStageOrAnEmptyOne) {
  StageEdit().m_bStageChanged = 1;
  OpenLastStage(".\\data\\stg4\\a.stg4_950");
  EXPECT_EQ(1, StageEdit().m_bHasStage);
  EXPECT_TRUE(EditStage().HasPlayer());
  EXPECT_EQ(0, StageEdit().m_bStageChanged) << "a stage just read has nothing to save";
  OpenLastStage(".\\data\\stg4\\gone.stg4_950");
  EXPECT_EQ(0, StageEdit().m_bHasStage);
  EXPECT_EQ(32, EditStage().m_nWidth);

  const std::vector<uint8_t> whole = ReadBytes(kHost);
  WriteBytes("data/stg4/cut.stg4_950", std::vector<uint8_t>(whole.begin(), whole.begin() + 40));
  OpenLastStage(".\\data\\stg4\\cut.stg4_950");
  EXPECT_EQ(0, StageEdit().m_bHasStage);
  EXPECT_TRUE(StageEdit().m_strPath.empty());
}

// A stage saved outside the project folder keeps its path from the root:
// the next save, an open and the last-stage setting reach that same file,
// and the author hears once each time that the files belong together.
TEST_F(cStageFilesTest, AStageOutsideTheProjectKeepsItsPathFromTheRoot) {
  const std::filesystem::path project(m_project.Path());
  const std::filesystem::path outside = project.parent_path() / (project.filename().string() + "-outside");
  std::filesystem::create_directories(outside);
  const std::string host = (outside / "far.stg4_950").string();
  std::string stored = host;
  std::replace(stored.begin(), stored.end(), '/', '\\');
  const char* notice = "ヴェルモラ本体が存在するドライブとステージファイルが存在するドライブとが異なります！\n"
                       "ヴェルモラにおける全てのデータファイルは同一ドライブに保存することを推奨します。";

  m_prompt.QueuePath(stored);
  ASSERT_EQ(1, SaveStage(0));
  EXPECT_EQ(stored, StageEdit().m_strPath);
  EXPECT_EQ(notice, m_prompt.LastText());
  const std::vector<uint8_t> first = ReadBytes(host);
  ASSERT_FALSE(first.empty());

  EditStage().m_vecBlockCell[5].m_nGraphicNo = 3;
  StageEdit().m_bStageChanged = 1;
  ASSERT_EQ(1, SaveStage(1));
  EXPECT_NE(first, ReadBytes(host));
  EXPECT_EQ(stored, StageEdit().m_strPath);

  CloseStage();
  m_prompt.QueuePath(stored);
  ASSERT_EQ(1, OpenStage());
  EXPECT_EQ(stored, StageEdit().m_strPath);
  EXPECT_EQ(3, EditStage().m_vecBlockCell[5].m_nGraphicNo);
  EXPECT_EQ(notice, m_prompt.LastText());

  CloseStage();
  OpenLastStage(stored);
  EXPECT_EQ(1, StageEdit().m_bHasStage);
  EXPECT_EQ(3, EditStage().m_vecBlockCell[5].m_nGraphicNo);
  std::filesystem::remove_all(outside);
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
  EXPECT_EQ(2u, StageEdit().m_vecUndoMask.size());
  RecordStep(kLayerAll);
  EXPECT_TRUE(CanUndo());
  CloseStage();
  EXPECT_FALSE(CanUndo());
  EXPECT_EQ(static_cast<size_t>(EditStage().m_iUndoCount), StageEdit().m_vecUndoMask.size());
  OpenLastStage(".\\data\\stg4\\a.stg4_950");
  EXPECT_EQ(2u, StageEdit().m_vecRedoMask.size());
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

// The files of a new stage are read before anything changes: one that
// can't be read leaves the stage being edited as it was.
TEST_F(cStageFilesTest, ANewStageFromFilesThatCannotBeReadLeavesTheStageAsItWas) {
  std::filesystem::create_directories("data/plt4");
  const std::vector<uint8_t> whole = ReadBytes(kHost);
  WriteBytes("data/stg4/cut.stg4_950", std::vector<uint8_t>(whole.begin(), whole.end() - 40));
  std::vector<uint8_t> garbage(whole.begin(), whole.begin() + 4);
  garbage.resize(64, 0xff);
  WriteBytes("data/plt4/broken.plt4", garbage);
  StageEdit().m_bHasStage = 1;
  StageEdit().m_bStageChanged = 1;
  EditStage().m_iUndoCount = 2;
  EditStage().m_vecBlockCell[9].m_nGraphicNo = 6;

  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(eNewStageResult::Failed, CreateNewStage("", kNewPaletteFromFile, "data\\plt4\\broken.plt4"));
  EXPECT_EQ("ステージパレットファイル data\\plt4\\broken.plt4 の読み込みに失敗しました！", m_prompt.LastText());
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(eNewStageResult::Failed, CreateNewStage("data\\stg4\\cut.stg4_950", kNewPaletteEmpty, ""));
  EXPECT_EQ("ステージファイル data\\stg4\\cut.stg4_950 が見つかりません！", m_prompt.LastText());

  EXPECT_EQ(0, g_bNoSave);
  EXPECT_EQ(6, EditStage().m_vecBlockCell[9].m_nGraphicNo);
  EXPECT_TRUE(EditStage().HasPlayer());
  EXPECT_EQ(".\\data\\stg4\\a.stg4_950", StageEdit().m_strPath);
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
  EXPECT_EQ(2u, StageEdit().m_vecUndoMask.size()) << "the history of the stage that stays";

  EditStage().m_vecBlockPlt.resize(5);
  m_prompt.QueuePath("data\\plt4\\good.plt4");
  ASSERT_EQ(1, SaveStagePalette());
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(eNewStageResult::Created, CreateNewStage("", kNewPaletteFromFile, "data\\plt4\\good.plt4"));
  EXPECT_EQ(5u, EditStage().m_vecBlockPlt.size());
  EXPECT_FALSE(EditStage().HasPlayer());
}

// Open and close leave the stage as leaving the window does: unsaved work
// is asked about first, and the file dialog comes only after the answers.
TEST_F(cStageFilesTest, OpenAndCloseAskAboutUnsavedWorkFirst) {
  StageEdit().m_bHasStage = 1;
  EditStage().m_vecBlockCell[5].m_nGraphicNo = 3;
  StageEdit().m_bStageChanged = 1;
  const std::vector<uint8_t> onDisk = ReadBytes(kHost);
  const auto shownAfter = [this](size_t from) {
    std::vector<std::string> captions;
    for (size_t i = from; i < m_prompt.Shown().size(); ++i) captions.push_back(m_prompt.Shown()[i].caption);
    return captions;
  };

  size_t from = m_prompt.Shown().size();
  m_prompt.QueueAnswer(eAnswer::Cancel);
  m_prompt.QueuePath(kStored);
  EXPECT_EQ(0, OpenStage());
  EXPECT_EQ(std::vector<std::string>{"保存確認"}, shownAfter(from)) << "no file dialog after a Cancel";
  EXPECT_EQ("ステージが変更された可能性があります。\n保存しますか？", m_prompt.LastText());
  m_prompt.QueueAnswer(eAnswer::Cancel);
  EXPECT_EQ(0, CloseStage());
  EXPECT_EQ(1, StageEdit().m_bHasStage);
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
  EXPECT_EQ(3, EditStage().m_vecBlockCell[5].m_nGraphicNo);
  EXPECT_EQ(".\\data\\stg4\\a.stg4_950", StageEdit().m_strPath);
  EXPECT_EQ(onDisk, ReadBytes(kHost));

  // No to the stage, Cancel to the common palette: still nothing happens.
  StageEdit().m_bCommonChanged = 1;
  from = m_prompt.Shown().size();
  m_prompt.QueueAnswer(eAnswer::No);
  m_prompt.QueueAnswer(eAnswer::Cancel);
  EXPECT_EQ(0, OpenStage());
  EXPECT_EQ((std::vector<std::string>{"保存確認", "保存確認"}), shownAfter(from));
  EXPECT_EQ("コモンパレットが変更された可能性があります。\n保存しますか？", m_prompt.LastText());
  StageEdit().m_bCommonChanged = 0;

  // Yes saves and goes on.
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(1, CloseStage());
  EXPECT_NE(onDisk, ReadBytes(kHost));
  EXPECT_EQ(0, StageEdit().m_bHasStage);
}

TEST_F(cStageFilesTest, AYesWhoseSaveDidNotHappenStopsTheLeaving) {
  StageEdit().m_bHasStage = 1;
  StageEdit().m_strPath.clear();
  StageEdit().m_bStageChanged = 1;
  m_prompt.QueueAnswer(eAnswer::Yes);  // the save dialog that follows is cancelled
  EXPECT_EQ(0, OpenStage());
  EXPECT_EQ("保存先のファイルの選択", m_prompt.Shown().back().caption);
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_EQ(0, AskSaveBeforeExit());
  EXPECT_EQ(1, StageEdit().m_bHasStage);
}

// A file that can't be read is reported, and the stage being edited stays
// as it was, unsaved changes, path and all: its next save is what it would
// have been without the attempt.
TEST_F(cStageFilesTest, AStageFileThatCannotBeReadLeavesTheOpenStageAsItWas) {
  const std::vector<uint8_t> good = ReadBytes(kHost);
  // The same stage with its one placement one cell along: the first byte
  // that differs starts the placement's cell index.
  EditStage().m_vecCharaCell[0].m_nGraphicNo = 0;
  EditStage().m_vecCharaCell[1].m_nGraphicNo = 1;
  EditStage().m_vecCharaCell[1].m_nControl = 0;
  ASSERT_TRUE(EditStage().SaveFile("data/stg4/moved.stg4_950"));
  const std::vector<uint8_t> moved = ReadBytes("data/stg4/moved.stg4_950");
  ASSERT_EQ(good.size(), moved.size());
  const size_t indexAt = static_cast<size_t>(std::mismatch(good.begin(), good.end(), moved.begin()).first - good.begin());
  std::vector<uint8_t> badIndex = good;
  const int32_t farAway = 0x7fff0000;
  std::memcpy(badIndex.data() + indexAt, &farAway, sizeof farAway);
  WriteBytes("data/stg4/badindex.stg4_950", badIndex);
  std::vector<uint8_t> garbage(good.begin(), good.begin() + 4);
  garbage.resize(400, 0xff);
  WriteBytes("data/stg4/garbage.stg4_950", garbage);
  WriteBytes("data/stg4/empty.stg4_950", {});

  StageEdit().m_bHasStage = 1;
  StageEdit().m_iLayer = 1;
  EditStage().m_iUndoCount = 3;
  EditStage().m_vecBlockCell[7].m_nGraphicNo = 4;
  StageEdit().m_bStageChanged = 1;
  ASSERT_TRUE(EditStage().SaveFile("data/expected.bin"));
  const std::vector<uint8_t> expected = ReadBytes("data/expected.bin");
  const std::vector<uint8_t> onDisk = ReadBytes(kHost);

  for (const char* broken : {"badindex", "garbage", "empty", "gone"}) {
    const std::string stored = std::string(".\\data\\stg4\\") + broken + ".stg4_950";
    m_prompt.QueueAnswer(eAnswer::No);
    m_prompt.QueuePath(stored);
    EXPECT_EQ(0, OpenStage()) << broken;
    EXPECT_EQ("ステージファイル " + stored + " の読み込みに失敗しました！", m_prompt.LastText());
    EXPECT_EQ(0, g_bNoSave) << broken;
    EXPECT_EQ(1, StageEdit().m_bHasStage);
    EXPECT_EQ(1, StageEdit().m_bStageChanged);
    EXPECT_EQ(".\\data\\stg4\\a.stg4_950", StageEdit().m_strPath);
    EXPECT_EQ(3u, StageEdit().m_vecUndoMask.size()) << "the history is made anew for the stage that stays";
    ASSERT_TRUE(EditStage().SaveFile("data/after.bin"));
    EXPECT_EQ(expected, ReadBytes("data/after.bin")) << broken;
  }
  EXPECT_EQ(onDisk, ReadBytes(kHost));
  EXPECT_EQ(badIndex, ReadBytes("data/stg4/badindex.stg4_950")) << "a failed read writes nothing";
}

// A stage palette file that can't be read leaves the stage palette as it
// was; one that can replaces it whole.
TEST_F(cStageFilesTest, AStagePaletteFileThatCannotBeReadLeavesThePaletteAsItWas) {
  std::filesystem::create_directories("data/plt4");
  cStage& stage = EditStage();
  stage.m_vecBlockPlt.resize(4);
  stage.m_vecBlockPlt[3].m_nGraphicNo = 11;
  m_prompt.QueuePath("data\\plt4\\good.plt4");
  ASSERT_EQ(1, SaveStagePalette());
  stage.m_vecBlockPlt.resize(6);
  stage.m_vecBlockPlt[5].m_nGraphicNo = 12;
  StageEdit().m_bStageChanged = 0;
  std::vector<uint8_t> garbage = ReadBytes("data/plt4/good.plt4");
  ASSERT_GT(garbage.size(), 8u);
  std::fill(garbage.begin() + 4, garbage.end(), 0xff);
  WriteBytes("data/plt4/garbage.plt4", garbage);
  std::vector<uint8_t> tooNew = ReadBytes("data/plt4/good.plt4");
  const uint32_t future = 951;
  std::memcpy(tooNew.data(), &future, sizeof future);
  WriteBytes("data/plt4/new.plt4", tooNew);
  const std::vector<uint8_t> good = ReadBytes("data/plt4/good.plt4");
  WriteBytes("data/plt4/cut.plt4", std::vector<uint8_t>(good.begin(), good.end() - 1));

  const struct {
    const char* path;
    const char* words;
  } failures[] = {
      {"data\\plt4\\garbage.plt4", "ステージパレットファイル data\\plt4\\garbage.plt4 の読み込みに失敗しました！"},
      {"data\\plt4\\cut.plt4", "ステージパレットファイル data\\plt4\\cut.plt4 の読み込みに失敗しました！"},
      {"data\\plt4\\gone.plt4", "ステージパレットファイル data\\plt4\\gone.plt4 の読み込みに失敗しました！"},
      {"data\\plt4\\new.plt4",
       "data\\plt4\\new.plt4 の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。"},
  };
  for (const auto& failure : failures) {
    m_prompt.QueuePath(failure.path);
    EXPECT_EQ(0, LoadStagePalette()) << failure.path;
    EXPECT_EQ(failure.words, m_prompt.LastText());
    EXPECT_EQ(0, g_bNoSave);
    ASSERT_EQ(6u, stage.m_vecBlockPlt.size());
    EXPECT_EQ(12, stage.m_vecBlockPlt[5].m_nGraphicNo);
    EXPECT_EQ(0, StageEdit().m_bStageChanged);
  }

  m_prompt.QueuePath("data\\plt4\\good.plt4");
  ASSERT_EQ(1, LoadStagePalette());
  ASSERT_EQ(4u, stage.m_vecBlockPlt.size());
  EXPECT_EQ(11, stage.m_vecBlockPlt[3].m_nGraphicNo);
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
}

}  // namespace
}  // namespace velmora
