#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageLoader.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;
using testing::ReadBytes;
using testing::WriteBytes;

const char* kStored = "data\\stg4\\big.stg4_950";
const char* kHost = "data/stg4/big.stg4_950";
const char* kBackupHost = "data/work/big.stg4_950";

// A stage big enough that its save takes a while, saved once as the old
// version and then changed everywhere.
class cStageSaveSafetyTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeStageFolders();
    StageEdit() = cStageEdit();
    cStage& stage = EditStage();
    stage.InitDefault();
    stage.SetSize(64, 64, 0, 0);
    stage.m_strName = "old";
    for (int y = 0; y < stage.m_nHeight; ++y) {
      for (int x = 0; x < stage.m_nWidth; ++x) stage.m_vecBlockCell[stage.CellIndex(x, y)].m_nGraphicNo = 1 + x % 7;
    }
    stage.m_vecCharaCell[0].m_nGraphicNo = 1;
    stage.m_vecCharaCell[0].m_nControl = 0;
    m_prompt.QueuePath(kStored);
    ASSERT_EQ(1, SaveStage(1));
    m_old = ReadBytes(kHost);

    stage.m_strName = "new";
    for (int y = 0; y < stage.m_nHeight; ++y) {
      for (int x = 0; x < stage.m_nWidth; ++x) stage.m_vecItemCell[stage.CellIndex(x, y)].m_nGraphicNo = 2;
    }
  }

  // Forks a child that overwrites the stage and kills it after `delay`
  // (never, when negative). True when the child was killed before it ended.
  bool SaveInChild(std::chrono::microseconds delay) {
    StageEdit().m_bStageChanged = 1;
    const pid_t child = fork();
    if (child == 0) _exit(SaveStage(1) == 1 ? 0 : 1);
    if (delay.count() >= 0) {
      std::this_thread::sleep_for(delay);
      kill(child, SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status);
  }

  void PutOldBack() {
    WriteBytes(kHost, m_old);
    std::remove(kBackupHost);
  }

  cTempProject m_project;
  cScriptedPrompt m_prompt;
  std::vector<uint8_t> m_old;
};

TEST_F(cStageSaveSafetyTest, KillAtAnyMomentLeavesTheOldOrTheNewStageWhole) {
  const auto start = std::chrono::steady_clock::now();
  ASSERT_FALSE(SaveInChild(std::chrono::microseconds(-1)));
  const auto span = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
  const std::vector<uint8_t> fresh = ReadBytes(kHost);
  ASSERT_NE(m_old, fresh);

  constexpr int kMoments = 40;
  int killedMidway = 0;
  for (int moment = 0; moment < kMoments; ++moment) {
    PutOldBack();
    if (SaveInChild(span * moment / (kMoments - 8))) ++killedMidway;
    CheckStageFile(kStored);
    const std::vector<uint8_t> found = ReadBytes(kHost);
    ASSERT_TRUE(found == m_old || found == fresh) << "kill at moment " << moment << " left " << found.size() << " bytes";
  }
  EXPECT_GT(killedMidway, 0);
  cStage read;
  EXPECT_EQ(eStageLoad::Loaded, LoadStage(kStored, read));
}

TEST_F(cStageSaveSafetyTest, MissingStageFileComesBackFromTheBackup) {
  std::remove(kHost);
  WriteBytes(kBackupHost, m_old);
  CheckStageFile(kStored);
  EXPECT_EQ(m_old, ReadBytes(kHost));
  EXPECT_NE(std::string::npos, m_prompt.LastText().find("を復旧しました"));

  // A file cut before its version word ended is broken too, not "version 0".
  WriteBytes(kBackupHost, m_old);
  WriteBytes(kHost, {0x00, 0x01});
  CheckStageFile(kStored);
  EXPECT_EQ(m_old, ReadBytes(kHost));
}

TEST_F(cStageSaveSafetyTest, FailedSaveKeepsTheFileAndLeavesNothingInTheWorkFolder) {
  StageEdit().m_bStageChanged = 1;
  g_bNoSave = 1;
  EXPECT_EQ(0, SaveStage(1));
  g_bNoSave = 0;
  EXPECT_EQ(m_old, ReadBytes(kHost));
  EXPECT_TRUE(ReadBytes(kBackupHost).empty());
  EXPECT_TRUE(ReadBytes(std::string(kBackupHost) + ".new").empty());
}

// The user-interface thread only drops its messages while the worker reads.
TEST_F(cStageSaveSafetyTest, WorkerLoadsWhileTheCallerDropsMessagesAndAQuitEndsTheWait) {
  const std::thread::id caller = std::this_thread::get_id();
  int drops = 0;
  bool onCaller = true;
  SetMessageDropper([&] {
    ++drops;
    onCaller = onCaller && std::this_thread::get_id() == caller;
    return true;
  });
  cStage read;
  ASSERT_EQ(eStageLoad::Loaded, LoadStage(kStored, read));
  EXPECT_EQ("old", read.m_strName);
  EXPECT_EQ(64, read.m_nWidth);
  EXPECT_EQ("new", EditStage().m_strName) << "the worker reads beside the edit stage";
  EXPECT_GT(drops, 0);
  EXPECT_TRUE(onCaller);

  const size_t shown = m_prompt.Shown().size();
  SetMessageDropper([] { return false; });
  EXPECT_EQ(eStageLoad::Quit, LoadStage(kStored, read));
  EXPECT_FALSE(StageLoader().Running());
  EXPECT_EQ(shown, m_prompt.Shown().size());  // a quit is no read failure

  SetMessageDropper(nullptr);
  EXPECT_EQ(eStageLoad::Failed, LoadStage("data\\stg4\\gone.stg4_950", read));
  EXPECT_NE(std::string::npos, m_prompt.LastText().find("の読み込みに失敗しました"));
}

}  // namespace
}  // namespace velmora
