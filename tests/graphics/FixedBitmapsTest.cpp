#include <gtest/gtest.h>

#include "core/AppControl.h"
#include "core/SaveData.h"
#include "platform/FileSystem.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/ProjectPalette.h"
#include "graphics/SamplePalette.h"
#include "graphics/SamplePictures.h"

namespace velmora::testing {
namespace {

class FixedBitmaps : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(WriteSamplePictures()); }
  void TearDown() override {
    FreeFixedBitmaps();
    CharaBitmaps().clear();
    g_bNoSave = 0;
  }
  static uint8_t At(const cSurface& s, int x, int y) { return *s.Image().Pixel(x, y); }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(FixedBitmaps, SampleProjectLoadsEveryPictureWithItsMask) {
  for (const std::string& file : FixedBitmapFiles()) EXPECT_TRUE(FileExists(file)) << file;
  EXPECT_TRUE(FileExists("e_bmp\\ToolBar_Pen.bmp"));
  ASSERT_TRUE(LoadPaletteBitmaps());
  EXPECT_EQ(ProjectPalette(), SamplePalette());
  EXPECT_EQ(TransparentIndex(), 0);
  EXPECT_EQ(SolidIndex(), 0);  // entry 15 is black like entry 0
  ASSERT_TRUE(LoadFixedBitmaps("bmp\\Back.bmp", "bmp\\WorldBack.bmp"));
  for (int i = 0; i < kFixedBitmapCount; ++i) {
    EXPECT_TRUE(FixedBitmap(i).IsLoaded()) << i;
    EXPECT_EQ(FixedBitmap(i).HasMask(), i != kFixedBack && i != kFixedWorldBack) << i;
  }
  EXPECT_TRUE(prompt.Shown().empty());

  // The second sheet of each pair faces the other way, cell by cell.
  const cSurface& chara = FixedBitmap(kFixedCharaFirst + 2);
  const cSurface& mirrored = FixedBitmap(kFixedCharaFirst + 3);
  for (int x = 0; x < 64; ++x) EXPECT_EQ(At(mirrored, x, 40), At(chara, (x / 32) * 32 + 31 - x % 32, 40));
  const cSurface& shots = FixedBitmap(kFixedShot);
  EXPECT_EQ(At(FixedBitmap(kFixedShotMirrored), 3, 20), At(shots, 12, 20));
}

TEST_F(FixedBitmaps, SheetsAreComposedFromTheirSources) {
  ASSERT_TRUE(LoadPaletteBitmaps());
  ASSERT_TRUE(LoadFixedBitmaps("", ""));
  const cSurface& blocks = FixedBitmap(kFixedBlock);
  const cSurface& items = FixedBitmap(kFixedItem);
  const cSurface& shots = FixedBitmap(kFixedShot);
  for (int y = 0; y < 480; y += 7) {
    for (int x = 0; x < 256; x += 5) {
      EXPECT_EQ(At(FixedBitmap(kSheetBlock), x, y), At(blocks, x, y));
      EXPECT_EQ(At(FixedBitmap(kSheetChara), x, y), At(FixedBitmap(kFixedCharaFirst + 2 * (x / 32)), x % 32, y));
      EXPECT_EQ(At(FixedBitmap(kSheetItem), x, y), At(items, 64 * (x / 32) + x % 32, y));
      EXPECT_EQ(At(FixedBitmap(kSheetMark), x, y), At(FixedBitmap(kFixedMark), x, y));
    }
  }
  // Shot 3 of column 1 and shot 20 of column 2, each framed by 8 dots.
  for (int d = 0; d < 16; ++d) {
    EXPECT_EQ(At(FixedBitmap(kSheetShot), 64 + 8 + d, 3 * 32 + 8 + d), At(shots, 32 + d, 3 * 16 + d));
    EXPECT_EQ(At(FixedBitmap(kSheetShot), 128 + 32 + 8 + d, 5 * 32 + 8 + d), At(shots, 64 + d, 20 * 16 + d));
  }
  EXPECT_EQ(At(FixedBitmap(kSheetShot), 64 + 4, 3 * 32 + 4), 0);
}

TEST_F(FixedBitmaps, BackgroundsArePassedOverOtherFilesAreNot) {
  ASSERT_TRUE(LoadPaletteBitmaps());
  ASSERT_TRUE(LoadFixedBitmaps("bmp\\back\\gone.bmp", ""));
  EXPECT_FALSE(FixedBitmap(kFixedBack).IsLoaded());
  EXPECT_FALSE(FixedBitmap(kFixedWorldBack).IsLoaded());
  EXPECT_TRUE(prompt.Shown().empty());

  ASSERT_TRUE(RemoveFile("bmp\\Item.bmp"));
  EXPECT_FALSE(LoadFixedBitmaps("", ""));
  EXPECT_EQ(prompt.LastText(), "bmp\\Item.bmp が読み込めません！");
}

TEST_F(FixedBitmaps, MissingPalettesStopWithTheirOwnWords) {
  ASSERT_TRUE(RemoveFile("bmp\\plt\\Palette2.bmp"));
  const int destroyed = DestroyRequestCount();
  EXPECT_FALSE(LoadPaletteBitmaps());
  EXPECT_EQ(prompt.LastText(), "パレットの生成に失敗！\nbmp\\plt\\Palette2.bmp が見つかりません！");
  EXPECT_EQ(g_bNoSave, 1);
  EXPECT_EQ(DestroyRequestCount(), destroyed + 1);

  g_bNoSave = 0;
  ASSERT_TRUE(RemoveFile("bmp\\plt\\Palette.bmp"));
  EXPECT_FALSE(LoadPaletteBitmaps());
  EXPECT_EQ(prompt.LastText(), "パレットの生成に失敗！\nbmp\\plt\\Palette.bmp が見つかりません！");
  EXPECT_EQ(g_bNoSave, 0);
}

TEST_F(FixedBitmaps, CharacterBitmapsSplitIntoTwoFacings) {
  ASSERT_TRUE(LoadPaletteBitmaps());
  MakeDirectory("bmp\\chara_sp");
  ASSERT_TRUE(WriteSampleCharaBitmap("bmp\\chara_sp\\a.bmp", 3, 4));
  const std::vector<cCharaBitmapSource> list = {
      {"bmp\\chara_sp\\a.bmp", 32}, {"bmp\\chara_sp\\a.bmp", 32}, {"", 32},
      {"bmp\\chara_sp\\gone.bmp", 32}, {"bmp\\chara_sp\\a.bmp", 48},
  };
  EXPECT_FALSE(LoadCharaBitmaps(list, false));
  EXPECT_EQ(prompt.LastText(), "bmp\\chara_sp\\gone.bmp の読み込みに失敗！");
  ASSERT_EQ(CharaBitmaps().size(), 5u);
  EXPECT_FALSE(CharaBitmaps()[0].first.IsLoaded());  // row 0 is never loaded
  EXPECT_FALSE(CharaBitmaps()[2].first.IsLoaded());

  cSurface sheet;
  ASSERT_TRUE(sheet.LoadSimple("bmp\\chara_sp\\a.bmp", 8, 1, 0, 0, 0, 0, 1));
  const cCharaBitmapPair& pair = CharaBitmaps()[1];
  ASSERT_EQ(pair.second.Width(), 32);
  ASSERT_EQ(pair.second.Height(), 128);
  for (int x = 0; x < 32; ++x) {
    EXPECT_EQ(*pair.first.Image().Pixel(x, 50), *sheet.Image().Pixel(x, 50));
    EXPECT_EQ(*pair.second.Image().Pixel(x, 50), *sheet.Image().Pixel(32 + x, 50));
    EXPECT_EQ(*pair.second.Mask().Pixel(x, 50), *sheet.Mask().Pixel(32 + x, 50));
  }
  // A giant cell wider than the file: what the file lacks draws nothing.
  const cCharaBitmapPair& giant = CharaBitmaps()[4];
  ASSERT_EQ(giant.second.Width(), 48);
  EXPECT_EQ(*giant.second.Image().Pixel(20, 5), 0);
  EXPECT_EQ(*giant.second.Mask().Pixel(20, 5), 255);

  EXPECT_FALSE(LoadCharaBitmaps(list, true));
  EXPECT_FALSE(CharaBitmaps()[4].first.IsLoaded());
}

}  // namespace
}  // namespace velmora::testing
