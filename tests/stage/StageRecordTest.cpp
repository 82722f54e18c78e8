#include <gtest/gtest.h>

#include <cstring>

#include "inspect/FileKinds.h"
#include "objects/OldFile.h"
#include "objects/RefSizes.h"
#include "stage/Stage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cTempProject;
using testing::cWriteVersion;
using testing::ReadBytes;

cStage NewStage(int width = 20, int height = 15) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(width, height, 0, 0);
  return stage;
}

template <class T>
T& Cell(cStage& stage, std::vector<T>& layer, int x, int y) {
  return layer[static_cast<size_t>(stage.CellIndex(x, y))];
}

void PutBlock(cStage& stage, int x, int y, int16_t graphic) { Cell(stage, stage.m_vecBlockCell, x, y).m_nGraphicNo = graphic; }

void PutChara(cStage& stage, int x, int y, uint8_t control, int16_t graphic = 1) {
  cEdChara& chara = Cell(stage, stage.m_vecCharaCell, x, y);
  chara.m_nGraphicNo = graphic;
  chara.m_nControl = control;
}

void PutItem(cStage& stage, int x, int y) { Cell(stage, stage.m_vecItemCell, x, y).m_nGraphicNo = 1; }

cStage SaveAndLoad(cStage& stage, uint32_t version = kCurrentVersion) {
  {
    cWriteVersion as(version);
    EXPECT_EQ(1, stage.SaveFile("s.stg4_950"));
  }
  cStage loaded;
  EXPECT_EQ(1, loaded.LoadFile("s.stg4_950"));
  return loaded;
}

TEST(StageSizeTest, PitchIsTheSmallestPowerOfTwoNotBelowTheWidth) {
  const std::pair<int, int> cases[] = {{1, 0}, {20, 5}, {32, 5}, {33, 6}, {512, 9}};
  for (auto [width, shift] : cases) EXPECT_EQ(shift, CalcPitchShift(width)) << width;

  cStage stage = NewStage();
  EXPECT_EQ(32, stage.m_nPitch);
  EXPECT_EQ(480u, stage.m_vecBlockCell.size());
  EXPECT_EQ(stage.CellIndex(3, 2), 2 * 32 + 3);
  EXPECT_EQ(640, stage.m_iDotWidth);
}

TEST(StageSizeTest, WideningPastAPowerOfTwoKeepsEveryPlace) {
  cTempProject project;
  cStage stage = NewStage(32, 15);
  PutBlock(stage, 31, 2, 7);
  PutBlock(stage, 0, 14, 8);
  PutChara(stage, 10, 10, 0);
  ASSERT_EQ(1, stage.SetSize(33, 15, 0, 0));
  EXPECT_EQ(64, stage.m_nPitch);
  EXPECT_EQ(7, Cell(stage, stage.m_vecBlockCell, 31, 2).m_nGraphicNo);
  EXPECT_EQ(8, Cell(stage, stage.m_vecBlockCell, 0, 14).m_nGraphicNo);
  EXPECT_EQ(10, stage.FindPlayer().x);
  EXPECT_EQ(10, stage.FindPlayer().y);
}

TEST(StageSizeTest, ReducingTowardsTheFarSideKeepsItAndMovesAPlayerOutside) {
  cStage kept = NewStage(40, 30);
  PutBlock(kept, 39, 29, 5);
  PutChara(kept, 25, 20, 0);
  ASSERT_EQ(1, kept.SetSize(20, 15, 1, 1));
  EXPECT_EQ(5, Cell(kept, kept.m_vecBlockCell, 19, 14).m_nGraphicNo);
  EXPECT_EQ(5, kept.FindPlayer().x);
  EXPECT_EQ(5, kept.FindPlayer().y);

  // The test looks at the old place against the new size, not at what is
  // kept: a player inside the new size is not saved and falls off.
  cStage lost = NewStage(40, 30);
  PutChara(lost, 5, 5, 0);
  ASSERT_EQ(1, lost.SetSize(20, 15, 1, 1));
  EXPECT_FALSE(lost.HasPlayer());

  cStage rescued = NewStage(40, 30);
  PutChara(rescued, 30, 2, 0);
  ASSERT_EQ(1, rescued.SetSize(20, 15, 0, 0));
  EXPECT_EQ(0, rescued.FindPlayer().x);
  EXPECT_EQ(0, rescued.FindPlayer().y);
}

