#include <gtest/gtest.h>

#include "stage/StageDiff.h"

namespace velmora {
namespace {

void Place(cStage& stage, int x, int y, int graphic) {
  stage.m_vecBlockCell[static_cast<size_t>(stage.CellIndex(x, y))].m_nGraphicNo = static_cast<int16_t>(graphic);
}

// A wider stage has cells the narrower one lacks: there they count as
// empty, and the pitch of each stage decides where its cells lie.
TEST(StageDiffTest, CellsDifferByLayerAcrossStagesOfOtherSizes) {
  cStage before, after;
  before.InitDefault();
  after.InitDefault();
  after.SetSize(40, 15, 0, 0);
  Place(before, 1, 1, 1);
  Place(after, 1, 1, 1);
  Place(before, 2, 1, 1);
  Place(after, 2, 1, 2);
  Place(before, 3, 1, 1);
  Place(after, 30, 14, 1);
  after.m_vecItemCell[static_cast<size_t>(after.CellIndex(30, 14))].m_nGraphicNo = 3;

  const std::vector<cCellChange> changes = DiffStageCells(before, after);
  ASSERT_EQ(4u, changes.size());
  EXPECT_EQ(2, changes[0].x);
  EXPECT_EQ(eCellChange::Changed, changes[0].change);
  EXPECT_EQ(3, changes[1].x);
  EXPECT_EQ(eCellChange::Removed, changes[1].change);
  EXPECT_EQ(30, changes[2].x);
  EXPECT_EQ(0, changes[2].layer);
  EXPECT_EQ(eCellChange::Added, changes[3].change);
  EXPECT_EQ(2, changes[3].layer);

  const std::vector<cCellPos> positions = ChangedPositions(changes);
  ASSERT_EQ(3u, positions.size());
  EXPECT_EQ(30, positions[2].x);
  EXPECT_EQ(14, positions[2].y);
}

}  // namespace
}  // namespace velmora
