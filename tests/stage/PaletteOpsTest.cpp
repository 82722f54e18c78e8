#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "NamedEntries.h"
#include "core/PrjOption.h"
#include "objects/Inherit.h"
#include "objects/Palette.h"
#include "objects/PaletteTables.h"
#include "stage/PaletteOps.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"

namespace velmora {
namespace {

using testing::Named;

constexpr cPaletteSide kCommonBlocks{0, kKindBlock};
constexpr cPaletteSide kStageBlocks{1, kKindBlock};


template <class T>
std::vector<std::string> Names(const std::vector<T>& list) {
  std::vector<std::string> names;
  for (const T& entry : list) names.push_back(entry.m_strName);
  return names;
}

// Both palettes of every layer filled with named entries, a fresh edit
// state and the project's default options.
class PaletteOpsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ProjectOption().SetUp();
    EditStage().InitDefault();
    StageEdit() = cStageEdit();
    StageEdit().m_vecBrushBlock.resize(1);
    cPalette& common = CommonPalette();
    common.m_vecBlockPlt = Named<cEdBlock>("c", 10);
    common.m_vecCharaPlt = Named<cEdChara>("cc", 4);
    common.m_vecItemPlt = Named<cEdItem>("ci", 4);
    InstallPaletteLists(ePalette::Common, common.Lists());
    EditStage().m_vecBlockPlt = Named<cEdBlock>("s", 6);
    EditStage().m_vecItemPlt = Named<cEdItem>("si", 4);
  }
  void TearDown() override { InstallPaletteLists(ePalette::Common, {}); }

  std::vector<cEdBlock>& Common() { return CommonPalette().m_vecBlockPlt; }
  std::vector<cEdBlock>& Stage() { return EditStage().m_vecBlockPlt; }
  cStageEdit& Edit() { return StageEdit(); }
};

TEST_F(PaletteOpsTest, PickingAnEntryMakesItTheBrushWithThePlacingInheritance) {
  SelectEntry(kCommonBlocks, 4);
  EXPECT_EQ(0, Edit().m_iPltSource);
  EXPECT_EQ(4, Edit().m_iPltIndex);
  const cEdBlock& brush = Edit().m_vecBrushBlock.at(0);
  EXPECT_EQ("c4", brush.m_strName);
  EXPECT_EQ(kInheritCommon, brush.m_nInheritSrc);
  EXPECT_EQ(4, brush.m_nInheritNo);

  SelectEntry(kStageBlocks, 2);
  EXPECT_EQ(kInheritStage, Edit().m_vecBrushBlock.at(0).m_nInheritSrc);

  // Beyond the list nothing changes; a selection beyond a shortened list
  // falls back to the blank entry.
  SelectEntry(kStageBlocks, 6);
  EXPECT_EQ(2, Edit().m_iPltIndex);
  Stage().resize(2);
  TakeBrush(kStageBlocks);
  EXPECT_EQ(0, Edit().m_iPltIndex);
  EXPECT_EQ(0, Edit().m_vecBrushBlock.at(0).m_nGraphicNo);
}

TEST_F(PaletteOpsTest, TheBlankEntryCannotBeCopiedCutPastedOverOrDeleted) {
  EXPECT_FALSE(CopyEntry(kCommonBlocks, 0, false));
  EXPECT_FALSE(CopyEntry(kCommonBlocks, 0, true));
  EXPECT_FALSE(DeleteEntry(kCommonBlocks, 0));
  ASSERT_TRUE(CopyEntry(kCommonBlocks, 3, false));
  EXPECT_FALSE(PasteEntry(kCommonBlocks, 0));
  EXPECT_EQ("", Common()[0].m_strName);

  // An insert before it lands behind it.
  InsertEntry(kCommonBlocks, 0);
  EXPECT_EQ("", Common()[0].m_strName);
  EXPECT_EQ(11u, Common().size());
}

TEST_F(PaletteOpsTest, CutInTheCommonPaletteAndInsertedInTheStagePaletteMovesTheEntry) {
  ASSERT_TRUE(CopyEntry(kCommonBlocks, 3, true));
  EXPECT_FALSE(PasteEntry(kStageBlocks, 2)) << "a cut entry is only inserted";

  ASSERT_TRUE(InsertCopied(kStageBlocks, 2));
  EXPECT_EQ((std::vector<std::string>{"", "s1", "c3", "s2", "s3", "s4", "s5"}), Names(Stage()));
  EXPECT_EQ((std::vector<std::string>{"", "c1", "c2", "c4", "c5", "c6", "c7", "c8", "c9"}), Names(Common()));
  EXPECT_FALSE(Edit().m_bClip);
  EXPECT_FALSE(Edit().m_bClipCut);
}