TEST(StageSizeTest, GrowingDownwardsWithTheBottomKeptAndRefusedSizes) {
  cStage stage = NewStage();
  stage.m_iScrollMaxY = 14;
  PutBlock(stage, 0, 0, 3);
  ASSERT_EQ(1, stage.SetSize(20, 20, 0, 1));
  EXPECT_EQ(3, Cell(stage, stage.m_vecBlockCell, 0, 5).m_nGraphicNo);
  EXPECT_EQ(0, Cell(stage, stage.m_vecBlockCell, 0, 0).m_nGraphicNo);

  stage.m_iScrollMinX = 400;
  ASSERT_EQ(1, stage.SetSize(30, 20, 0, 0));
  EXPECT_EQ(10, stage.m_iScrollMinX);

  EXPECT_EQ(0, stage.SetSize(0, 20, 0, 0));
  EXPECT_EQ(0, stage.SetSize(513, 20, 0, 0));
  EXPECT_EQ(30, stage.m_nWidth);
  EXPECT_EQ(3, Cell(stage, stage.m_vecBlockCell, 0, 5).m_nGraphicNo);
}

TEST(StageTest, HitLevelDerivesTheStepsAndSpeedLimit) {
  cStage stage = NewStage();
  stage.ApplyHitLevel(5);
  EXPECT_EQ(5, stage.m_iHitStep);
  EXPECT_DOUBLE_EQ(30.0, stage.m_dSpeedLimit);
  EXPECT_EQ(40, stage.m_iHitStep8);
  stage.ApplyHitLevel(13);
  EXPECT_EQ(3, stage.m_iHitStep);
  EXPECT_DOUBLE_EQ(60.0, stage.m_dSpeedLimit);
  EXPECT_DOUBLE_EQ(20.0, stage.m_dSpeedStep);
  EXPECT_DOUBLE_EQ(0.4 / 9, stage.m_dGravityStep);
}

TEST(StageTest, NewStageDefaultsAndNormalizedPalettes) {
  cStage stage = NewStage();
  stage.m_iWheelDir = 1;
  stage.InitDefault();
  EXPECT_EQ(1, stage.m_iWheelDir);
  EXPECT_EQ(1u, stage.m_vecBack.size());
  EXPECT_EQ(1, stage.m_vecBack[0].m_bUseColor);
  EXPECT_EQ(std::vector<int32_t>(5, 1), stage.m_vecRankItem);
  EXPECT_EQ(1000u, stage.m_vecStageVar.size());
  EXPECT_EQ(10, stage.m_aAutoVanish[kVanishEnemyShot].m_iBottom);
  EXPECT_EQ(1, stage.m_aAutoVanish[kVanishPlayerShot].m_bTop);
  EXPECT_EQ(0, stage.m_aAutoVanish[kVanishItem].m_bLeft);
  EXPECT_EQ(1u, stage.m_vecCharaPlt.size());

  class cThreeBgm : public cRefSizes {
    int DbListSize(eDbList list) const override { return list == eDbList::Bgm ? 3 : cRefSizes::DbListSize(list); }
  } sizes;
  InstallRefSizes(&sizes);
  stage.m_iBgm = 3;
  stage.Normalize();
  InstallRefSizes(nullptr);
  EXPECT_EQ(0, stage.m_iBgm);
  EXPECT_EQ(2u, stage.m_vecBlockPlt.size());
  EXPECT_EQ(2u, stage.m_vecItemPlt.size());
}

