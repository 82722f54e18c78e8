#include <gtest/gtest.h>

#include "ui/stage/StageViewRules.h"

namespace velmora {
namespace {

cViewFrame Frame640(int scrollX, int scrollY) { return {640, 480, scrollX, scrollY, 40, 30}; }

TEST(StageViewRules, PositionsBecomeCellsOnlyOnTheStage) {
  EXPECT_EQ(CellAt(Frame640(0, 0), 100, 40, {0, 0}).x, 3);
  EXPECT_EQ(CellAt(Frame640(5, 2), 100, 40, {0, 0}).y, 3);
  // Inside the client but past the stage's last column: the cell stays.
  const cViewFrame narrow{640, 480, 0, 0, 12, 30};
  const cCellPos kept = CellAt(narrow, 500, 10, {7, 8});
  EXPECT_EQ(kept.x, 7);
  EXPECT_EQ(kept.y, 8);
}

TEST(StageViewRules, DragOutsideTheAreaHoldsToTheEdgeAndTheStage) {
  const cCellPos left = CellAt(Frame640(10, 10), -300, 100, {0, 0});
  EXPECT_EQ(left.x, 10);
  EXPECT_EQ(left.y, 13);
  const cCellPos beyond = CellAt(Frame640(25, 20), 5000, 5000, {0, 0});
  EXPECT_EQ(beyond.x, 39);  // the last column, not 25 + 19
  EXPECT_EQ(beyond.y, 29);
}

TEST(StageViewRules, WheelTowardsTheUserIsAlwaysOneCell) {
  EXPECT_EQ(WheelCells(-120), 1);
  EXPECT_EQ(WheelCells(-240), 1);
  EXPECT_EQ(WheelCells(120), -1);
  EXPECT_EQ(WheelCells(240), -2);
  EXPECT_FALSE(WheelScrollsVertically(0, false));
  EXPECT_TRUE(WheelScrollsVertically(0, true));
  EXPECT_TRUE(WheelScrollsVertically(1, false));
  EXPECT_FALSE(WheelScrollsVertically(1, true));
}

TEST(StageViewRules, ScrollBarsOfAStageThatFitsHaveNoRoom) {
  const cBarRange horz = HorzBarRange(20, 640);
  const cBarRange vert = VertBarRange(15, 480);
  EXPECT_EQ(horz.maximum, 19);
  EXPECT_EQ(horz.page, 20);
  EXPECT_EQ(vert.maximum, 14);
  EXPECT_EQ(vert.page, 15);
}

TEST(StageViewRules, FirstViewCentresThePlayerWithinTheStage) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(100, 50, 0, 0);
  EXPECT_EQ(InitialScroll(stage).x, 0);  // no player
  cEdChara player;
  player.m_nGraphicNo = 1;
  player.m_nControl = 0;
  stage.m_vecCharaCell[stage.CellIndex(30, 20)] = player;
  EXPECT_EQ(InitialScroll(stage).x, 20);
  EXPECT_EQ(InitialScroll(stage).y, 13);
  stage.m_vecCharaCell[stage.CellIndex(30, 20)] = cEdChara();
  stage.m_vecCharaCell[stage.CellIndex(98, 49)] = player;
  EXPECT_EQ(InitialScroll(stage).x, 80);
  EXPECT_EQ(InitialScroll(stage).y, 35);
}

TEST(StageViewRules, TitleNamesTheStageFileBehindTwoBlanks) {
  EXPECT_EQ(StageWindowTitle("data\\stg4\\a.stg4_950"), StageWindowTitle("") + "  data\\stg4\\a.stg4_950");
}

}  // namespace
}  // namespace velmora
