#include "StageEditFixture.h"
#include "stage/StageBrush.h"
#include "stage/StageCommands.h"
#include "stage/StageFill.h"
#include "stage/StageRange.h"
#include "stage/StageSize.h"

namespace velmora {
namespace {

using testing::cStageEditTest;

class StageTools : public cStageEditTest {
 protected:
  // A brush of w x h blocks numbered from 1 row by row.
  static void NumberedBrush(int w, int h) {
    cStageEdit& edit = StageEdit();
    edit.m_iBrushW = w;
    edit.m_iBrushH = h;
    edit.m_vecBrushBlock.clear();
    for (int i = 0; i < w * h; ++i) edit.m_vecBrushBlock.push_back(BlockOf(static_cast<int16_t>(i + 1)));
  }
  static std::vector<int> BlockGraphics() {
    std::vector<int> graphics;
    for (const cEdBlock& cell : EditStage().m_vecBlockCell) graphics.push_back(cell.m_nGraphicNo);
    return graphics;
  }
};

TEST_F(StageTools, PenBrushStopsAtRightEdgeAndShiftPaintsAllLayers) {
  NumberedBrush(3, 2);
  Mouse(18, 0, eStageAction::Down);
  EXPECT_EQ(Block(18, 0).m_nGraphicNo, 1);
  EXPECT_EQ(Block(19, 1).m_nGraphicNo, 5);
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 4);
  EXPECT_EQ(StageEdit().m_vecUndoMask[0], kLayerAll);

  StageEdit().m_iBrushW = StageEdit().m_iBrushH = 1;
  StageEdit().m_vecBrushItem[0].m_nGraphicNo = 7;
  Mouse(0, 5, eStageAction::Down, eStageButton::Left, true);
  EXPECT_EQ(Item(0, 5).m_nGraphicNo, 7);
  EXPECT_EQ(Block(0, 5).m_nGraphicNo, 1);
}

TEST_F(StageTools, PlayerRuleKeepsOnePlayer) {
  cStage& stage = EditStage();
  SetChara(stage, Index(4, 4), CharaOf(1, 0));
  SetChara(stage, Index(6, 6), CharaOf(2, 0));
  EXPECT_FALSE(IsOccupied(Chara(4, 4)));
  EXPECT_EQ(Chara(6, 6).m_nGraphicNo, 2);

  // A non-player over the player moves the player to the next free cell.
  Chara(7, 6) = CharaOf(3);
  SetChara(stage, Index(6, 6), CharaOf(4));
  EXPECT_EQ(Chara(6, 6).m_nGraphicNo, 4);
  EXPECT_TRUE(IsPlayer(Chara(8, 6)));

  // A full layer sends the displaced player to cell 0.
  for (int y = 0; y < 15; ++y)
    for (int x = 0; x < 20; ++x)
      if (!IsPlayer(Chara(x, y))) Chara(x, y) = CharaOf(9);
  SetChara(stage, Index(8, 6), CharaOf(5));
  EXPECT_TRUE(IsPlayer(Chara(0, 0)));
  EXPECT_EQ(stage.FindPlayer().x, 0);
}

TEST_F(StageTools, LineStopsAfter200CellsAndToItselfWritesOneCell) {
  MakeStage(320, 15, 3);
  StageEdit().m_iTool = kToolLine;
  StageEdit().m_vecBrushBlock[0] = BlockOf(1);
  Drag(0, 0, 300, 0);
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 200);
  EXPECT_FALSE(IsOccupied(Block(200, 0)));
  EXPECT_EQ(StageEdit().m_bDrag, 0);

  Drag(5, 9, 5, 9);
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 201);
  EXPECT_TRUE(IsOccupied(Block(5, 9)));

  Drag(0, 14, 6, 11);
  EXPECT_TRUE(IsOccupied(Block(0, 14)));
  EXPECT_TRUE(IsOccupied(Block(6, 11)));
}

