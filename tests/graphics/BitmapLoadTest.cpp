#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "graphics/SurfaceFixtures.h"
#include "graphics/Surface.h"

namespace velmora::testing {
namespace {

class BitmapLoad : public ::testing::Test {
 protected:
  void SetUp() override { InstallPalette(TestPalette()); }
  void CopyReference(const std::string& name) { std::filesystem::copy_file(TestDataPath(name), name); }
  cTempProject project;
  cScriptedPrompt prompt;
};

// Pixels of the ImageMagick references, top row first, as ImageMagick
// itself reports them.
TEST_F(BitmapLoad, ReadsImageMagickBitmapsPixelForPixel) {
  cColourTable palette = TestPalette();
  palette[0] = cRgbQuad{3, 2, 1, 0};  // a transparent colour the pictures don't use
  InstallPalette(palette);
  for (const char* name : {"p8.bmp", "t24.bmp", "t32.bmp"}) CopyReference(name);
  const std::vector<uint8_t> rgb8 = ReadBytes(TestDataPath("p8.rgb"));
  const std::vector<uint8_t> rgb24 = ReadBytes(TestDataPath("t24.rgb"));
  const std::vector<uint8_t> rgba32 = ReadBytes(TestDataPath("t32.rgba"));

  cSurface indexed;
  ASSERT_TRUE(indexed.LoadSimple("p8.bmp", 8, 0, 0, 0, 0, 0, 1));
  cColourTable filePalette{};
  ASSERT_TRUE(ReadBitmapPalette(filePalette, "p8.bmp"));
  ASSERT_EQ(indexed.Width(), 13);
  ASSERT_EQ(indexed.Height(), 7);
  ASSERT_EQ(indexed.Depth(), 8);
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 13; ++x) {
      const cRgbQuad& q = filePalette[*indexed.Image().Pixel(x, y)];
      const size_t at = static_cast<size_t>(y * 13 + x) * 3;
      EXPECT_EQ((std::vector<uint8_t>{q.red, q.green, q.blue}),
                (std::vector<uint8_t>{rgb8[at], rgb8[at + 1], rgb8[at + 2]}))
          << x << "," << y;
    }
  }

  cSurface trueColour;
  ASSERT_TRUE(trueColour.LoadSimple("t24.bmp", 8, 0, 0, 0, 0, 0, 1));
  cSurface withAlpha;
  ASSERT_TRUE(withAlpha.LoadSimple("t32.bmp", 8, 0, 0, 0, 0, 0, 1));
  ASSERT_EQ(trueColour.Depth(), 24);
  ASSERT_EQ(withAlpha.Depth(), 32);
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 13; ++x) {
      const uint8_t* p24 = trueColour.Image().Pixel(x, y);
      const uint8_t* p32 = withAlpha.Image().Pixel(x, y);
      const size_t at = static_cast<size_t>(y * 13 + x);
      EXPECT_EQ((std::vector<uint8_t>{p24[2], p24[1], p24[0]}),
                (std::vector<uint8_t>(rgb24.begin() + at * 3, rgb24.begin() + at * 3 + 3)));
      EXPECT_EQ((std::vector<uint8_t>{p32[2], p32[1], p32[0], p32[3]}),
                (std::vector<uint8_t>(rgba32.begin() + at * 4, rgba32.begin() + at * 4 + 4)));
    }
  }
  EXPECT_TRUE(prompt.Shown().empty());
}

TEST_F(BitmapLoad, RefusesOtherDepthsAndMissingFiles) {
  CopyReference("p4.bmp");
  cSurface surface;
  EXPECT_FALSE(surface.LoadSimple("p4.bmp", 8, 1, 0, 0, 0, 0, 1));
  EXPECT_EQ(prompt.LastText(), "p4.bmp の読み込みに失敗しました！\n対応していない色数です。");
  EXPECT_FALSE(surface.IsLoaded());

  EXPECT_FALSE(surface.LoadSimple("bmp\\none.bmp", 8, 1, 0, 0, 0, 0, 1));
  EXPECT_EQ(prompt.LastText(), "bmp\\none.bmp が読み込めません！");

  // The palette of a 4-bit file is still readable: its 16 entries.
  cColourTable table{};
  EXPECT_TRUE(ReadBitmapPalette(table, "p4.bmp"));
  EXPECT_FALSE(ReadBitmapPalette(table, "bmp\\none.bmp"));
}

