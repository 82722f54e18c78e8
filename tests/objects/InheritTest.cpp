#include <gtest/gtest.h>

#include "objects/Inherit.h"
#include "objects/PaletteTables.h"
#include "objects/Palette.h"
#include "core/Log.h"
#include "platform/TextCodec.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// A common and a stage palette installed for the test's life, and sizes
// that read them.
class InheritTest : public ::testing::Test {
 protected:
  void SetUp() override {
    common.resize(3);
    stage.resize(3);
    common[1].m_strName = "common one";
    common[1].m_nHp = 50;
    common[2].m_strName = "common two";
    common[2].m_vFlow.clear();
    stage[1].m_strName = "stage one";
    InstallPaletteLists(ePalette::Common, {&commonBlocks, &common, &commonItems});
    InstallPaletteLists(ePalette::Stage, {&stageBlocks, &stage, &stageItems});
    InstallRefSizes(&sizes);
  }
  void TearDown() override {
    InstallPaletteLists(ePalette::Common, {});
    InstallPaletteLists(ePalette::Stage, {});
    InstallRefSizes(nullptr);
  }
  static std::vector<uint8_t> Flags(std::initializer_list<int> set) {
    std::vector<uint8_t> flags(kCharaInheritGroups, 0);
    for (int group : set) flags[static_cast<size_t>(group)] = 1;
    return flags;
  }

  std::vector<cEdBlock> commonBlocks{2}, stageBlocks{2};
  std::vector<cEdItem> commonItems{2}, stageItems{2};
  std::vector<cEdChara> common, stage;
  cPaletteRefSizes sizes;
};

TEST_F(InheritTest, FlaggedGroupsAreCopiedFromTheSource) {
  cEdChara chara;
  SetInherit(chara, kInheritCommon, 1, Flags({0, 23}));
  EXPECT_EQ("common one", chara.m_strName);
  EXPECT_EQ(50, chara.m_nHp);
  EXPECT_EQ(1, chara.m_nInheritSrc);
  EXPECT_EQ(1, chara.m_nInheritNo);
  chara.m_bbInherit[23] = 0;
  common[1].m_nHp = 60;
  common[1].m_strName = "renamed";
  chara.ApplyInherit();
  EXPECT_EQ("renamed", chara.m_strName);
  EXPECT_EQ(50, chara.m_nHp);
}

TEST_F(InheritTest, SourceGoneTurnsInheritanceOff) {
  cEdChara chara;
  chara.m_nInheritSrc = kInheritStage;
  chara.m_nInheritNo = 7;
  chara.m_bbInherit = Flags({0});
  chara.ApplyInherit();
  EXPECT_EQ(0, chara.m_nInheritSrc);
  EXPECT_EQ(7, chara.m_nInheritNo);
  chara.CheckRefs();
  EXPECT_EQ(7, chara.m_nInheritNo);  // source 0: the number is left

  chara.m_nInheritSrc = kInheritStage;
  chara.CheckRefs();
  EXPECT_EQ(0, chara.m_nInheritSrc);
  EXPECT_EQ(0, chara.m_nInheritNo);

  SetInherit(chara, kInheritCommon, 3, Flags({0}));
  EXPECT_EQ(0, chara.m_nInheritSrc);
  EXPECT_EQ(0, chara.m_nInheritNo);
  EXPECT_EQ(Flags({}), chara.m_bbInherit);

  // A number below 1 that isn't 0 names no entry either.
  chara.m_strName = "own";
  chara.m_nInheritSrc = kInheritCommon;
  chara.m_nInheritNo = -3;
  chara.m_bbInherit = Flags({0});
  chara.ApplyInherit();
  EXPECT_EQ(0, chara.m_nInheritSrc);
  EXPECT_EQ("own", chara.m_strName);
  chara.m_nInheritSrc = kInheritCommon;
  chara.CheckRefs();
  EXPECT_EQ(0, chara.m_nInheritSrc);
  EXPECT_EQ(0, chara.m_nInheritNo);
}

TEST_F(InheritTest, NumberZeroOrSourceZeroKeepsFlagsAndCopiesNothing) {
  cEdChara chara;
  chara.m_strName = "own";
  SetInherit(chara, kInheritStage, 0, Flags({0}));
  EXPECT_EQ("own", chara.m_strName);
  EXPECT_EQ(1, chara.m_bbInherit[0]);
  SetInherit(chara, kInheritNone, 1, Flags({0}));
  EXPECT_EQ("own", chara.m_strName);
  EXPECT_EQ(1, chara.m_nInheritNo);
}

TEST_F(InheritTest, FlowsInheritedFromAnEntryWithoutFlowsLeaveOneNewFlow) {
  cEdChara chara;
  chara.m_vFlow.resize(3);
  SetInherit(chara, kInheritCommon, 2, Flags({36}));
  EXPECT_EQ(1u, chara.m_vFlow.size());
}

TEST_F(InheritTest, WrongLengthOfDefaultsIsReportedAndTheCopyGoesOn) {
  testing::cTempProject project;
  ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
  cEdChara chara;
  SetInherit(chara, kInheritCommon, 1, std::vector<uint8_t>{1});
  EXPECT_EQ("lpData->m_bbInherit.size() != DefInheritCheck.size()\nデフォルトの継承設定がおかしい？\n",
            ToUtf8(testing::ReadText("Report_Editor.txt")));
  EXPECT_EQ("common one", chara.m_strName);
}

TEST_F(InheritTest, RefreshFromCommonReachesCellsThroughTheStagePalette) {
  stage[1].m_nInheritSrc = kInheritCommon;
  stage[1].m_nInheritNo = 1;
  stage[1].m_bbInherit = Flags({23});
  std::vector<cEdChara> cells(3);
  cells[0].m_nGraphicNo = 1;
  cells[0].m_nInheritSrc = kInheritStage;
  cells[0].m_nInheritNo = 1;
  cells[0].m_bbInherit = Flags({23});
  cells[1] = cells[0];
  cells[1].m_nGraphicNo = 0;  // empty cells take no part
  cells[2].m_nGraphicNo = 1;
  cells[2].m_nInheritSrc = kInheritCommon;
  cells[2].m_nInheritNo = 1;
  cells[2].m_bbInherit = Flags({23});

  common[1].m_nHp = 99;
  RefreshFromCommon({&stageBlocks, &stage, &stageItems}, {nullptr, &cells, nullptr});
  EXPECT_EQ(99, stage[1].m_nHp);
  EXPECT_EQ(99, cells[0].m_nHp);
  EXPECT_EQ(10, cells[1].m_nHp);
  EXPECT_EQ(99, cells[2].m_nHp);

  stage[1].m_nHp = 5;
  RefreshCharaFromStage(cells);
  EXPECT_EQ(5, cells[0].m_nHp);
  EXPECT_EQ(99, cells[2].m_nHp);
}

}  // namespace
}  // namespace velmora
