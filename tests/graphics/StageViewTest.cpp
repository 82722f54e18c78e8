#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>

#include "core/SaveData.h"
#include "project/Database.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "graphics/SurfaceFixtures.h"
#include "graphics/stageview/ObjectDraw.h"
#include "graphics/stageview/StageView.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/Raster.h"
#include "graphics/SamplePictures.h"

namespace velmora::testing {
namespace {

// The masked copy of one pass gives what the mask's And and the image's Or
// give, for every pair of depths and wherever the copy is clipped.
void ExpectOnePassMatchesTheTwoCopies(const cPixelImage& image, const cPixelImage& mask, std::mt19937& random) {
  for (int depth : {8, 24, 32}) {
    for (const auto& [x, y, sx, sy] : {std::array{3, 4, 0, 0}, {-5, 20, 2, 1}, {60, -10, 10, 5}, {0, 0, -4, 28}}) {
      cPixelImage expected, actual;
      ASSERT_TRUE(expected.Create(64, 48, depth, TestPalette()));
      ASSERT_TRUE(actual.Create(64, 48, depth, TestPalette()));
      for (int row = 0; row < 48; ++row) {
        for (int i = 0; i < expected.Stride(); ++i) expected.Row(row)[i] = actual.Row(row)[i] = static_cast<uint8_t>(random());
      }
      BlitImage(expected, x, y, 32, 32, mask, sx, sy, eRop::And);
      BlitImage(expected, x, y, 32, 32, image, sx, sy, eRop::Or);
      BlitMasked(actual, x, y, 32, 32, image, mask, sx, sy);
      for (int row = 0; row < 48; ++row) {
        ASSERT_EQ(0, std::memcmp(expected.Row(row), actual.Row(row), static_cast<size_t>(expected.Stride())))
            << "depth " << depth << " row " << row << " at " << x << "," << y;
      }
    }
  }
}

TEST(MaskedCopyTest, OnePassMatchesTheTwoCopiesOnNoise) {
  std::mt19937 random(7);
  const cPixelImage image = IndexedImage(40, 30, [&](int, int) { return static_cast<int>(random() % 256); });
  const cPixelImage mask = IndexedImage(40, 30, [&](int, int) { return random() % 2 ? 255 : 0; });
  ExpectOnePassMatchesTheTwoCopies(image, mask, random);
}

// Sprites have their mask and often their colours in runs, which the copy
// takes eight dots at a time.
TEST(MaskedCopyTest, OnePassMatchesTheTwoCopiesOnRuns) {
  std::mt19937 random(11);
  auto run = [](int x, int y, int values) { return (x / 8 * 5 + y / 3) % values; };
  const cPixelImage image = IndexedImage(40, 30, [&](int x, int y) { return x % 16 < 8 ? run(x, y, 4) * 60 : x; });
  const cPixelImage mask = IndexedImage(40, 30, [&](int x, int y) { return x == 21 || run(x, y, 3) == 0 ? 0 : 255; });
  ExpectOnePassMatchesTheTwoCopies(image, mask, random);
}

class StageView : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(WriteSamplePictures());
    ASSERT_TRUE(WriteSampleCharaBitmap("bmp\\Own.bmp", 1, 4));
    ASSERT_TRUE(LoadPaletteBitmaps());
    ASSERT_TRUE(LoadFixedBitmaps("", ""));
    ASSERT_TRUE(LoadCharaBitmaps({{}, {"bmp\\Own.bmp", 32}}, true));
    ASSERT_TRUE(view.CreateSurface(640, 480, 32, false));
    ASSERT_TRUE(expected.CreateSurface(640, 480, 32, false));
    view.Fill(0);
    expected.Fill(0);
  }
  void TearDown() override {
    FreeFixedBitmaps();
    CharaBitmaps().clear();
    Database().m_AnimeSet.m_vecEntries.clear();
    g_bNoSave = 0;
  }
  bool Same() const {
    for (int y = 0; y < 480; ++y) {
      if (std::memcmp(view.Image().Row(y), expected.Image().Row(y), 640 * 4) != 0) return false;
    }
    return true;
  }
  cColourRef At(int x, int y) const { return view.Image().ColourAt(x, y); }

  cTempProject project;
  cScriptedPrompt prompt;
  cSurface view;
  cSurface expected;
};

TEST_F(StageView, EachPictureKindComesFromItsSheetCell) {
  // Block 17: column 1, row 2 of the block sheet.
  DrawObject(view, 64, 32, cObjectLook{kGraphicKindBlock, 17}, false);
  expected.Blt(64, 32, 32, 32, FixedBitmap(kFixedBlock), 32, 64, false);
  // Character 20 facing the other way at column 3: second group's mirrored sheet.
  DrawObject(view, 128, 32, cObjectLook{kGraphicKindChara, 20, 3, 1}, false);
  expected.Blt(128, 32, 32, 32, FixedBitmap(kFixedCharaFirst + 3), 96, 160, false);
  // Item 16 at half size: the mini sheet, unscaled, in the top right quarter.
  DrawObject(view, 0, 96, cObjectLook{kGraphicKindItem, 16}, true);
  expected.Blt(16, 96, 16, 16, FixedBitmap(kFixedItemMini), 32, 16, false);
  // Item 16 at full size: 64-dot columns.
  DrawObject(view, 32, 96, cObjectLook{kGraphicKindItem, 16}, false);
  expected.Blt(32, 96, 32, 32, FixedBitmap(kFixedItem), 64, 32, false);
  // Shot 31: column 1, row 1 of 16 dots, centred in the cell.
  DrawObject(view, 96, 96, cObjectLook{kGraphicKindShot, 31, 0, 1}, false);
  expected.Blt(104, 104, 16, 16, FixedBitmap(kFixedShotMirrored), 32, 16, false);
  // A character's own bitmap, the other facing, its third cell; then a mark on top.
  DrawObject(view, 160, 96, cObjectLook{kGraphicKindOwnBmp, 1, 2, 1, 16}, false);
  expected.Blt(160, 96, 32, 32, CharaBitmaps()[1].second, 0, 64, false);
  expected.Blt(160, 96, 32, 32, FixedBitmap(kFixedMark), 32, 32, false);
  // Nothing for number 0, an own bitmap beyond the list or a group beyond the sheets.
  DrawObject(view, 200, 200, cObjectLook{kGraphicKindBlock, 0}, false);
  DrawObject(view, 200, 200, cObjectLook{kGraphicKindOwnBmp, 5}, false);
  DrawObject(view, 200, 200, cObjectLook{kGraphicKindChara, 120}, false);
  EXPECT_TRUE(Same());
}