// Every damaged form gives a clear failure and leaves the surface empty.
TEST_F(BitmapLoad, DamagedFilesFailClearly) {
  const std::vector<uint8_t> good = EncodeBitmap(IndexedImage(9, 5, [](int x, int y) { return x + y; }), TestPalette());
  auto patched = [&](size_t offset, uint32_t value) {
    std::vector<uint8_t> bytes = good;
    for (int i = 0; i < 4; ++i) bytes[offset + static_cast<size_t>(i)] = static_cast<uint8_t>(value >> (8 * i));
    return bytes;
  };
  const std::vector<std::vector<uint8_t>> damaged = {
      {},
      std::vector<uint8_t>(good.begin(), good.begin() + 53),
      std::vector<uint8_t>(good.begin(), good.end() - 1),
      patched(18, 0x7FFFFFFF),  // width
      patched(22, 0x7FFFFFFF),  // height
      patched(18, 0x80000000),  // negative width
      patched(22, 0),           // no rows
      patched(22, 0xFFFFFFF0),  // negative height
      patched(10, 0xFFFFFF00),  // data offset past the end
      patched(18, 40000),       // wider than any picture, though the rows would fit nothing
  };
  for (size_t i = 0; i < damaged.size(); ++i) {
    WriteBytes("bad.bmp", damaged[i]);
    cSurface surface;
    EXPECT_FALSE(surface.LoadSimple("bad.bmp", 8, 1, 0, 0, 0, 0, 2)) << i;
    EXPECT_FALSE(surface.IsLoaded()) << i;
    EXPECT_EQ(prompt.LastText(), "bad.bmp が読み込めません！") << i;
  }
}

TEST_F(BitmapLoad, DivisorCutsToAlignmentAndSamplesFromTheMiddle) {
  auto pick = [](int x, int y) { return (x * 3 + y * 5) & 0xFF; };
  WriteImage("big.bmp", IndexedImage(100, 40, pick));
  cSurfaceSpec request;
  request.name = "big.bmp";
  request.divisor = 2;
  request.alignX = 32;
  request.cellWidth = 32;
  cSurface surface;
  ASSERT_TRUE(surface.Load(request));
  EXPECT_EQ(surface.Width(), 48);
  EXPECT_EQ(surface.Height(), 20);
  EXPECT_EQ(surface.CellWidth(), 16);
  // Cells of 16 are mirrored after shrinking: column 0 holds what column 15 sampled.
  EXPECT_EQ(*surface.Image().Pixel(0, 3), pick(2 * 15 + 1, 2 * 3 + 1));
  EXPECT_EQ(*surface.Image().Pixel(16, 0), pick(2 * 31 + 1, 1));

  request.divisor = 0;  // counts as 1
  request.cellWidth = 0;
  ASSERT_TRUE(surface.Load(request));
  EXPECT_EQ(surface.Width(), 100);
  EXPECT_EQ(*surface.Image().Pixel(99, 39), pick(99, 39));
}

TEST_F(BitmapLoad, MirrorsWholeCellsOnly) {
  auto pick = [](int x, int y) { return (x + 7 * y) & 0xFF; };
  WriteImage("cells.bmp", IndexedImage(100, 40, pick));
  cSurface columns;
  ASSERT_TRUE(columns.LoadSimple("cells.bmp", 8, 0, 32, 0, 0, 0, 1));
  for (int x = 0; x < 100; ++x) {
    const int expected = x < 96 ? (x / 32) * 32 + 31 - x % 32 : x;
    EXPECT_EQ(*columns.Image().Pixel(x, 5), pick(expected, 5)) << x;
  }
  cSurface rows;
  ASSERT_TRUE(rows.LoadSimple("cells.bmp", 8, 0, 0, 16, 0, 0, 1));
  EXPECT_EQ(*rows.Image().Pixel(3, 0), pick(3, 15));
  EXPECT_EQ(*rows.Image().Pixel(3, 17), pick(3, 30));
  EXPECT_EQ(*rows.Image().Pixel(3, 33), pick(3, 33));  // the last 8 rows make no cell
  cSurface both;
  ASSERT_TRUE(both.LoadSimple("cells.bmp", 8, 0, 32, 16, 0, 0, 1));
  EXPECT_EQ(*both.Image().Pixel(33, 17), pick(62, 30));
}