TEST_F(PaletteOpsTest, CutAndInsertInOnePaletteFindsTheEntryAfterTheInsertShiftedIt) {
  ASSERT_TRUE(CopyEntry(kCommonBlocks, 6, true));
  ASSERT_TRUE(InsertCopied(kCommonBlocks, 2));
  EXPECT_EQ((std::vector<std::string>{"", "c1", "c6", "c2", "c3", "c4", "c5", "c7", "c8", "c9"}), Names(Common()));
}

TEST_F(PaletteOpsTest, PastedEntriesLoseInheritanceThatTheirPaletteCannotHave) {
  Common()[2].m_nInheritSrc = kInheritCommon;
  Stage()[2].m_nInheritSrc = kInheritStage;
  Stage()[3].m_nInheritSrc = kInheritCommon;

  ASSERT_TRUE(CopyEntry(kStageBlocks, 2, false));
  ASSERT_TRUE(PasteEntry(kStageBlocks, 99));  // limited to the last entry
  EXPECT_EQ("s2", Stage()[5].m_strName);
  EXPECT_EQ(kInheritNone, Stage()[5].m_nInheritSrc);

  ASSERT_TRUE(CopyEntry(kStageBlocks, 3, false));
  ASSERT_TRUE(PasteEntry(kStageBlocks, 1));
  EXPECT_EQ(kInheritCommon, Stage()[1].m_nInheritSrc);
  ASSERT_TRUE(PasteEntry(kCommonBlocks, 1));
  EXPECT_EQ(kInheritNone, Common()[1].m_nInheritSrc);
}

TEST_F(PaletteOpsTest, DeletingKeepsTheSameEntrySelectedAndFollowsTheClipboard) {
  SelectEntry(kCommonBlocks, 7);
  ASSERT_TRUE(CopyEntry(kCommonBlocks, 8, false));
  ASSERT_TRUE(DeleteEntry(kCommonBlocks, 5));
  EXPECT_EQ(6, Edit().m_iPltIndex);
  EXPECT_EQ("c7", Edit().m_vecBrushBlock.at(0).m_strName);
  EXPECT_EQ(7, Edit().m_iClipIndex);

  // The other palette's selection and clipboard don't move.
  ASSERT_TRUE(DeleteEntry(kStageBlocks, 1));
  EXPECT_EQ(6, Edit().m_iPltIndex);
  EXPECT_EQ(7, Edit().m_iClipIndex);

  ASSERT_TRUE(DeleteEntry(kCommonBlocks, 6));
  EXPECT_EQ(0, Edit().m_iPltIndex);
  EXPECT_EQ(0, Edit().m_vecBrushBlock.at(0).m_nGraphicNo);
  ASSERT_TRUE(DeleteEntry(kCommonBlocks, 6));
  EXPECT_FALSE(Edit().m_bClip);
  EXPECT_FALSE(DeleteEntry(kCommonBlocks, 99));
}

TEST_F(PaletteOpsTest, InsertingAppendsFromTheEndOnAndKeepsTheClipboardOnItsEntry) {
  SelectEntry(kStageBlocks, 3);
  ASSERT_TRUE(CopyEntry(kStageBlocks, 4, false));
  InsertEntry(kStageBlocks, kAppendIndex);
  EXPECT_EQ(7u, Stage().size());
  EXPECT_EQ(3, Edit().m_iPltIndex);
  EXPECT_EQ(4, Edit().m_iClipIndex);

  InsertEntry(kStageBlocks, 4);
  EXPECT_EQ(5, Edit().m_iClipIndex);
  EXPECT_EQ("s4", Stage()[5].m_strName);
  InsertEntry(kCommonBlocks, 1);
  EXPECT_EQ(5, Edit().m_iClipIndex);
}

TEST_F(PaletteOpsTest, ANewStageEntryInheritsFromTheCommonEntryOfItsNumber) {
  PrjOption& option = ProjectOption();
  option.m_anDefSrc[kMomentStage][kKindBlock] = kInheritCommon;
  option.m_vDefFlags[kMomentStage][kKindBlock].assign(option.m_vDefFlags[kMomentStage][kKindBlock].size(), 1);
  InsertEntry(kStageBlocks, 3);
  EXPECT_EQ("c3", Stage()[3].m_strName);
  EXPECT_EQ(3, Stage()[3].m_nInheritNo);

  // Grown by the count change, each new entry by its own number.
  ASSERT_TRUE(SetEntryCount(kStageBlocks, 8));
  ASSERT_EQ(9u, Stage().size());
  EXPECT_EQ("c8", Stage()[8].m_strName);
  EXPECT_TRUE(Edit().m_bStageChanged);
}

