#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <thread>

#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;
using testing::MakeDirs;
using testing::ReadText;
using testing::WriteText;
namespace fs = std::filesystem;

class ProjectFolderTest : public ::testing::Test {
 protected:
  void SetUp() override { g_bNoSave = 0; }
  void TearDown() override { g_bNoSave = 0; }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(ProjectFolderTest, FindVersionedGivesTheHighestSuffix) {
  MakeDirs("data/stg4");
  WriteText("data/stg4/Default.stg4_123", "a");
  WriteText("data/stg4/Default.stg4_900", "b");
  WriteText("data/stg4/Default.stg4_95", "too short");
  std::string found = "untouched";
  ASSERT_TRUE(FindVersioned(found, PathOf(ePath::DefaultStage), "stg4"));
  EXPECT_EQ("data\\stg4\\Default.stg4_900", found);
  std::string none = "untouched";
  EXPECT_FALSE(FindVersioned(none, "data\\stg4\\Other.stg4_***", "stg4"));
  EXPECT_EQ("untouched", none);
}

TEST_F(ProjectFolderTest, DefaultStageIsCopiedUnderItsSuffixButNeverOverwritten) {
  MakeDirs("default/stg4");
  MakeDirs("data/stg4");
  WriteText("default/stg4/Default.stg4_950", "from default");
  EnsureDefaultStage();
  EXPECT_EQ("from default", ReadText("data/stg4/Default.stg4_950"));

  WriteText("data/stg4/Default.stg4_950", "edited");
  WriteText("default/stg4/Default.stg4_951", "newer default");
  EnsureDefaultStage();
  EXPECT_EQ("edited", ReadText("data/stg4/Default.stg4_950"));
  EXPECT_FALSE(fs::exists("data/stg4/Default.stg4_951"));
}

TEST_F(ProjectFolderTest, DefaultDataIsMadeOnlyAfterYes) {
  EXPECT_FALSE(CreateDefaultData(nullptr));  // neither folder
  EXPECT_TRUE(prompt.Shown().empty());

  MakeDirs("default/database");
  WriteText("default/System.dat", "sys");
  WriteText("default/database/Anime.dat", "anime");
  EXPECT_FALSE(CreateDefaultData(nullptr));  // unscripted: No
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ("デフォルトデータ作成の確認", prompt.Shown()[0].caption);
  EXPECT_EQ("データが存在しません！デフォルトデータを作成しますか？\n", prompt.Shown()[0].text);
  EXPECT_FALSE(fs::exists("data"));

  prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_TRUE(CreateDefaultData(nullptr));
  EXPECT_EQ("anime", ReadText("data/database/Anime.dat"));
  EXPECT_TRUE(CreateDefaultData(nullptr));  // data exists: no question
  EXPECT_EQ(2u, prompt.Shown().size());
}

TEST_F(ProjectFolderTest, BackupKeepsOneGenerationOnly) {
  MakeDirs("data/stg4");
  WriteText("data/a.dat", "1");
  WriteText("data/stg4/s.stg4_950", "stage");
  ASSERT_TRUE(BackupData(nullptr));
  EXPECT_EQ("1", ReadText("data_backup/a.dat"));
  EXPECT_EQ("バックアップ", prompt.Shown().back().caption);
  EXPECT_EQ("エディットデータをバックアップしています...", prompt.Shown().back().text);
  EXPECT_EQ(1, prompt.ClosedMessageWindows());

  fs::remove("data/a.dat");
  WriteText("data/b.dat", "2");
  ASSERT_TRUE(BackupData(nullptr));
  EXPECT_FALSE(fs::exists("data_backup/a.dat"));
  EXPECT_EQ("2", ReadText("data_backup/b.dat"));
  EXPECT_EQ("stage", ReadText("data_backup/stg4/s.stg4_950"));

  EXPECT_FALSE(BackupEditData(nullptr));  // no e_data
  MakeDirs("e_data");
  WriteText("e_data/EditConfig.dat", "cfg");
  EXPECT_TRUE(BackupEditData(nullptr));
  EXPECT_EQ("cfg", ReadText("e_data_backup/EditConfig.dat"));

  g_bNoSave = 1;
  EXPECT_FALSE(BackupData(nullptr));
  EXPECT_EQ("2", ReadText("data_backup/b.dat"));
}

// Every file under `folder`, by its path inside it, with its text.
std::map<std::string, std::string> Tree(const std::string& folder) {
  std::map<std::string, std::string> tree;
  if (!fs::is_directory(folder)) return tree;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) tree[fs::relative(entry.path(), folder).string()] = ReadText(entry.path().string());
  }
  return tree;
}

