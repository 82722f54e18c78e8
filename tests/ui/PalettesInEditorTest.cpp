#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EditorOnSample.h"
#include "MoveAnswer.h"
#include "core/EditConfig.h"
#include "objects/PaletteTables.h"
#include "objects/Palette.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "ui/palette/PaletteCommands.h"

namespace velmora::testing {
namespace {

constexpr cPaletteSide kCommonBlocks{0, 0};
constexpr cPaletteSide kStageBlocks{1, 0};

std::vector<std::string> Names(const std::vector<cEdBlock>& list) {
  std::vector<std::string> names;
  for (const cEdBlock& entry : list) names.push_back(entry.m_strName);
  return names;
}

// The six windows in the order the idle step repaints them.
constexpr cPaletteSide kRepaintOrder[] = {{1, 0}, {0, 0}, {1, 1}, {0, 1}, {1, 2}, {0, 2}};

class PalettesInTheEditor : public cEditorOnSample {
 protected:
  // The stage palette's blocks as entries "s1".."s<count-1>" behind the
  // blank entry, shown in its window.
  void NameStageBlocks(int count) {
    std::vector<cEdBlock>& list = EditStage().m_vecBlockPlt;
    list.assign(static_cast<size_t>(count), cEdBlock());
    for (int i = 1; i < count; ++i) {
      list[static_cast<size_t>(i)].m_strName = "s" + std::to_string(i);
      list[static_cast<size_t>(i)].m_nGraphicNo = 1;
    }
    Palettes().Refresh();
  }
  std::vector<cEdBlock>& StageBlocks() { return EditStage().m_vecBlockPlt; }
  std::vector<cEdBlock>& CommonBlocks() { return CommonPalette().m_vecBlockPlt; }
  // The move dialog of the stage blocks' window, answered.
  void MoveStageBlocks(int first, int last, int target, int op) {
    AnswerMove(first, last, target, op);
    Command(Palettes().Palette(kStageBlocks), kCmdMoveEntries);
  }
};

TEST_F(PalettesInTheEditor, AnEntryPickedInAPaletteWindowIsPaintedInTheStageWindow) {
  ASSERT_TRUE(Palettes().Palette(kCommonBlocks).Window()->isVisible());
  PickEntry(kCommonBlocks, 2);
  ASSERT_EQ(2, StageEdit().m_iPltIndex);
  const cEdBlock& entry = CommonBlocks().at(2);

  Stage().ScrollTo(0, 0);
  Click(Stage(), QPoint(5 * 32 + 10, 3 * 32 + 10));
  const cEdBlock& cell = EditStage().m_vecBlockCell.at(static_cast<size_t>(EditStage().CellIndex(5, 3)));
  EXPECT_EQ(entry.m_nGraphicNo, cell.m_nGraphicNo);
  EXPECT_EQ(entry.m_strName, cell.m_strName);
  EXPECT_EQ(kInheritCommon, cell.m_nInheritSrc);
  EXPECT_EQ(2, cell.m_nInheritNo);
  EXPECT_TRUE(StageEdit().m_bStageChanged);
}

TEST_F(PalettesInTheEditor, ChangesAreDrawnByTheIdleStepInTheFixedOrderHiddenWindowsToo) {
  app->IdleStep();
  std::vector<uint64_t> before;
  for (const cPaletteSide side : kRepaintOrder) before.push_back(Palettes().Palette(side).LastRepaint());

  PickEntry(kCommonBlocks, 1);
  for (size_t i = 0; i < std::size(kRepaintOrder); ++i) {
    const cPaletteWindow& window = Palettes().Palette(kRepaintOrder[i]);
    EXPECT_EQ(before[i], window.LastRepaint()) << "no window repaints before the idle step";
    EXPECT_TRUE(window.WantsIdle());
  }
  app->IdleStep();
  uint64_t previous = before.back();
  for (const cPaletteSide side : kRepaintOrder) {
    const cPaletteWindow& window = Palettes().Palette(side);
    EXPECT_GT(window.LastRepaint(), previous) << side.stagePlt << "," << side.kind;
    EXPECT_FALSE(window.WantsIdle());
    previous = window.LastRepaint();
  }
  EXPECT_FALSE(Palettes().Palette({0, 2}).Window()->isVisible());
  const QImage& picture = Palettes().Palette(kCommonBlocks).Picture();
  EXPECT_EQ(qRgb(255, 255, 255), picture.pixel(32, 10)) << "the selection frame at entry 1";
}

TEST_F(PalettesInTheEditor, AnEntryCutInTheCommonPaletteMovesIntoTheStagePalette) {
  const std::vector<std::string> common = Names(CommonBlocks());
  ASSERT_EQ(4u, common.size());
  PickEntry(kCommonBlocks, 2);
  Command(Palettes().Palette(kCommonBlocks), kCmdCut);
  EXPECT_TRUE(StageEdit().m_bClipCut);
  Command(Palettes().Palette(kCommonBlocks), kCmdPaste);
  EXPECT_EQ(common, Names(CommonBlocks())) << "a cut entry is never pasted over another";

  const size_t stageCount = StageBlocks().size();
  PickEntry(kStageBlocks, 0);
  Command(Palettes().Palette(kStageBlocks), kCmdInsertCopiedAtEnd);
  ASSERT_EQ(stageCount + 1, StageBlocks().size());
  EXPECT_EQ(common[2], StageBlocks().back().m_strName);
  EXPECT_EQ(kInheritNone, StageBlocks().back().m_nInheritSrc);
  EXPECT_EQ((std::vector<std::string>{common[0], common[1], common[3]}), Names(CommonBlocks()));
  EXPECT_FALSE(StageEdit().m_bClip);
}

TEST_F(PalettesInTheEditor, DeletingAnEntryBeforeTheSelectionKeepsTheSameEntrySelected) {
  NameStageBlocks(10);
  // Entry 5 cut, and its copy inserted at entry 7, which stays selected
  // while entry 5 goes.
  PickEntry(kStageBlocks, 5);
  Command(Palettes().Palette(kStageBlocks), kCmdCut);
  PickEntry(kStageBlocks, 7);
  Command(Palettes().Palette(kStageBlocks), kCmdInsertCopied);
  EXPECT_EQ((std::vector<std::string>{"", "s1", "s2", "s3", "s4", "s6", "s5", "s7", "s8", "s9"}), Names(StageBlocks()));
  EXPECT_EQ(6, StageEdit().m_iPltIndex);
  EXPECT_EQ("s5", StageEdit().m_vecBrushBlock.at(0).m_strName);

  // Deleting the selected entry gives the selection to the blank entry.
  Command(Palettes().Palette(kStageBlocks), kCmdDelete);
  EXPECT_EQ(0, StageEdit().m_iPltIndex);
  EXPECT_EQ(9u, StageBlocks().size());
}

TEST_F(PalettesInTheEditor, TheMoveDialogMovesCopiesAndDeletesRangesOfTheList) {
  NameStageBlocks(30);
  const std::vector<std::string> original = Names(StageBlocks());
  PickEntry(kStageBlocks, 3);
  Command(Palettes().Palette(kStageBlocks), kCmdCopy);
  StageEdit().m_bStageChanged = 0;

  MoveStageBlocks(5, 8, 20, 0);
  std::vector<std::string> names = Names(StageBlocks());
  EXPECT_EQ((std::vector<std::string>{"s5", "s6", "s7", "s8"}), std::vector<std::string>(names.begin() + 16, names.begin() + 20));
  EXPECT_EQ("s19", names[15]);
  EXPECT_FALSE(StageEdit().m_bClip);
  EXPECT_TRUE(StageEdit().m_bStageChanged);

  NameStageBlocks(30);
  MoveStageBlocks(5, 5, 6, 0);
  MoveStageBlocks(5, 8, 6, 0);
  EXPECT_EQ(original, Names(StageBlocks())) << "onto their own place nothing moves";
  MoveStageBlocks(5, 8, 7, 0);
  names = Names(StageBlocks());
  EXPECT_EQ((std::vector<std::string>{"s5", "s6", "s7", "s8"}), std::vector<std::string>(names.begin() + 3, names.begin() + 7));

  PickEntry(kStageBlocks, 28);
  MoveStageBlocks(1, 2, 30, 1);
  EXPECT_EQ(32u, StageBlocks().size());
  EXPECT_EQ("s1", StageBlocks()[30].m_strName) << "a copy at the end is appended";
  MoveStageBlocks(3, 31, 1, 2);
  EXPECT_EQ(3u, StageBlocks().size());
  EXPECT_EQ(2, StageEdit().m_iPltIndex) << "the selection falls on the last entry";
  EXPECT_EQ(1, Palettes().Palette(kStageBlocks).Rows());
}

TEST_F(PalettesInTheEditor, TheWindowsOfTheCurrentLayerShowAndTheirSettingsToggleThem) {
  const cPaletteSide charas{0, 1};
  EXPECT_FALSE(Palettes().Palette(charas).Window()->isVisible());
  Command(Stage(), 40055);
  EXPECT_TRUE(Palettes().Palette(charas).Window()->isVisible());
  EXPECT_FALSE(Palettes().Palette(kCommonBlocks).Window()->isVisible());
  EXPECT_TRUE(Palettes().Group().Window()->isVisible());

  Command(Stage(), 40148);
  EXPECT_FALSE(Palettes().Palette(charas).Window()->isVisible());
  EXPECT_TRUE(Palettes().Palette({1, 1}).Window()->isVisible());
  EXPECT_FALSE(EditorConfig().m_aPlace[5].m_bVisible) << "the items' common window follows";
}

// Space as the author types it: to whatever has the focus, through the
// keyboard hook, which hands it to the active window.
void TypeSpace() {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(nullptr, focus);
  QTest::keyClick(focus, Qt::Key_Space);
  QTest::qWait(20);
}

TEST_F(PalettesInTheEditor, SpaceGoesRoundTheLayersAndTheStageWindowKeepsTheFocus) {
  Command(Stage(), 40054);  // the block layer
  QWidget* stage = Stage().Window();
  stage->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(stage));
  for (const int layer : {1, 2, 0}) {
    TypeSpace();
    EXPECT_EQ(layer, StageEdit().m_iLayer);
    EXPECT_TRUE(Palettes().Palette({0, layer}).Window()->isVisible());
    EXPECT_EQ(stage, QApplication::activeWindow()) << "after the switch to layer " << layer;
  }

  // Space in a palette hides that palette; the focus goes to the stage
  // window, where the next Space is taken.
  QWidget* blocks = Palettes().Palette(kCommonBlocks).Window();
  blocks->activateWindow();
  QTest::qWait(20);
  ASSERT_EQ(blocks, QApplication::activeWindow());
  TypeSpace();
  EXPECT_EQ(1, StageEdit().m_iLayer);
  EXPECT_EQ(stage, QApplication::activeWindow());
  TypeSpace();
  EXPECT_EQ(2, StageEdit().m_iLayer);
}

}  // namespace
}  // namespace velmora::testing