TEST_F(PaletteOpsTest, CountChangeKeepsTheBlankEntryAndEmptiesTheClipboard) {
  ASSERT_TRUE(CopyEntry(kCommonBlocks, 2, false));
  SelectEntry(kCommonBlocks, 8);
  ASSERT_TRUE(SetEntryCount(kCommonBlocks, 3));
  EXPECT_EQ(4u, Common().size());
  EXPECT_TRUE(Edit().m_bCommonChanged);
  EXPECT_FALSE(Edit().m_bClip);
  RefreshAfterListChange(kCommonBlocks);
  EXPECT_EQ(0, Edit().m_iPltIndex);

  EXPECT_FALSE(SetEntryCount(kCommonBlocks, 0));
  EXPECT_FALSE(SetEntryCount(kCommonBlocks, kMaxPaletteEntries + 1));
  EXPECT_EQ(4u, Common().size());
}

class PaletteMoveTest : public PaletteOpsTest {
 protected:
  void SetUp() override {
    PaletteOpsTest::SetUp();
    Stage() = Named<cEdBlock>("e", 30);
  }
  static cMoveRequest Request(int first, int last, int target, eMoveOp op) {
    return {first, last, target, static_cast<int32_t>(op)};
  }
};

TEST_F(PaletteMoveTest, AMoveEmptiesTheClipboardMarksItsPaletteAndKeepsTheSelectionInside) {
  ASSERT_TRUE(CopyEntry(kStageBlocks, 3, false));
  SelectEntry(kStageBlocks, 28);
  ASSERT_TRUE(MoveEntries(kStageBlocks, Request(10, 25, 0, eMoveOp::Erase)));
  EXPECT_EQ(14u, Stage().size());
  EXPECT_EQ(13, Edit().m_iPltIndex);
  EXPECT_FALSE(Edit().m_bClip);
  EXPECT_TRUE(Edit().m_bStageChanged);
  EXPECT_FALSE(Edit().m_bCommonChanged);

  // A move that changes nothing leaves every mark as it was.
  Edit().m_bStageChanged = 0;
  ASSERT_TRUE(CopyEntry(kStageBlocks, 3, false));
  EXPECT_FALSE(MoveEntries(kStageBlocks, Request(5, 8, 6, eMoveOp::Move)));
  EXPECT_FALSE(MoveEntries(kStageBlocks, Request(0, 3, 10, eMoveOp::Move)));
  EXPECT_TRUE(Edit().m_bClip);
  EXPECT_FALSE(Edit().m_bStageChanged);

  // The selection of the other palette isn't this list's to move.
  SelectEntry(kCommonBlocks, 9);
  ASSERT_TRUE(MoveEntries(kStageBlocks, Request(1, 12, 0, eMoveOp::Erase)));
  EXPECT_EQ(9, Edit().m_iPltIndex);
}

TEST_F(PaletteMoveTest, CellsFollowTheListAndLoseEntriesThatAreGone) {
  cStage& stage = EditStage();
  cEdBlock& follower = stage.m_vecBlockCell[3];
  follower.m_nGraphicNo = 1;
  SetInherit(follower, kInheritStage, 2, std::vector<uint8_t>(kBlockInheritGroups, 1));
  cEdBlock& lost = stage.m_vecBlockCell[4];
  lost.m_nGraphicNo = 1;
  SetInherit(lost, kInheritStage, 20, std::vector<uint8_t>(kBlockInheritGroups, 1));
  ASSERT_EQ("e2", follower.m_strName);

  ASSERT_TRUE(MoveEntries(kStageBlocks, Request(2, 2, 25, eMoveOp::Move)));
  EXPECT_EQ("e3", follower.m_strName);
  ASSERT_TRUE(MoveEntries(kStageBlocks, Request(10, 29, 0, eMoveOp::Erase)));
  RefreshAfterListChange(kStageBlocks);
  EXPECT_EQ(kInheritNone, lost.m_nInheritSrc);
  EXPECT_EQ(kInheritStage, follower.m_nInheritSrc);
}

}  // namespace
}  // namespace velmora