void WriteTree(const std::string& folder, int files, const std::string& text) {
  MakeDirs(folder + "/stg4");
  for (int i = 0; i < files; ++i) WriteText(folder + "/stg4/s" + std::to_string(i) + ".stg4_950", text);
}

TEST_F(ProjectFolderTest, ABackupKeepsTheOldOneUntilTheCopyIsWholeAndClearsWhatAKillLeft) {
  WriteTree("data", 3, "new");
  WriteTree("data_backup", 2, "old");
  // An earlier backup killed between its steps.
  WriteTree("data_backup.new", 1, "half");
  WriteTree("data_backup.old", 1, "older");
  ASSERT_TRUE(BackupData(nullptr));
  EXPECT_EQ(Tree("data"), Tree("data_backup"));
  EXPECT_FALSE(fs::exists("data_backup.new"));
  EXPECT_FALSE(fs::exists("data_backup.old"));

  // A copy that can't be made leaves the backup there is.
  WriteText("data/stg4/s0.stg4_950", "newer");
  WriteText("data_backup.new", "a file where the copy would go");
  EXPECT_FALSE(BackupData(nullptr));
  EXPECT_EQ("new", ReadText("data_backup/stg4/s0.stg4_950"));
  EXPECT_EQ(3u, Tree("data_backup").size());
}

TEST_F(ProjectFolderTest, ABackupKilledAtAnyMomentLeavesTheOldOrTheNewBackupWhole) {
  WriteTree("data", 20, "new");
  WriteTree("data_backup", 15, "old");
  const auto before = Tree("data_backup");
  const auto after = Tree("data");
  const auto backUp = [] {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(BackupData(nullptr) ? 0 : 1);
    return child;
  };
  const auto start = std::chrono::steady_clock::now();
  int status = 0;
  ASSERT_EQ(::waitpid(backUp(), &status, 0) > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1, 0);
  const auto round = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
  ASSERT_EQ(after, Tree("data_backup"));

  const unsigned seed = std::random_device()();
  std::mt19937 random(seed);
  std::uniform_int_distribution<long long> moment(0, round.count());
  for (int point = 0; point < 12; ++point) {
    fs::remove_all("data_backup");
    WriteTree("data_backup", 15, "old");
    const long long at = moment(random);
    const pid_t child = backUp();
    std::this_thread::sleep_for(std::chrono::microseconds(at));
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    const auto now = Tree("data_backup");
    const bool whole = now == before || now == after || (now.empty() && Tree("data_backup.old") == before);
    ASSERT_TRUE(whole) << "killed at " << at << " us of " << round.count() << " (seed " << seed << ")";
    ASSERT_TRUE(BackupData(nullptr)) << "the next backup clears what the kill left";
    ASSERT_EQ(after, Tree("data_backup"));
  }
}

TEST_F(ProjectFolderTest, FoldersAreMadeAndDeletedWithAllTheyHold) {
  CreateProjectFolders();
  for (const char* folder : {"e_data", "e_bmp", "user_data/rpl4", "data/stg4/old_ver", "bmp/hbt", "bgm"}) {
    EXPECT_TRUE(fs::is_directory(folder)) << folder;
  }
  WriteText("data/stg4/old_ver/x", "x");
  EXPECT_TRUE(DeleteFolder("data"));
  EXPECT_FALSE(fs::exists("data"));
  EXPECT_FALSE(DeleteFolder("data"));
}

}  // namespace
}  // namespace velmora
