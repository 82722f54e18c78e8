#include <gtest/gtest.h>

#include "inspect/Inspector.h"
#include "stage/Stage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// A stage file's kind is known by its versioned extension; resave must give
// back the very bytes, placements, held items and trailer included.
TEST(InspectStageTest, ResaveKeepsAStageByteForByteAndDumpShowsItsLayers) {
  testing::cTempProject project;
  cStage stage;
  stage.InitDefault();
  stage.SetSize(40, 20, 0, 0);
  stage.m_strName = "cave";
  stage.m_vecBlockCell[static_cast<size_t>(stage.CellIndex(39, 19))].m_nGraphicNo = 4;
  cEdChara& enemy = stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(3, 2))];
  enemy.m_nGraphicNo = 2;
  enemy.m_nControl = 1;
  enemy.m_bHoldItem = 1;
  stage.m_vecItemCell[static_cast<size_t>(stage.CellIndex(3, 2))].m_nGraphicNo = 5;
  ASSERT_EQ(1, stage.SaveFile("s.stg4_950"));

  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"resave", "s.stg4_950", "t.stg4_950"}, out, err)) << err;
  EXPECT_EQ(testing::ReadBytes("s.stg4_950"), testing::ReadBytes("t.stg4_950"));
  ASSERT_EQ(0, inspect::RunInspector({"dump", "t.stg4_950"}, out, err)) << err;
  EXPECT_NE(std::string::npos, out.find("\"kind\": \"Stage\""));
  EXPECT_NE(std::string::npos, out.find("\"m_strName\": \"cave\""));
  EXPECT_NE(std::string::npos, out.find("\"m_vecCharaCell\": ["));
}

}  // namespace
}  // namespace velmora