TEST(StageFileTest, RoundTripIsByteForByteAndEndsInTheTrailer) {
  cTempProject project;
  cStage stage = NewStage(40, 20);
  stage.m_strName = "stage one";
  stage.m_iHitLevel = 12;
  PutBlock(stage, 39, 19, 4);
  PutChara(stage, 1, 1, 0);
  PutChara(stage, 7, 3, 2);
  PutItem(stage, 7, 3);
  stage.m_vecBack[0].m_strPath = "bmp\\back.bmp";
  ASSERT_EQ(1, stage.SaveFile("a.stg4_950"));
  const std::vector<uint8_t> first = ReadBytes("a.stg4_950");
  ASSERT_GE(first.size(), 8u);
  int32_t trailer = 0;
  std::memcpy(&trailer, first.data() + first.size() - 4, 4);
  EXPECT_EQ(StageTrailer, trailer);

  cStage loaded;
  ASSERT_EQ(1, loaded.LoadFile("a.stg4_950"));
  EXPECT_EQ(4, Cell(loaded, loaded.m_vecBlockCell, 39, 19).m_nGraphicNo);
  EXPECT_EQ(39, Cell(loaded, loaded.m_vecBlockCell, 39, 19).m_nPosX);
  ASSERT_EQ(1, loaded.SaveFile("b.stg4_950"));
  EXPECT_EQ(first, ReadBytes("b.stg4_950"));
}

TEST(StageFileTest, HeldItemIsTheCountOfItemsBeforeIt) {
  cTempProject project;
  cStage stage = NewStage();
  PutItem(stage, 0, 0);
  PutItem(stage, 5, 0);
  PutItem(stage, 2, 1);
  PutItem(stage, 9, 9);
  PutChara(stage, 2, 1, 1);  // holds the third item
  PutChara(stage, 5, 0, 2);  // an item under it, but not a holder kind
  PutChara(stage, 7, 0, 1);  // nothing to hold
  PutChara(stage, 9, 9, 1);
  Cell(stage, stage.m_vecCharaCell, 9, 9).m_bHoldItem = 0;
  cStage loaded = SaveAndLoad(stage);
  EXPECT_EQ(2, Cell(loaded, loaded.m_vecCharaCell, 2, 1).m_nHeldItem);
  EXPECT_EQ(-1, Cell(loaded, loaded.m_vecCharaCell, 5, 0).m_nHeldItem);
  EXPECT_EQ(-1, Cell(loaded, loaded.m_vecCharaCell, 7, 0).m_nHeldItem);
  EXPECT_EQ(-1, Cell(loaded, loaded.m_vecCharaCell, 9, 9).m_nHeldItem);
}

// A project whose lists shrank since the stage was saved: 3 rows in every
// database list and in each common palette list.
class cShrunkProject : public cRefSizes {
 public:
  int DbListSize(eDbList) const override { return 3; }
  int PaletteListSize(ePalette palette, ePaletteList list) const override {
    return palette == ePalette::Common ? 3 : cRefSizes::PaletteListSize(palette, list);
  }
};

TEST(StageFileTest, LoadChecksPlacedAndEmptyCellsAgainstTheProjectAsItIsNow) {
  cTempProject project;
  cStage stage = NewStage();
  cEdBlock& giver = Cell(stage, stage.m_vecBlockCell, 3, 2);
  giver.m_nGraphicNo = 1;
  giver.m_nGetItemSrc = 1;
  giver.m_nGetItemNo = 5;
  PutItem(stage, 6, 1);
  Cell(stage, stage.m_vecItemCell, 6, 1).m_nGetSound = 7;
  ASSERT_EQ(1, stage.SaveFile("s.stg4_950"));

  cShrunkProject shrunk;
  InstallRefSizes(&shrunk);
  cStage loaded;
  EXPECT_EQ(1, loaded.LoadFile("s.stg4_950"));
  InstallRefSizes(nullptr);
  // Both checks reach the placed cells: their own rows and the palettes.
  EXPECT_EQ(0, Cell(loaded, loaded.m_vecItemCell, 6, 1).m_nGetSound);
  EXPECT_EQ(0, Cell(loaded, loaded.m_vecBlockCell, 3, 2).m_nGetItemSrc);
  EXPECT_EQ(0, Cell(loaded, loaded.m_vecBlockCell, 3, 2).m_nGetItemNo);
  // A cell that no placement named is checked as well: an empty block
  // loses its type.
  EXPECT_EQ(1, cEdBlock().m_nBlockType);
  EXPECT_EQ(0, Cell(loaded, loaded.m_vecBlockCell, 0, 0).m_nBlockType);
}

