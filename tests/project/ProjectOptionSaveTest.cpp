#include <gtest/gtest.h>

#include "core/AppControl.h"
#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "platform/TextCodec.h"
#include "project/ProjectOptionSave.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora::testing {
namespace {

class ProjectOptionSave : public ::testing::Test {
 protected:
  void TearDown() override {
    ProjectOption() = PrjOption();
    g_bNoSave = 0;
  }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(ProjectOptionSave, SavedOptionsComeBackAndTakeEffect) {
  MakeDirs("data");
  PrjOption edited;
  ProjectOption().m_nLastBackupMinute = 4321;  // a backup taken meanwhile
  edited.m_strGamePath = ".\\Game.exe";
  edited.m_nBackupHours = 999;
  edited.m_vDefFlags[kMomentStagePlaced][kKindItem][12] = 0;
  edited.m_DefChara.m_strName = "default";
  ASSERT_TRUE(SaveProjectOptions(edited));
  EXPECT_EQ(ProjectOption().m_strGamePath, ".\\Game.exe");

  PrjOption reloaded;
  ASSERT_TRUE(reloaded.LoadFile(PathOf(ePath::PrjOption)));
  EXPECT_EQ(reloaded.m_nBackupHours, 999);
  EXPECT_EQ(reloaded.m_vDefFlags[kMomentStagePlaced][kKindItem][12], 0);
  EXPECT_EQ(reloaded.m_DefChara.m_strName, "default");
  EXPECT_EQ(reloaded.m_nLastBackupMinute, 4321);
}

TEST_F(ProjectOptionSave, AFileThatCantBeWrittenKeepsTheOptionsInForce) {
  ProjectOption().m_strGamePath = "kept";
  PrjOption edited;
  edited.m_strGamePath = "lost";
  EXPECT_FALSE(SaveProjectOptions(edited));  // there is no data folder
  EXPECT_EQ(prompt.LastText(), "data\\PrjOption.dat の保存に失敗しました！");
  EXPECT_EQ(ProjectOption().m_strGamePath, "kept");
}

TEST_F(ProjectOptionSave, InheritDefaultsOfAWrongLengthStopTheEditor) {
  ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
  PrjOption option;
  EXPECT_TRUE(CheckInheritDefaults(option));
  EXPECT_TRUE(prompt.Shown().empty());

  option.m_vDefFlags[kMomentCommonPlaced][kKindChara].resize(36);
  const int destroys = DestroyRequestCount();
  EXPECT_FALSE(CheckInheritDefaults(option));
  EXPECT_EQ(prompt.LastText(), "継承データの数が一致しません！(バグかデータファイルが破損しているかどちらか)");
  EXPECT_NE(ReadText("Report_Editor.txt").find(ToCp932("継承データの数が一致しません！")), std::string::npos);
  EXPECT_EQ(g_bNoSave, 1);
  EXPECT_EQ(DestroyRequestCount(), destroys + 1);
}

}  // namespace
}  // namespace velmora::testing
