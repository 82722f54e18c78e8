#include "StageEditFixture.h"
#include <cstdio>

#include "core/Log.h"
#include "platform/TextCodec.h"
#include "stage/HistoryMemory.h"

namespace velmora {
namespace {

using testing::cStageEditTest;

class StageHistory : public cStageEditTest {};

TEST_F(StageHistory, UndoOfCharacterStepLeavesOtherLayersAndRedoRestoresIt) {
  Chara(1, 1) = CharaOf(5);
  RecordStep(kLayerChara);
  Chara(1, 1) = CharaOf(9);
  Block(2, 2).m_nGraphicNo = 3;
  Item(3, 3).m_nGraphicNo = 4;

  Undo();
  EXPECT_EQ(Chara(1, 1).m_nGraphicNo, 5);
  EXPECT_EQ(Block(2, 2).m_nGraphicNo, 3);
  EXPECT_EQ(Item(3, 3).m_nGraphicNo, 4);
  EXPECT_FALSE(CanUndo());

  Redo();
  EXPECT_EQ(Chara(1, 1).m_nGraphicNo, 9);
  EXPECT_TRUE(CanUndo());
  EXPECT_FALSE(CanRedo());
}

TEST_F(StageHistory, FullStackDropsOldestAndNewStrokeEmptiesRedo) {
  StageEdit().m_vecBrushBlock[0] = BlockOf(1);
  for (int stroke = 0; stroke < 4; ++stroke) Click(stroke, 0);
  EXPECT_EQ(StageEdit().m_iUndoNum, 3);
  for (int i = 0; i < 3; ++i) Undo();
  Undo();  // nothing left: the first stroke stays
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 1);
  EXPECT_EQ(Block(0, 0).m_nGraphicNo, 1);
  EXPECT_EQ(StageEdit().m_iRedoNum, 3);

  Redo();
  Click(10, 10);
  EXPECT_EQ(StageEdit().m_iRedoNum, 0);
  Redo();
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 3);
}

TEST_F(StageHistory, UndoRemovesSurplusPlayerKeepingTheLastInRowOrder) {
  // A step that holds two players, as a damaged or hand-made state may.
  Chara(5, 0) = CharaOf(1, 0);
  Chara(2, 3) = CharaOf(1, 0);
  Chara(7, 1) = CharaOf(4);
  RecordStep(kLayerChara);
  EraseCell(Chara(5, 0));
  EraseCell(Chara(2, 3));
  Chara(9, 9) = CharaOf(2);
  Undo();
  EXPECT_FALSE(IsOccupied(Chara(5, 0)));
  EXPECT_TRUE(IsPlayer(Chara(2, 3)));
  EXPECT_EQ(Chara(7, 1).m_nGraphicNo, 4);
  EXPECT_FALSE(IsOccupied(Chara(9, 9)));

  // A block step leaves the characters as they stand, but two players
  // among them are still one too many.
  Block(0, 0) = BlockOf(1);
  RecordStep(kLayerBlock);
  Chara(1, 1) = CharaOf(1, 0);
  Undo();
  EXPECT_FALSE(IsOccupied(Chara(1, 1)));
  EXPECT_TRUE(IsPlayer(Chara(2, 3)));
}

TEST_F(StageHistory, UndoAndRedoAfterManyStepsKeepEveryLayerExact) {
  // Steps of changing masks over cells that fill and empty again: each
  // undo must bring back the layers exactly, nothing left over from older
  // contents of the reused slots.
  std::vector<std::vector<int16_t>> states;
  auto state = [] {
    std::vector<int16_t> graphics;
    for (const cEdBlock& cell : EditStage().m_vecBlockCell) graphics.push_back(cell.m_nGraphicNo);
    for (const cEdItem& cell : EditStage().m_vecItemCell) graphics.push_back(cell.m_nGraphicNo);
    return graphics;
  };
  for (int step = 0; step < 5; ++step) {
    states.push_back(state());
    RecordStep(step % 2 ? kLayerAll : kLayerBlock | kLayerItem);
    EraseCell(Block(step, 0));
    Block(step + 1, step) = BlockOf(static_cast<int16_t>(step + 1));
    Item(step, 2) = cEdItem();
    Item(step, 2).m_nGraphicNo = static_cast<int16_t>(10 + step);
  }
  const std::vector<int16_t> last = state();
  for (int step = 4; step >= 2; --step) {
    Undo();
    EXPECT_EQ(state(), states[static_cast<size_t>(step)]) << step;
  }
  for (int i = 0; i < 3; ++i) Redo();
  EXPECT_EQ(state(), last);
}

TEST_F(StageHistory, NothingIsRecordedWithoutLevelsOrDuringTestPlay) {
  StageEdit().m_bTestPlay = 1;
  Click(0, 0);
  EXPECT_EQ(StageEdit().m_iUndoNum, 0);
  StageEdit().m_bTestPlay = 0;
  MakeStage(20, 15, 0);
  Click(0, 0);
  EXPECT_FALSE(CanUndo());
  Undo();
  Redo();
}

TEST_F(StageHistory, ShortMemoryForcesLevelsDownWithNotice) {
  SetDebugLog("", true);
  const uint64_t step = EstimateStep(20, 15);
  m_freeMemory = step * 4;  // room for the stage and one level
  MakeStage(20, 15, 3);
  EXPECT_EQ(EditStage().m_iUndoCount, 1);
  EXPECT_EQ(StageEdit().m_vecUndoBlock.size(), 1u);
  EXPECT_EQ(m_prompt.LastText(), "元に戻せる回数を 1回 に強制変更！");

  m_freeMemory = 1 << 20;
  MakeStage(512, 512, 3);
  EXPECT_EQ(EstimateStep(512, 512), 609484800u);
  EXPECT_EQ(EditStage().m_iUndoCount, 0);
  EXPECT_TRUE(StageEdit().m_vecUndoBlock.empty());
  EXPECT_EQ(m_prompt.LastText(), "元に戻せる回数を 0回 に強制変更！");
  SetDebugLog("", false);
}

TEST_F(StageHistory, MemoryFiguresAndLevelChange) {
  const uint64_t per = EstimateStep(20, 15);
  m_freeMemory = per * 3;
  cHistoryMemory figures = HistoryMemoryFigures(20, 15);
  EXPECT_EQ(figures.maxLevels, 2);
  char expected[64];
  std::snprintf(expected, sizeof expected, "%9u KB\r\n%9u KB\r\n", static_cast<unsigned>((per * 2) >> 10),
                static_cast<unsigned>((per * 4) >> 10));
  EXPECT_EQ(figures.figures, expected);
  EXPECT_EQ(ToUtf8(figures.warning), "※元に戻せる回数 3 → 2");

  m_freeMemory = per;
  EditStage().m_iUndoCount = 5;
  EXPECT_FALSE(ApplyUndoLevels(3));
  EXPECT_EQ(EditStage().m_iUndoCount, 3);
  EXPECT_EQ(m_prompt.LastText(), "メモリ不足により、「元に戻せる回数」が変更できませんでした！");
  m_freeMemory = per * 8;
  EditStage().m_iUndoCount = 1;
  EXPECT_TRUE(ApplyUndoLevels(3));
  EXPECT_EQ(StageEdit().m_vecRedoItem.size(), 1u);
}

}  // namespace
}  // namespace velmora
