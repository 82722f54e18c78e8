#include <gtest/gtest.h>

#include <filesystem>

#include "inspect/Inspector.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "sample/SampleProject.h"
#include "stage/Stage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// The generated project opens: every file it wrote reads back, with the
// contents the generator meant.
TEST(SampleProjectTest, WritesAProjectWhoseFilesReadBack) {
  testing::cTempProject project;
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject("sample", false, error)) << error;
  std::filesystem::current_path("sample");
  for (const char* file : {"data/System.dat", "default/WorldMap.dat", "bmp/plt/Palette.bmp", "wave/free.wav",
                           "bgm/Free.mid", "bgm/Free.ogg", "e_data/EditConfig.dat"}) {
    EXPECT_TRUE(std::filesystem::exists(file)) << file;
  }
  cPalette palette;
  ASSERT_EQ(1, palette.LoadFile("data\\CommonPalette.cplt4"));
  ASSERT_EQ(3u, palette.m_vecCharaPlt.size());
  EXPECT_EQ(0, palette.m_vecCharaPlt[1].m_nControl);  // the player
  EXPECT_FALSE(palette.m_vecCharaPlt[2].m_vFlow.empty());

  // Every stage, the template of new ones too, undoes as far back as a
  // stage can.
  for (const char* path : {"data\\stg4\\Default.stg4_950", "data\\stg4\\Stage1.stg4_950"}) {
    cStage other;
    ASSERT_EQ(1, other.LoadFile(path)) << path;
    EXPECT_EQ(9, other.m_iUndoCount) << path;
  }
  cStage stage;
  ASSERT_EQ(1, stage.LoadFile("data\\stg4\\Stage2.stg4_950"));
  EXPECT_EQ(80, stage.m_nWidth);
  EXPECT_TRUE(stage.HasPlayer());
  EXPECT_EQ(9, stage.m_iUndoCount);

  // A stage's own palette reads as behaviour text too.
  std::string out, err;
  EXPECT_EQ(0, inspect::RunInspector({"behaviour", "data/stg4/Stage2.stg4_950"}, out, err)) << err;
  EXPECT_NE(std::string::npos, out.find("chara 001"));
  std::filesystem::current_path("..");
}

TEST(SampleProjectTest, FreshProjectHasOnlyDefaultData) {
  testing::cTempProject project;
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject("fresh", true, error)) << error;
  EXPECT_FALSE(std::filesystem::exists("fresh/data"));
  EXPECT_TRUE(std::filesystem::exists("fresh/default/stg4/Default.stg4_950"));
}

}  // namespace
}  // namespace velmora

#include "project/ProjectRefSizes.h"

namespace velmora {
namespace {

// Inside a project, resave repairs references against the project's own
// lists: a character pointing past the database's animation sets loses it.
TEST(SampleProjectTest, ResaveChecksAgainstTheProjectsLists) {
  testing::cTempProject project;
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject("p", false, error)) << error;
  std::filesystem::current_path("p");
  cPalette palette;
  ASSERT_EQ(1, palette.LoadFile("data\\CommonPalette.cplt4"));
  palette.m_vecCharaPlt[2].m_nAnimeSet = 30000;
  ASSERT_EQ(1, palette.SaveFile("data\\plt4\\bad.cplt4"));
  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"resave", "data/plt4/bad.cplt4", "data/plt4/good.cplt4"}, out, err)) << err;
  InstallRefSizes(nullptr);
  cPalette repaired;
  ASSERT_EQ(1, repaired.LoadFile("data\\plt4\\good.cplt4"));
  EXPECT_EQ(0, repaired.m_vecCharaPlt[2].m_nAnimeSet);
  std::filesystem::current_path("..");
}

}  // namespace
}  // namespace velmora
