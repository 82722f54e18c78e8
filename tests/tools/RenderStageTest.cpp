#include <gtest/gtest.h>

#include <filesystem>

#include "core/SaveData.h"
#include "inspect/Inspector.h"
#include "platform/ByteOrder.h"
#include "sample/SampleProject.h"
#include "support/TempProject.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"

namespace velmora {
namespace {

class RenderStageTest : public ::testing::Test {
 protected:
  void TearDown() override {
    FreeFixedBitmaps();
    CharaBitmaps().clear();
    g_bNoSave = 0;
  }
  testing::cTempProject project;
};

TEST_F(RenderStageTest, DrawsTheWholeStageOrAnAreaOfCells) {
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject(".", false, error)) << error;
  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"render", "data/stg4/Stage1.stg4_950", "whole.png"}, out, err)) << err;
  const std::vector<uint8_t> whole = testing::ReadBytes("whole.png");
  ASSERT_GT(whole.size(), 24u);
  EXPECT_EQ(std::string(whole.begin() + 12, whole.begin() + 16), "IHDR");
  EXPECT_EQ(ReadBig(whole.data() + 16, 4), 60u * 32);  // the sample's first stage is 60 x 15
  EXPECT_EQ(ReadBig(whole.data() + 20, 4), 15u * 32);

  ASSERT_EQ(0, inspect::RunInspector({"render", "data/stg4/Stage1.stg4_950", "part.png", "10", "2", "3", "4"}, out,
                                     err))
      << err;
  const std::vector<uint8_t> part = testing::ReadBytes("part.png");
  EXPECT_EQ(ReadBig(part.data() + 16, 4), 96u);
  EXPECT_EQ(ReadBig(part.data() + 20, 4), 128u);
}

TEST_F(RenderStageTest, RefusesBadAreasAndMissingFiles) {
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject(".", false, error)) << error;
  std::string out, err;
  EXPECT_EQ(2, inspect::RunInspector({"render", "data/stg4/Stage1.stg4_950", "a.png", "0", "0", "0", "5"}, out, err));
  EXPECT_EQ(2, inspect::RunInspector({"render", "data/stg4/Stage1.stg4_950", "a.png", "0", "x", "5", "5"}, out, err));
  EXPECT_EQ(1, inspect::RunInspector({"render", "data/stg4/None.stg4_950", "a.png"}, out, err));
  EXPECT_EQ(1, inspect::RunInspector({"render", "data/stg4/Stage1.stg4_950", "no/such/dir/a.png"}, out, err));
  EXPECT_FALSE(std::filesystem::exists("a.png"));
}

}  // namespace
}  // namespace velmora