TEST_F(StageTools, RectangleDraggedBackwardsMatchesForwards) {
  StageEdit().m_iTool = kToolRect;
  NumberedBrush(2, 2);
  Drag(2, 3, 6, 5);
  const std::vector<int> forwards = BlockGraphics();
  EXPECT_EQ(Block(2, 3).m_nGraphicNo, 1);
  EXPECT_EQ(Block(6, 5).m_nGraphicNo, 1);
  EXPECT_EQ(Block(5, 4).m_nGraphicNo, 4);
  Undo();
  Drag(6, 5, 2, 3);
  EXPECT_EQ(BlockGraphics(), forwards);
  EXPECT_EQ(StageEdit().m_vecUndoMask[0], kLayerBlock);
}

TEST_F(StageTools, FillStopsAtDifferentCellsAndRefusesPlayerBrush) {
  StageEdit().m_iTool = kToolFill;
  for (int y = 0; y < 15; ++y) Block(10, y) = BlockOf(2);
  StageEdit().m_vecBrushBlock[0] = BlockOf(1);
  Click(0, 0);
  EXPECT_EQ(CountOccupied(EditStage().m_vecBlockCell), 10 * 15 + 15);
  EXPECT_EQ(Block(10, 4).m_nGraphicNo, 2);
  EXPECT_EQ(Block(11, 4).m_nGraphicNo, 0);
  EXPECT_EQ(Block(9, 4).m_nGraphicNo, 1);

  SwitchLayer(1);
  StageEdit().m_vecBrushChara[0] = CharaOf(1, 0);
  Click(0, 0);
  EXPECT_EQ(m_prompt.LastText(), "プレイヤーキャラは塗りつぶしモードで配置できません！");
  EXPECT_FALSE(IsOccupied(Chara(0, 0)));
  EXPECT_EQ(StageEdit().m_vecUndoMask[0], kLayerChara);
}

TEST_F(StageTools, FillOfLargeEmptyLayerIsCutByDepthLimit) {
  MakeStage(512, 512, 0);
  StageEdit().m_vecBrushBlock[0] = BlockOf(1);
  FillAt(0, 0);
  const int filled = CountOccupied(EditStage().m_vecBlockCell);
  EXPECT_GT(filled, 5000);
  EXPECT_LT(filled, 512 * 512);
}

TEST_F(StageTools, RightRangeBecomesBrushAndKeysActOnIt) {
  Block(3, 3) = BlockOf(8);
  Mouse(3, 3, eStageAction::Down, eStageButton::Right);
  Mouse(3, 3, eStageAction::Up, eStageButton::Right);
  ASSERT_EQ(StageEdit().m_vecBrushBlock.size(), 1u);
  EXPECT_EQ(StageEdit().m_vecBrushBlock[0].m_nGraphicNo, 8);
  EXPECT_EQ(StageEdit().m_iPltIndex, -1);

  // Dragged backwards over the edge: default records where the stage ends.
  Block(19, 14) = BlockOf(6);
  Mouse(20, 15, eStageAction::Down, eStageButton::Right);
  CopyRange(19, 14, false);
  EXPECT_EQ(StageEdit().m_vecBrushBlock[0].m_nGraphicNo, 6);
  EXPECT_EQ(StageEdit().m_vecBrushBlock.size(), 4u);
  EXPECT_FALSE(IsOccupied(StageEdit().m_vecBrushBlock[3]));

  // Cut with D during the drag empties the range and keeps it as the brush.
  Mouse(2, 2, eStageAction::Down, eStageButton::Right);
  Mouse(4, 4, eStageAction::Move, eStageButton::Right);
  EXPECT_TRUE(StageKey('d', false, 4, 4));
  EXPECT_FALSE(IsOccupied(Block(3, 3)));
  EXPECT_EQ(StageEdit().m_vecBrushBlock[4].m_nGraphicNo, 8);
  EXPECT_EQ(StageEdit().m_iCursorMode, 0);
  EXPECT_FALSE(StageKey('Q', false, 4, 4));
  Undo();
  EXPECT_EQ(Block(3, 3).m_nGraphicNo, 8);
}

