#include "StageEditFixture.h"
#include <array>
#include <cstdio>
#include <functional>

#include "core/Log.h"
#include "platform/TextCodec.h"
#include "stage/HistoryMemory.h"
#include "stage/StageBrush.h"
#include "stage/StageCommands.h"
#include "stage/StageRange.h"

namespace velmora {
namespace {

using testing::cStageEditTest;

class StageHistory : public cStageEditTest {
 protected:
  // What an author sees of every cell of the three layers; an empty cell
  // shows nothing of what it still holds.
  using cView = std::vector<std::array<int, 4>>;
  static cView View() {
    cView view;
    const cStage& stage = EditStage();
    for (size_t i = 0; i < stage.m_vecBlockCell.size(); ++i) {
      const cEdChara& chara = stage.m_vecCharaCell[i];
      const bool shown = IsOccupied(chara);
      view.push_back({stage.m_vecBlockCell[i].m_nGraphicNo, shown ? chara.m_nGraphicNo * 16 + chara.m_nControl : 0,
                      shown && chara.m_bFaceRight, stage.m_vecItemCell[i].m_nGraphicNo});
    }
    return view;
  }

  // A busy stage, written before any step, with one player.
  static void Furnish() {
    cStage& stage = EditStage();
    for (int y = 0; y < 15; ++y) {
      for (int x = 0; x < 20; ++x) {
        const size_t i = Index(x, y);
        if ((x + y) % 3) stage.m_vecBlockCell[i] = BlockOf(static_cast<int16_t>(1 + (x * y) % 5));
        if ((x * 7 + y) % 4 == 0) stage.m_vecCharaCell[i] = CharaOf(static_cast<int16_t>(2 + x % 3));
        if ((x + 2 * y) % 5 == 1) stage.m_vecItemCell[i].m_nGraphicNo = static_cast<int16_t>(3 + y % 4);
      }
    }
    stage.m_vecCharaCell[Index(3, 3)] = CharaOf(1, 0);
  }

  // The first cell where two views part, or empty.
  static std::string Differ(const cView& a, const cView& b) {
    for (size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
      if (a[i] != b[i]) return "cell " + std::to_string(i);
    }
    return a.size() == b.size() ? std::string() : "size";
  }

  static void Brushes() {
    cStageEdit& edit = StageEdit();
    edit.m_vecBrushBlock[0] = BlockOf(9);
    edit.m_vecBrushChara[0] = CharaOf(8);
    edit.m_vecBrushItem[0].m_nGraphicNo = 7;
  }

