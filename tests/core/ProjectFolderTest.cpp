#include <gtest/gtest.h>

#include <filesystem>

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
