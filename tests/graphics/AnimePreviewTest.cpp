#include <gtest/gtest.h>

#include "SurfaceFixtures.h"
#include "graphics/AnimePreview.h"
#include "graphics/AnimeRunner.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"

namespace velmora {
namespace {

using testing::TestPalette;

cEdAnime Sample(int kind, int number, int cell) {
  cEdAnime anime;
  anime.m_cSampleKind = static_cast<int8_t>(kind);
  anime.m_iSampleNo = static_cast<int16_t>(number);
  anime.m_iSampleCell = static_cast<int16_t>(cell);
  return anime;
}

TEST(AnimePreviewTest, CellsStepThroughColumnsOrThroughThePicturesThatFollow) {
  const cObjectLook chara = AnimePreviewLook(Sample(kGraphicKindChara, 3, 2), 5, 4);
  EXPECT_EQ(chara.number, 3);
  EXPECT_EQ(chara.column, 2 + 5 + 4);
  const cObjectLook block = AnimePreviewLook(Sample(kGraphicKindBlock, 2, 9), 1, 0);
  EXPECT_EQ(block.number, 3) << "a block has no cells: its start cell is not used";
  EXPECT_EQ(block.column, 0);
  EXPECT_EQ(AnimePreviewLook(Sample(kGraphicKindOwnBmp, 1, 0), 0x10003, 0).column, 3) << "the low 16 bits";
}

// A character's own bitmap of three cells, coloured 1, 2 and 3, runs
// through its frames as the runner ticks.
TEST(AnimePreviewTest, APreviewShowsTheCellOfTheRunnersStep) {
  testing::InstallPalette(TestPalette());
  cSurface sheet;
  const cPixelImage image = testing::IndexedImage(96, 32, [](int x, int) { return x / 32 + 1; });
  const std::vector<uint8_t> bytes = EncodeBitmap(image, TestPalette());
  ASSERT_EQ(sheet.TryLoadFromMemory({}, bytes.data(), bytes.size()), eSurfaceLoad::Ok);
  CharaBitmaps().clear();
  CharaBitmaps().resize(2);
  CharaBitmaps()[1].first = std::move(sheet);

  cEdAnime anime = Sample(kGraphicKindOwnBmp, 1, 0);
  anime.m_vecFrames.resize(2);
  anime.m_vecFrames[0].m_iCell = 2;  // a tenth of a second: six ticks
  anime.m_vecFrames[1].m_iCell = 1;
  cAnimeRunner runner;
  runner.Assign({PreviewPattern(anime.m_vecFrames)});
  cSurface out;
  auto shown = [&](int32_t value) {
    DrawAnimePreview(out, AnimePreviewLook(anime, value, 0));
    return out.Image().ColourAt(16, 16);
  };
  const cColourRef third = ColourOf(TestPalette()[3]);
  const cColourRef second = ColourOf(TestPalette()[2]);
  EXPECT_EQ(shown(runner.Peek()), third);
  for (int tick = 0; tick < 5; ++tick) runner.Tick();
  EXPECT_EQ(shown(runner.Peek()), third);
  EXPECT_EQ(shown(runner.Tick()), second);
  EXPECT_EQ(out.Width(), kAnimePreviewSize);
  CharaBitmaps().clear();
}

// Missing pictures and cells far off the sheet show as an empty square.
TEST(AnimePreviewTest, MissingPicturesShowEmpty) {
  FreeFixedBitmaps();
  CharaBitmaps().clear();
  cSurface out;
  for (int kind = 0; kind < kGraphicKindCount; ++kind) {
    DrawAnimePreview(out, AnimePreviewLook(Sample(kind, 7, 19), 299, 999));
    EXPECT_EQ(out.Image().ColourAt(0, 0), 0u) << kind;
    EXPECT_EQ(out.Image().ColourAt(31, 31), 0u) << kind;
  }
}

}  // namespace
}  // namespace velmora