TEST_F(BitmapLoad, EightBitMaskMarksTheTransparentIndex) {
  cColourTable palette = TestPalette();
  palette[0] = cRgbQuad{9, 9, 9, 0};
  palette[7] = palette[15];  // the first index of the solid colour is 7
  InstallPalette(palette);
  auto pick = [](int x, int y) { return (x * y) % 5 == 0 ? 0 : x + 1; };
  WriteImage("masked.bmp", IndexedImage(21, 6, pick));
  cSurface surface;
  ASSERT_TRUE(surface.LoadSimple("masked.bmp", 8, 1, 0, 0, 0, 0, 1));
  ASSERT_TRUE(surface.HasMask());
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 21; ++x) {
      EXPECT_EQ(*surface.Mask().Pixel(x, y), pick(x, y) == 0 ? 255 : 7);
      EXPECT_EQ(*surface.Image().Pixel(x, y), pick(x, y));
    }
  }
}

TEST_F(BitmapLoad, TrueColourTransparencyBecomesWhiteMaskAndBlackImage) {
  cColourTable palette = TestPalette();
  palette[0] = cRgbQuad{30, 20, 10, 0};
  InstallPalette(palette);
  for (int depth : {24, 32}) {
    cPixelImage image;
    image.Create(5, 3, depth, palette);
    image.FillRect(0, 0, 5, 3, image.Encode(Rgb(200, 100, 50)));
    image.PutPixel(1, 1, image.Encode(Rgb(10, 20, 30)));
    WriteBytes("true.bmp", EncodeBitmap(image, palette));
    for (int bMask : {0, 1}) {
      cSurface surface;
      ASSERT_TRUE(surface.LoadSimple("true.bmp", 8, bMask, 0, 0, 0, 0, 1));
      EXPECT_EQ(surface.Image().ColourAt(1, 1), Rgb(0, 0, 0));
      EXPECT_EQ(surface.Image().ColourAt(2, 1), Rgb(200, 100, 50));
      EXPECT_EQ(surface.HasMask(), bMask == 1);
      if (bMask) {
        EXPECT_EQ(surface.Mask().ColourAt(1, 1), Rgb(255, 255, 255));
        EXPECT_EQ(surface.Mask().ColourAt(2, 1), Rgb(0, 0, 0));
      }
    }
  }
}

TEST_F(BitmapLoad, BlankSurfacesAndReloading) {
  cSurface surface;
  ASSERT_TRUE(surface.LoadSimple("E", 8, 1, 0, 0, 256, 480, 1));
  EXPECT_EQ(surface.Width(), 256);
  EXPECT_EQ(*surface.Image().Pixel(10, 10), 255);  // new surfaces are white
  EXPECT_EQ(*surface.Mask().Pixel(10, 10), 255);
  ASSERT_TRUE(surface.LoadSimple("", 32, 0, 0, 0, 3, 2, 1));
  EXPECT_EQ(surface.Depth(), 32);
  EXPECT_FALSE(surface.HasMask());
  EXPECT_FALSE(surface.LoadSimple("E", 8, 0, 0, 0, 0, 480, 1));
  EXPECT_EQ(prompt.LastText(), "E が読み込めません！");
  surface.Free();
  EXPECT_FALSE(surface.IsLoaded());
  EXPECT_TRUE(surface.LoadSimple("E", 24, 0, 0, 0, 4, 4, 1));
}

}  // namespace
}  // namespace velmora::testing
