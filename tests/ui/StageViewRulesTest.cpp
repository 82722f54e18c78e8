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

TEST(StageViewRules, FirstViewCentresThePlayerInTheCellsShownWithinTheStage) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(100, 50, 0, 0);
  EXPECT_EQ(InitialScroll(stage, 20, 15).x, 0);  // no player
  cEdChara player;
  player.m_nGraphicNo = 1;
  player.m_nControl = 0;
  stage.m_vecCharaCell[stage.CellIndex(30, 20)] = player;
  EXPECT_EQ(InitialScroll(stage, 20, 15).x, 20);
  EXPECT_EQ(InitialScroll(stage, 20, 15).y, 13);
  // A larger window keeps the player in its middle.
  EXPECT_EQ(InitialScroll(stage, 49, 34).x, 6);
  EXPECT_EQ(InitialScroll(stage, 49, 34).y, 3);
  stage.m_vecCharaCell[stage.CellIndex(30, 20)] = cEdChara();
  stage.m_vecCharaCell[stage.CellIndex(98, 49)] = player;
  EXPECT_EQ(InitialScroll(stage, 20, 15).x, 80);
  EXPECT_EQ(InitialScroll(stage, 20, 15).y, 35);
  EXPECT_EQ(InitialScroll(stage, 120, 60).x, 0) << "a view wider than the stage starts at its left";
}

TEST(StageViewRules, CursorFrameFollowsTheModeAndTheDrag) {
  cStageEdit edit;
  edit.m_iBrushW = 3;
  edit.m_iBrushH = 2;
  const cCellFrame pen = CursorFrame(edit, {5, 6});
  EXPECT_EQ(pen.w * 10 + pen.h, 32);
  edit.m_iCursorMode = 2;
  edit.m_bDrag = 1;
  edit.m_iRectX = 9;
  edit.m_iRectY = 2;
  const cCellFrame rect = CursorFrame(edit, {5, 6});
  EXPECT_EQ(rect.x, 5);
  EXPECT_EQ(rect.y, 2);
  EXPECT_EQ(rect.w, 5);
  EXPECT_EQ(rect.h, 5);
  edit.m_iCursorMode = 5;
  edit.m_bDrag = 0;
  EXPECT_EQ(CursorFrame(edit, {5, 6}).w, 0);  // no range, no frame
  edit.m_iCursorMode = 3;
  EXPECT_EQ(CursorFrame(edit, {5, 6}).w, 1);
}

TEST(StageViewRules, TitleNamesTheStageFileBehindTwoBlanks) {
  EXPECT_EQ(StageWindowTitle("data\\stg4\\a.stg4_950"), StageWindowTitle("") + "  data\\stg4\\a.stg4_950");
}

}  // namespace
}  // namespace velmora
