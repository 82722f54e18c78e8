#pragma once
#include <gtest/gtest.h>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"
#include "stage/StageTools.h"
#include "support/ScriptedPrompt.h"

namespace velmora::testing {

// An edit stage of a given size with a fresh edit state, plenty of free
// memory and a scripted prompt.
class cStageEditTest : public ::testing::Test {
 protected:
  void SetUp() override { MakeStage(20, 15, 3); }
  void TearDown() override {
    ClearHistory();
    StageHooks() = {};
    EditStage().InitDefault();
  }

  void MakeStage(int width, int height, int levels) {
    ClearHistory();
    cStage& stage = EditStage();
    stage.InitDefault();
    stage.SetSize(width, height, 0, 0);
    stage.m_iUndoCount = levels;
    StageEdit() = cStageEdit();
    StageEdit().m_vecBrushBlock.assign(1, cEdBlock());
    StageEdit().m_vecBrushChara.assign(1, cEdChara());
    StageEdit().m_vecBrushItem.assign(1, cEdItem());
    StageHooks() = {};
    StageHooks().freeMemory = [this] { return m_freeMemory; };
    AllocHistory(levels, stage.m_nPitch, stage.m_nHeight);
  }

  // A cell handed out here may be written, so an open undo step keeps it
  // first, as the editing operations do.
  static cEdBlock& Block(int x, int y) { return Noted(EditStage().m_vecBlockCell[Index(x, y)]); }
  static cEdChara& Chara(int x, int y) { return Noted(EditStage().m_vecCharaCell[Index(x, y)]); }
  static cEdItem& Item(int x, int y) { return Noted(EditStage().m_vecItemCell[Index(x, y)]); }
  template <class T>
  static T& Noted(T& cell) {
    NoteCellWrite(cell);
    return cell;
  }
  static size_t Index(int x, int y) { return static_cast<size_t>(EditStage().CellIndex(x, y)); }

  static cEdBlock BlockOf(int16_t graphic) {
    cEdBlock block;
    block.m_nGraphicNo = graphic;
    return block;
  }
  static cEdChara CharaOf(int16_t graphic, uint8_t control = 1) {
    cEdChara chara;
    chara.m_nGraphicNo = graphic;
    chara.m_nControl = control;
    return chara;
  }

  static void Mouse(int x, int y, eStageAction action, eStageButton button = eStageButton::Left, bool shift = false) {
    StageMouse({x, y, button, action, shift});
  }
  static void Click(int x, int y, bool shift = false) {
    Mouse(x, y, eStageAction::Down, eStageButton::Left, shift);
    Mouse(x, y, eStageAction::Up, eStageButton::Left, shift);
  }
  static void Drag(int x0, int y0, int x1, int y1, eStageButton button = eStageButton::Left, bool shift = false) {
    Mouse(x0, y0, eStageAction::Down, button, shift);
    Mouse(x1, y1, eStageAction::Move, button, shift);
    Mouse(x1, y1, eStageAction::Up, button, shift);
  }

  static int CountOccupied(const std::vector<cEdBlock>& cells) {
    int count = 0;
    for (const cEdBlock& cell : cells) count += IsOccupied(cell);
    return count;
  }

  uint64_t m_freeMemory = uint64_t{1} << 40;
  cScriptedPrompt m_prompt;
};

}  // namespace velmora::testing