TEST(StageFileTest, OldStageGetsItsFixups) {
  cTempProject project;
  cStage stage = NewStage(33, 15);
  stage.m_nPitch = 999;  // a stored pitch is never trusted
  stage.m_iHitPlWalkCharaW = 20;
  stage.m_iHitEnWalkCharaH = 28;
  stage.m_iPosPlWalkChara = 1;
  stage.m_bShowReady = 1;
  stage.m_bBgmLoop = 0;
  stage.m_iColorHitBlock = 2;
  stage.m_vecStageVar.resize(3);
  stage.m_vecRankItem = {1, 1, 1, 1};
  stage.m_vecBack[0].m_bAutoX = 1;
  stage.m_vecBack[0].m_dSpeedX = 2.5;
  PutBlock(stage, 32, 14, 6);
  cStage loaded = SaveAndLoad(stage, 150);

  EXPECT_EQ(64, loaded.m_nPitch);
  EXPECT_EQ(6, Cell(loaded, loaded.m_vecBlockCell, 32, 14).m_nGraphicNo);
  EXPECT_EQ(20, loaded.m_iHitPlFlyCharaW);
  EXPECT_EQ(28, loaded.m_iHitEnFlyCharaH);
  EXPECT_EQ(0, loaded.m_iPosPlWalkChara);
  EXPECT_EQ(1, loaded.m_bBgmLoop);
  EXPECT_EQ(0, loaded.m_bShowReady);
  EXPECT_EQ(5, loaded.m_iColorHitBlock);
  EXPECT_EQ(30, loaded.m_iHitEnFlyBlockH);
  EXPECT_EQ((std::vector<int32_t>{1, 1, 1, 0, 0}), loaded.m_vecRankItem);
  EXPECT_EQ(1000u, loaded.m_vecStageVar.size());
  EXPECT_DOUBLE_EQ(2.5, loaded.m_vecBack[0].m_dAutoSpeedX);
  EXPECT_DOUBLE_EQ(1.0, loaded.m_vecBack[0].m_dSpeedX);

  // Between the gates: a file of 900 keeps what it holds.
  EXPECT_EQ(2, SaveAndLoad(stage, 900).m_iColorHitBlock);
}

TEST(StageFileTest, ImpossibleSizeInAFileIsRefusedWithoutAllocating) {
  cTempProject project;
  cStage stage = NewStage();
  ASSERT_EQ(1, stage.SaveFile("a.stg4_950"));
  std::vector<uint8_t> bytes = ReadBytes("a.stg4_950");
  const int32_t huge = 1 << 30;
  std::memcpy(bytes.data() + 8, &huge, 4);  // behind the version word and the entry count
  testing::WriteBytes("a.stg4_950", bytes);
  cStage loaded;
  loaded.LoadFile("a.stg4_950");
  EXPECT_EQ(20, loaded.m_nWidth);
  EXPECT_EQ(480u, loaded.m_vecCharaCell.size());
}

TEST(StageFileTest, InspectorDumpsAndResavesAStageFile) {
  cTempProject project;
  cStage stage = NewStage();
  PutBlock(stage, 2, 3, 4);
  ASSERT_EQ(1, stage.SaveFile("a.stg4_950"));
  const inspect::cFileKind* kind = inspect::FindFileKind("data\\stg4\\a.stg4_950");
  ASSERT_NE(nullptr, kind);
  std::unique_ptr<inspect::cLoadedFile> loaded = kind->load("a.stg4_950");
  ASSERT_NE(nullptr, loaded);
  EXPECT_NE(std::string::npos, loaded->Json().find("m_vecBlockCell"));
  ASSERT_TRUE(loaded->Save("b.stg4_950"));
  EXPECT_EQ(ReadBytes("a.stg4_950"), ReadBytes("b.stg4_950"));
}

}  // namespace
}  // namespace velmora
