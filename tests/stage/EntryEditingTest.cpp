#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "NamedEntries.h"
#include "StageEditFixture.h"
#include "core/PrjOption.h"
#include "objects/Palette.h"
#include "objects/PaletteTables.h"
#include "stage/EntryEditing.h"

namespace velmora::testing {
namespace {


constexpr cEditPlace kCommonChara2{kEditCommonEntry, kKindChara, 2};
constexpr cEditPlace kStageChara1{kEditStageEntry, kKindChara, 1};

// Named entries in both palettes, a stage of 20 x 15 with history, and
// the project's default options.
class EntryEditing : public cStageEditTest {
 protected:
  void SetUp() override {
    cStageEditTest::SetUp();
    ProjectOption().SetUp();
    CommonPalette().m_vecCharaPlt = Named<cEdChara>("c", 4);
    CommonPalette().m_vecBlockPlt = Named<cEdBlock>("cb", 3);
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
    EditStage().m_vecCharaPlt = Named<cEdChara>("s", 3);
  }
  void TearDown() override {
    InstallPaletteLists(ePalette::Common, {});
    cStageEditTest::TearDown();
  }

  // A stage entry and a cell that take their names from common entry 2,
  // and a cell that takes its name from stage entry 1.
  void InheritNames() {
    cEdChara& stageEntry = EditStage().m_vecCharaPlt[1];
    stageEntry.m_nInheritSrc = kInheritCommon;
    stageEntry.m_nInheritNo = 2;
    stageEntry.m_bbInherit.assign(kCharaInheritGroups, 0);
    stageEntry.m_bbInherit[0] = 1;
    Chara(1, 1) = stageEntry;
    Chara(2, 1) = stageEntry;
    Chara(2, 1).m_nInheritSrc = kInheritStage;
    Chara(2, 1).m_nInheritNo = 1;
  }
};

TEST_F(EntryEditing, TheEditStatePointsAtTheEntryOfEachTargetAndNeverAtTheBlankEntry) {
  ASSERT_TRUE(PointEditAt<cEdChara>(kCommonChara2));
  EXPECT_EQ(&CommonPalette().m_vecCharaPlt[2], EditedEntry<cEdChara>());
  EXPECT_EQ(kEditCommonEntry, StageEdit().m_iEditTarget);

  ASSERT_TRUE(PointEditAt<cEdChara>(kStageChara1));
  EXPECT_EQ(&EditStage().m_vecCharaPlt[1], EditedEntry<cEdChara>());

  ASSERT_TRUE(PointEditAt<cEdChara>({kEditCell, kKindChara, -1}, &Chara(3, 3)));
  EXPECT_EQ(&Chara(3, 3), EditedEntry<cEdChara>());
  EXPECT_EQ(kEditCell, StageEdit().m_iEditTarget);

  ASSERT_TRUE(PointEditAt<cEdItem>({kEditDefaultEntry, kKindItem, -1}));
  EXPECT_EQ(&ProjectOption().m_DefItem, EditedEntry<cEdItem>());

  // Entry 0, an entry beyond the list and a cell without its record leave
  // the state as it was.
  for (const cEditPlace& nowhere : {cEditPlace{kEditCommonEntry, kKindChara, 0}, cEditPlace{kEditStageEntry, kKindChara, 3},
                                    cEditPlace{kEditCell, kKindChara, -1}}) {
    EXPECT_FALSE(PointEditAt<cEdChara>(nowhere)) << nowhere.target << "," << nowhere.index;
  }
  EXPECT_EQ(&Chara(3, 3), EditedEntry<cEdChara>());
}

TEST_F(EntryEditing, OnlyAPaletteEntryHasNeighboursAndANumber) {
  EXPECT_EQ(1, NeighbourIndex(kCommonChara2, -1));
  EXPECT_EQ(3, NeighbourIndex(kCommonChara2, 1));
  EXPECT_EQ(-1, NeighbourIndex({kEditCommonEntry, kKindChara, 3}, 1)) << "the last entry";
  EXPECT_EQ(-1, NeighbourIndex(kStageChara1, -1)) << "the blank entry is no neighbour";
  EXPECT_EQ("No.2", EntryNumberText(kCommonChara2));
  for (const int target : {kEditCell, kEditDefaultEntry}) {
    EXPECT_EQ(-1, NeighbourIndex({target, kKindChara, -1}, 1));
    EXPECT_EQ("", EntryNumberText({target, kKindChara, -1}));
  }
}

TEST_F(EntryEditing, ADamagedEntryIsShownWithItsFlagsAndListsInTheirEditorsShape) {
  cEdChara chara;
  chara.m_bbInherit.assign(5, 1);
  chara.m_vCond.resize(150);
  chara.m_vFlow.resize(1200);
  chara.m_vFlow[3].m_vCmd.resize(1500);
  chara.m_vFlow[3].m_vKeyCond.resize(120);
  cEntryWork<cEdChara> work;
  LoadEntryWork(work, chara, kCommonChara2);
  EXPECT_EQ(static_cast<size_t>(kCharaInheritGroups), work.entry.m_bbInherit.size());
  EXPECT_EQ(1, work.inherit[4]);
  EXPECT_EQ(0, work.inherit[5]) << "a missing flag inherits nothing";
  EXPECT_EQ(99u, work.entry.m_vCond.size());
  EXPECT_EQ(999u, work.entry.m_vFlow.size());
  EXPECT_EQ(999u, work.entry.m_vFlow[3].m_vCmd.size());
  EXPECT_EQ(99u, work.entry.m_vFlow[3].m_vKeyCond.size());

  cEdItem item;
  item.m_bbInherit.assign(40, 0);
  item.m_vCmd.resize(1000);
  EXPECT_TRUE(FitForEditing(item));
  EXPECT_EQ(static_cast<size_t>(kItemInheritGroups), item.m_bbInherit.size());
  EXPECT_EQ(999u, item.m_vCmd.size());
  EXPECT_FALSE(FitForEditing(item)) << "nothing more to cut";
}

TEST_F(EntryEditing, OnlyAnEntryWhoseListsAllFitIsOpened) {
  cEdChara chara;
  chara.m_bbInherit.assign(3, 1);  // a flag vector of another length loses nothing when fitted
  chara.m_vFlow.resize(999);
  chara.m_vFlow[998].m_vCmd.resize(999);
  EXPECT_TRUE(FitsItsEditor(chara));
  chara.m_vFlow[998].m_vCmd.resize(1000);
  EXPECT_FALSE(FitsItsEditor(chara));
  EXPECT_EQ(1000u, chara.m_vFlow[998].m_vCmd.size()) << "the entry itself stays as it is";
  chara.m_vFlow[998].m_vCmd.clear();
  chara.m_vFlow[0].m_vCond.resize(100);
  EXPECT_FALSE(FitsItsEditor(chara));

  cEdBlock block;
  block.m_vCond.resize(100);
  EXPECT_FALSE(FitsItsEditor(block));
  cEdItem item;
  item.m_vCmd.resize(1000);
  EXPECT_FALSE(FitsItsEditor(item));
}

TEST_F(EntryEditing, BoxesTakeTheirGroupsFromTheSourceAndGoWithoutOne) {
  cEntryWork<cEdChara> work;
  LoadEntryWork(work, EditStage().m_vecCharaPlt[1], kStageChara1);
  work.entry.m_nInheritSrc = kInheritCommon;
  work.entry.m_nInheritNo = 2;
  work.inherit[0] = 1;
  InheritNow(work);
  EXPECT_EQ("c2", work.entry.m_strName);
  EXPECT_EQ(1, work.entry.m_bbInherit[0]);

  work.entry.m_nInheritSrc = kInheritNone;
  InheritNow(work);
  EXPECT_EQ(0, work.inherit[0]);
  EXPECT_EQ(0, work.entry.m_bbInherit[0]);
  EXPECT_EQ("c2", work.entry.m_strName) << "the fields keep what they hold";
}

TEST_F(EntryEditing, AFinishedEntryHasPassedTheChecksOfLoading) {
  cEntryWork<cEdChara> work;
  LoadEntryWork(work, CommonPalette().m_vecCharaPlt[2], kCommonChara2);
  work.entry.m_nControl = 0;  // a player
  work.entry.m_nBlock = 1;
  work.entry.m_vFlow.resize(2);
  work.entry.m_vFlow[1].m_nTrigger = 5;
  work.inherit[7] = 1;
  const cEdChara finished = FinishedEntry(work);
  EXPECT_EQ(0, finished.m_nBlock) << "a player is never a block";
  ASSERT_EQ(1u, finished.m_vFlow.size()) << "an empty flow goes";
  EXPECT_EQ(5, finished.m_vFlow[0].m_nTrigger);
  EXPECT_EQ(1, finished.m_bbInherit[7]);
  EXPECT_EQ(1, work.entry.m_nBlock) << "the copy itself stays as the author left it";
}

TEST_F(EntryEditing, ACommonEntryStoredIsFollowedByTheStageEntriesAndCellsThatInheritFromIt) {
  InheritNames();
  ASSERT_TRUE(PointEditAt<cEdChara>(kCommonChara2));
  cEdChara edited = CommonPalette().m_vecCharaPlt[2];
  edited.m_strName = "renamed";
  ASSERT_TRUE(StoreEditedEntry(kCommonChara2, edited));
  EXPECT_EQ("renamed", CommonPalette().m_vecCharaPlt[2].m_strName);
  EXPECT_EQ("renamed", EditStage().m_vecCharaPlt[1].m_strName);
  EXPECT_EQ("renamed", Chara(1, 1).m_strName);
  EXPECT_EQ("renamed", Chara(2, 1).m_strName) << "through the stage entry";
  EXPECT_TRUE(StageEdit().m_bCommonChanged);
  EXPECT_TRUE(StageEdit().m_bStageChanged);
  EXPECT_EQ(0, StageEdit().m_iUndoNum);
}

TEST_F(EntryEditing, AStageEntryStoredIsFollowedByItsCellsOnly) {
  InheritNames();
  ASSERT_TRUE(PointEditAt<cEdChara>(kStageChara1));
  cEdChara edited = EditStage().m_vecCharaPlt[1];
  edited.m_bbInherit[0] = 0;
  edited.m_strName = "own";
  ASSERT_TRUE(StoreEditedEntry(kStageChara1, edited));
  EXPECT_EQ("own", Chara(2, 1).m_strName);
  EXPECT_EQ("s1", Chara(1, 1).m_strName) << "it inherits from the common entry";
  EXPECT_FALSE(StageEdit().m_bCommonChanged);
}

TEST_F(EntryEditing, ACellStoredIsOneUndoStepAndADefaultEntryIsOnlyCopied) {
  Chara(4, 4) = CharaOf(7);
  ASSERT_TRUE(PointEditAt<cEdChara>({kEditCell, kKindChara, -1}, &Chara(4, 4)));
  cEdChara edited = Chara(4, 4);
  edited.m_nHp = 77;
  ASSERT_TRUE(StoreEditedEntry({kEditCell, kKindChara, -1}, edited));
  EXPECT_EQ(77, Chara(4, 4).m_nHp);
  EXPECT_EQ(1, StageEdit().m_iUndoNum);
  EXPECT_TRUE(StageEdit().m_bStageChanged);
  Undo();
  EXPECT_EQ(10, Chara(4, 4).m_nHp);

  StageEdit().m_bStageChanged = 0;
  const cEditPlace defaults{kEditDefaultEntry, kKindBlock, -1};
  ASSERT_TRUE(PointEditAt<cEdBlock>(defaults));
  cEdBlock block;
  block.m_strName = "new default";
  ASSERT_TRUE(StoreEditedEntry(defaults, block));
  EXPECT_EQ("new default", ProjectOption().m_DefBlock.m_strName);
  EXPECT_FALSE(StageEdit().m_bStageChanged);
}

TEST_F(EntryEditing, ACellChoosesEitherPaletteAStageEntryTheCommonOneAndTheRestNone) {
  EXPECT_EQ(3, OfferedInheritSources(kEditCell));
  EXPECT_EQ(2, OfferedInheritSources(kEditStageEntry));
  EXPECT_EQ(1, OfferedInheritSources(kEditCommonEntry));
  EXPECT_EQ(1, OfferedInheritSources(kEditDefaultEntry));
}

}  // namespace
}  // namespace velmora::testing
