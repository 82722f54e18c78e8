#include <gtest/gtest.h>

#include <map>

#include "objects/Cmd.h"
#include "objects/CmdTable.h"
#include "objects/Flow.h"
#include "objects/RefSizes.h"

namespace velmora::testing {
namespace {

using Params = std::vector<int32_t>;

// A project with small lists: every database list has 3 rows, and a sword
// type runs 10 + its row.
class cSmallProject : public cRefSizes {
 public:
  int DbListSize(eDbList) const override { return 3; }
  int PaletteListSize(ePalette palette, ePaletteList list) const override {
    return sizes.at({palette, list});
  }
  std::optional<int> SwordTypeTime(int row) const override { return 10 + row; }
  std::map<std::pair<ePalette, ePaletteList>, int> sizes = {
      {{ePalette::Common, ePaletteList::Block}, 4}, {{ePalette::Common, ePaletteList::Chara}, 5},
      {{ePalette::Common, ePaletteList::Item}, 3},  {{ePalette::Stage, ePaletteList::Block}, 2},
      {{ePalette::Stage, ePaletteList::Chara}, 2},  {{ePalette::Stage, ePaletteList::Item}, 2},
  };
};

class CmdCheck : public ::testing::Test {
 protected:
  void SetUp() override { InstallRefSizes(&m_project); }
  void TearDown() override { InstallRefSizes(nullptr); }
  static cEdCmd Checked(int kind, Params params, bool item = false) {
    cEdCmd c;
    c.m_nKind = static_cast<uint8_t>(kind);
    c.m_bItemCmd = item ? 1 : 0;
    c.m_vParam = std::move(params);
    c.CheckCmd();
    return c;
  }
  cSmallProject m_project;
};

TEST_F(CmdCheck, ParametersTakeTheCountOfTheKindsTable) {
  EXPECT_EQ(Checked(kCmdStatusOp, {}).m_vParam, Params(22, 0));
  EXPECT_EQ(Checked(kCmdLoop, {1, 2, 3, 4}).m_vParam, (Params{1, 2}));
  EXPECT_EQ(Checked(kItemCmdFlowChange, {}, true).m_vParam.size(), 2u);
  EXPECT_EQ(Checked(kCmdFlowOp, {}).m_vParam.size(), 4u);
  EXPECT_EQ(Checked(kCmdGameWait - kItemKindOffset, {}, true).m_vParam.size(), 1u);
  EXPECT_TRUE(Checked(99, {5}).m_vParam.empty());
}

TEST_F(CmdCheck, DatabaseReferencesBeyondTheirListsAreRepaired) {
  cEdCmd c;
  c.m_nKind = kCmdWait;
  c.m_nAnime = 3;
  c.m_nSound = 2;
  c.CheckCmd();
  EXPECT_EQ(c.m_nAnime, 0);
  EXPECT_EQ(c.m_nSound, 2);

  EXPECT_EQ(Checked(kCmdGraphic, {4, 3, 0}).m_vParam[1], 1);
  EXPECT_EQ(Checked(kCmdGraphic, {1, 30, 0}).m_vParam[1], 30);
  EXPECT_EQ(Checked(kCmdAnimeSet, {3}).m_vParam[0], 0);
  EXPECT_EQ(Checked(kCmdAnime, {3, 0}).m_vParam[0], 1);
  for (int kind : {kCmdEffect, kCmdCharaEffect, kCmdScrEffect, kCmdPicture, kCmdSound, kCmdBgm}) {
    EXPECT_EQ(Checked(kind, {5}).m_vParam[0], 1) << kind;
    EXPECT_EQ(Checked(kind, {2}).m_vParam[0], 2) << kind;
  }
  // An item's kinds are checked in the numbering of CmdTable.
  EXPECT_EQ(Checked(kCmdBgm - kItemKindOffset, {7, 0}, true).m_vParam[0], 1);
}

TEST_F(CmdCheck, SwordTakesTheTimeOfItsType) {
  cEdCmd sword;
  sword.m_nKind = kCmdSword;
  sword.m_pShot.Make().m_nMoveType = 7;
  sword.CheckCmd();
  EXPECT_EQ(sword.m_pShot->m_nMoveType, 0);
  EXPECT_EQ(sword.m_nTime, 10);
  sword.m_pShot->m_nMoveType = 2;
  sword.CheckCmd();
  EXPECT_EQ(sword.m_nTime, 12);
}

TEST_F(CmdCheck, SubFlowsAreCheckedToo) {
  cEdCmd outer;
  outer.m_nKind = kCmdWait;
  outer.m_vSubFlow.resize(1);
  outer.m_vSubFlow[0].m_vCmd.resize(1);
  outer.m_vSubFlow[0].m_vCmd[0].m_nKind = kCmdStatusOp2;
  outer.CheckCmd();
  EXPECT_EQ(outer.m_vSubFlow[0].m_vCmd[0].m_vParam.size(), 5u);
}

TEST_F(CmdCheck, WithoutInstalledSizesNothingIsOutOfRange) {
  InstallRefSizes(nullptr);
  EXPECT_EQ(Checked(kCmdPicture, Params(16, 500)).m_vParam[0], 500);
}

TEST_F(CmdCheck, PaletteReferencesOfShotsAndSummons) {
  cEdCmd shot;
  shot.m_nKind = kCmdShot;
  cEdShot& s = shot.m_pShot.Make();
  s.m_nGetItemSrc = 2;
  s.m_nGetItemNo = 2;
  shot.CheckCmdRefs();
  EXPECT_EQ(s.m_nGetItemSrc, 0);
  EXPECT_EQ(s.m_nGetItemNo, 0);
  s.m_nGetItemSrc = 1;
  s.m_nGetItemNo = 2;
  shot.CheckCmdRefs();
  EXPECT_EQ(s.m_nGetItemSrc, 1);

  cEdCmd summon;
  summon.m_nKind = kCmdSummonChara;
  cEdShot& t = summon.m_pShot.Make();
  t.m_nSummonSrc = 1;
  t.m_nSummonNo = 2;
  summon.CheckCmdRefs();
  EXPECT_EQ(t.m_nSummonNo, 1);
  t.m_nSummonSrc = 0;
  t.m_nSummonNo = 4;
  summon.CheckCmdRefs();
  EXPECT_EQ(t.m_nSummonNo, 4);
  summon.m_nKind = kCmdSummonBlock;
  summon.CheckCmdRefs();
  EXPECT_EQ(t.m_nSummonNo, 1);
}

TEST_F(CmdCheck, TakenItemsInBothNumberings) {
  cEdCmd take;
  take.m_nKind = kCmdGetItem;
  take.m_vParam = {1, 2};
  take.CheckCmdRefs();
  EXPECT_EQ(take.m_vParam[1], 1);
  take.m_vParam = {0, 2};
  take.CheckCmdRefs();
  EXPECT_EQ(take.m_vParam[1], 2);

  take.m_bItemCmd = 1;
  take.m_nKind = kCmdGetItem - kItemKindOffset;
  take.m_vParam = {0, 3};
  take.CheckCmdRefs();
  EXPECT_EQ(take.m_vParam[1], 1);

  cEdCmd outer;
  outer.m_nKind = kCmdWait;
  outer.m_vSubFlow.resize(1);
  outer.m_vSubFlow[0].m_vCmd.push_back(take);
  outer.m_vSubFlow[0].m_vCmd[0].m_vParam = {1, 9};
  outer.CheckCmdRefs();
  EXPECT_EQ(outer.m_vSubFlow[0].m_vCmd[0].m_vParam[1], 1);
}

TEST(CmdNew, NewCommandsTakeTheirTablesTimeParallelAndRecord) {
  cEdCmd c;
  c.SetUpNew(kCmdLine, false);
  EXPECT_EQ(c.m_nTime, 1);
  EXPECT_EQ(c.m_bParallel, 0);
  ASSERT_TRUE(c.m_pMove);
  EXPECT_EQ(c.m_pMove->m_nMaxSpeed, 200);
  EXPECT_EQ(c.m_bNoSoundOffscreen, 1);

  c.SetUpNew(kCmdFlowOp, false);
  EXPECT_FALSE(c.m_pMove);
  ASSERT_TRUE(c.m_pCondList);
  EXPECT_EQ(c.m_nTime, 0);
  EXPECT_EQ(c.m_bParallel, 1);

  c.SetUpNew(kCmdStageClear - kItemKindOffset, true);
  EXPECT_EQ(c.m_bParallel, 0);
  EXPECT_EQ(c.m_vParam.size(), 11u);
  EXPECT_EQ(c.m_vParam[10], 1);

  c.SetUpNew(kCmdStatusOp, false);
  EXPECT_EQ(c.m_vParam[20], 2);
  EXPECT_EQ(c.m_vParam[21], 2);
}

}  // namespace
}  // namespace velmora::testing