TEST_F(StageTools, TurnRoundSparesInheritedFacingAndNeedsCharacterLayer) {
  Chara(1, 1) = CharaOf(1);
  Chara(2, 1) = CharaOf(1);
  Chara(2, 1).m_bbInherit[5] = 1;
  Mouse(1, 1, eStageAction::Down, eStageButton::Right);
  StageKey('R', false, 2, 1);
  EXPECT_EQ(Chara(1, 1).m_bFaceRight, 0);
  StageKey('R', true, 2, 1);
  EXPECT_EQ(Chara(1, 1).m_bFaceRight, 1);
  EXPECT_EQ(Chara(2, 1).m_bFaceRight, 0);
}

TEST_F(StageTools, SpaceCyclesLayersAndKeepsEachLayersBrush) {
  StageEdit().m_iBrushW = 4;
  StageKey(' ', false, 0, 0);
  EXPECT_EQ(StageEdit().m_iLayer, 1);
  EXPECT_EQ(StageEdit().m_iBrushW, 1);
  StageKey(' ', false, 0, 0);
  StageKey(' ', false, 0, 0);
  EXPECT_EQ(StageEdit().m_iLayer, 0);
  EXPECT_EQ(StageEdit().m_iBrushW, 4);
}

TEST_F(StageTools, ParameterToolPicksOccupiedLayerAndReturns) {
  Item(4, 4).m_nGraphicNo = 3;
  int edited = 0;
  StageHooks().editItem = [&](cEdItem& item) {
    edited = item.m_nGraphicNo;
    EXPECT_EQ(StageEdit().m_iLayer, 2);
  };
  StageEdit().m_iTool = kToolParameter;
  Click(4, 4);
  EXPECT_EQ(edited, 3);
  EXPECT_EQ(StageEdit().m_iLayer, 0);
}

TEST_F(StageTools, ClearAsksFirstAndGroupsComeFromEveryCell) {
  Block(1, 1) = BlockOf(1);
  Chara(30, 0).m_bGroup = 1;  // beyond the width, still counted
  Chara(30, 0).m_nGroupNo = 59;
  EXPECT_TRUE(UsedGroupNumbers().test(59));
  EXPECT_FALSE(ClearLayersCommand(eClearLayers::Blocks));
  EXPECT_EQ(StageEdit().m_iUndoNum, 0);
  m_prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_TRUE(ClearLayersCommand(eClearLayers::All));
  EXPECT_EQ(m_prompt.Shown().back().caption, "データクリアの確認");
  EXPECT_FALSE(IsOccupied(Block(1, 1)));
  EXPECT_TRUE(UsedGroupNumbers().none());
  EXPECT_EQ(StageEdit().m_vecUndoMask[0], kLayerAll);
}

TEST_F(StageTools, SizeChangeClampsAndRefusesWithoutMemory) {
  EXPECT_TRUE(ApplyStageSize(40, 30, 0, 0));
  EXPECT_FALSE(ApplyStageSize(10, 10, 0, 0) && EditStage().m_nWidth != 20);
  EXPECT_EQ(EditStage().m_nWidth, 20);
  EXPECT_EQ(EditStage().m_nHeight, 15);
  EXPECT_EQ(StageEdit().m_vecUndoMask.size(), 0u);

  m_freeMemory = 0;
  EXPECT_FALSE(ApplyStageSize(64, 64, 0, 0));
  EXPECT_EQ(EditStage().m_nWidth, 20);
  EXPECT_EQ(m_prompt.LastText(), "メモリ不足により、サイズの変更に失敗しました！");
}

}  // namespace
}  // namespace velmora