  static void Range(int x0, int y0, int x1, int y1, int key, bool shift) {
    Mouse(x0, y0, eStageAction::Down, eStageButton::Right, shift);
    Mouse(x1, y1, eStageAction::Move, eStageButton::Right, shift);
    StageKey(key, shift, x1, y1);
  }
};

// Every editing operation, through the paths the window takes: undo must
// give back every layer exactly as it stood, and redo the state after.
TEST_F(StageHistory, EveryOperationUndoesAndRedoesExactly) {
  struct cOperation {
    const char* name;
    int tool;
    int layer;
    std::function<void(testing::cScriptedPrompt&)> run;
  };
  const std::vector<cOperation> operations = {
      {"pen stroke over occupied cells", 0, 0,
       [](testing::cScriptedPrompt&) {
         Mouse(1, 1, eStageAction::Down);
         for (int x = 2; x < 9; ++x) Mouse(x, 1 + x % 3, eStageAction::Move);
         Mouse(8, 3, eStageAction::Up);
       }},
      {"pen stroke with shift", 0, 2, [](testing::cScriptedPrompt&) { Drag(4, 4, 6, 5, eStageButton::Left, true); }},
      {"player placed elsewhere", 0, 1,
       [](testing::cScriptedPrompt&) {
         StageEdit().m_vecBrushChara[0] = CharaOf(1, 0);
         Click(12, 9);
       }},
      {"non-player over the player", 0, 1, [](testing::cScriptedPrompt&) { Click(3, 3); }},
      {"line with shift", 1, 0, [](testing::cScriptedPrompt&) { Drag(0, 14, 19, 0, eStageButton::Left, true); }},
      {"rectangle", 2, 2, [](testing::cScriptedPrompt&) { Drag(15, 12, 5, 6); }},
      {"fill", 3, 0, [](testing::cScriptedPrompt&) { Click(0, 0); }},
      {"fill of characters", 3, 1, [](testing::cScriptedPrompt&) { Click(10, 10); }},
      {"cut with shift", 0, 0, [](testing::cScriptedPrompt&) { Range(2, 2, 9, 8, 'D', true); }},
      {"delete", 0, 2, [](testing::cScriptedPrompt&) { Range(0, 0, 19, 14, 'q', false); }},
      {"turn round", 0, 1, [](testing::cScriptedPrompt&) { Range(0, 0, 19, 14, 'R', false); }},
      {"clear characters", 0, 0,
       [](testing::cScriptedPrompt& prompt) {
         prompt.QueueAnswer(eAnswer::Yes);
         ClearLayersCommand(eClearLayers::Characters);
       }},
  };
  for (const cOperation& operation : operations) {
    MakeStage(20, 15, 3);
    Furnish();
    Brushes();
    StageEdit().m_iTool = operation.tool;
    StageEdit().m_iLayer = operation.layer;
    const cView before = View();
    operation.run(m_prompt);
    const cView after = View();
    ASSERT_NE(Differ(before, after), "") << operation.name;
    Undo();
    EXPECT_EQ(Differ(View(), before), "") << operation.name;
    Redo();
    EXPECT_EQ(Differ(View(), after), "") << operation.name;
    Undo();
    EXPECT_EQ(Differ(View(), before), "") << operation.name << ", twice";
  }
}

// A cell written twice within one step comes back as it stood before the
// first write, and a step gives back the cells of earlier steps untouched.
TEST_F(StageHistory, StepsKeepFirstStateAndLeaveOtherStepsCells) {
  Brushes();
  Block(5, 5) = BlockOf(1);
  Click(5, 5);
  StageEdit().m_vecBrushBlock[0] = BlockOf(2);
  Mouse(6, 5, eStageAction::Down);
  Mouse(5, 5, eStageAction::Move);
  Mouse(6, 5, eStageAction::Move);
  Mouse(6, 5, eStageAction::Up);
  EXPECT_EQ(Block(5, 5).m_nGraphicNo, 2);
  Undo();
  EXPECT_EQ(Block(5, 5).m_nGraphicNo, 9);
  EXPECT_FALSE(IsOccupied(Block(6, 5)));
  Undo();
  EXPECT_EQ(Block(5, 5).m_nGraphicNo, 1);

  // A block step keeps no character, even when one was written inside it.
  RecordStep(kLayerBlock);
  Chara(0, 0) = CharaOf(4);
  Block(0, 0) = BlockOf(4);
  Undo();
  EXPECT_FALSE(IsOccupied(Block(0, 0)));
  EXPECT_EQ(Chara(0, 0).m_nGraphicNo, 4);
}

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
  EXPECT_EQ(StageEdit().m_vecUndoMask.size(), 1u);
  EXPECT_EQ(m_prompt.LastText(), "元に戻せる回数を 1回 に強制変更！");

  m_freeMemory = 1 << 20;
  MakeStage(512, 512, 3);
  EXPECT_EQ(EstimateStep(512, 512), 609484800u);
  EXPECT_EQ(EditStage().m_iUndoCount, 0);
  EXPECT_TRUE(StageEdit().m_vecUndoMask.empty());
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
  EXPECT_EQ(StageEdit().m_vecRedoMask.size(), 1u);
}

}  // namespace
}  // namespace velmora