TEST_F(StageView, PlacedRecordsChooseColumnAndFacing) {
  cEdBlock block;
  block.m_nGraphicKind = kGraphicKindChara;
  block.m_nGraphicNo = 2;
  block.m_nGraphicFrame = 23;
  const cObjectLook blockLook = LookOf(block);
  EXPECT_EQ(blockLook.column, 3);
  EXPECT_EQ(blockLook.facing, 1);
  EXPECT_EQ(blockLook.mark, -1);

  Database().m_AnimeSet.m_vecEntries.resize(2);
  cEdAnimeSet& set = Database().m_AnimeSet.m_vecEntries[1];
  set.m_iBlockShift = 8;
  set.m_iFlyShift = 2;
  cEdChara chara;
  chara.m_nGraphicNo = 4;
  chara.m_nGraphicShift = 1;
  chara.m_nAnimeSet = 1;
  chara.m_nBlock = 1;
  chara.m_nFly = 1;
  chara.m_nMarkShow = 2;
  chara.m_nMarkNo = 7;
  const cObjectLook charaLook = LookOf(chara, Database().m_AnimeSet.m_vecEntries);
  EXPECT_EQ(charaLook.column, 11);
  EXPECT_EQ(charaLook.mark, 7);
  chara.m_nAnimeSet = -1;
  const cObjectLook markOnly = LookOf(chara, Database().m_AnimeSet.m_vecEntries);
  EXPECT_EQ(markOnly.number, 0);
  EXPECT_EQ(markOnly.mark, 7);
}

TEST_F(StageView, LayersAreDrawnInOrderWithGridCrossAndLimits) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(40, 20, 0, 0);
  const size_t cell = static_cast<size_t>(stage.CellIndex(21, 1));
  stage.m_vecBlockCell[cell].m_nGraphicNo = 1;
  stage.m_vecCharaCell[cell].m_nGraphicNo = 1;
  stage.m_vecItemCell[cell].m_nGraphicNo = 1;
  stage.m_bScrollMaxX = 1;
  stage.m_iScrollMaxX = 30;
  RenderStageView(stage, view, 20, 0, cViewOptions{});

  expected.Blt(32, 32, 32, 32, FixedBitmap(kFixedBlock), 0, 32, false);
  expected.Blt(32, 32, 32, 32, FixedBitmap(kFixedCharaFirst), 0, 32, false);
  expected.Blt(48, 32, 16, 16, FixedBitmap(kFixedItemMini), 0, 16, false);
  for (int y = 33; y < 64; ++y) {
    for (int x = 33; x < 64; ++x) ASSERT_EQ(At(x, y), expected.Image().ColourAt(x, y)) << x << "," << y;
  }
  EXPECT_EQ(At(0, 5), 0xFFFFFFu);
  EXPECT_EQ(At(639, 5), 0xFFFFFFu);
  EXPECT_EQ(At(304, 100), 0x2040FFu);
  EXPECT_EQ(At(100, 256), 0x2040FFu);
  EXPECT_EQ(At(353, 100), 0x40FF20u);  // right limit at column 30 seen from column 20
  EXPECT_EQ(At(5, 5), 0u);
}

TEST_F(StageView, CellsBeyondTheStageStayBlackAndNoStageIsAllBlack) {
  cStage stage;
  stage.InitDefault();  // 20 x 15
  for (cEdBlock& block : stage.m_vecBlockCell) block.m_nGraphicNo = 1;
  RenderStageView(stage, view, 10, 10, cViewOptions{});
  EXPECT_NE(At(5, 5), 0u);      // cell (10, 10) has a block
  EXPECT_EQ(At(325, 5), 0u);    // column 20 lies beyond the stage
  EXPECT_EQ(At(5, 165), 0u);    // so does row 15
  view.Fill(0x123456);
  RenderStageView(stage, view, 0, 0, cViewOptions{false, {}, {}, {}});
  EXPECT_TRUE(Same());
}

TEST_F(StageView, CursorFrameIsTwoDotsWide) {
  cStage stage;
  stage.InitDefault();
  cViewOptions options;
  options.cursor = {3, 2, 2, 1, 0xFF0080};
  RenderStageView(stage, view, 1, 0, options);
  EXPECT_EQ(At(70, 64), 0xFF0080u);
  EXPECT_EQ(At(70, 65), 0xFF0080u);
  EXPECT_EQ(At(70, 80), 0u);
}

}  // namespace
}  // namespace velmora::testing
