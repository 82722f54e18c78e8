#include <gtest/gtest.h>

#include "graphics/SurfaceFixtures.h"
#include "graphics/Surface.h"

namespace velmora::testing {
namespace {

class SurfaceDraw : public ::testing::Test {
 protected:
  void SetUp() override { InstallPalette(TestPalette()); }

  // A 4 x 2 sprite of index 9 with its left column transparent, masked the
  // way a load masks it.
  cSurface Sprite() {
    cSurface sprite;
    sprite.CreateSurface(4, 2, 8, true);
    for (int y = 0; y < 2; ++y) {
      for (int x = 0; x < 4; ++x) {
        *sprite.Image().Pixel(x, y) = x == 0 ? 0 : 9;
        *sprite.Mask().Pixel(x, y) = x == 0 ? 255 : 0;
      }
    }
    return sprite;
  }

  static int CountColour(const cSurface& s, cColourRef colour) {
    int count = 0;
    for (int y = 0; y < s.Height(); ++y) {
      for (int x = 0; x < s.Width(); ++x) count += s.Image().ColourAt(x, y) == colour;
    }
    return count;
  }
};

TEST_F(SurfaceDraw, MaskedCopyKeepsTheBackgroundWhereTransparent) {
  const cSurface sprite = Sprite();
  cSurface indexed;
  indexed.CreateSurface(6, 3, 8, false);
  indexed.FillRect(0, 0, 6, 3, ColourOf(TestPalette()[200]));
  indexed.Blt(1, 1, 4, 2, sprite, 0, 0, false);
  EXPECT_EQ(*indexed.Image().Pixel(1, 1), 200);
  EXPECT_EQ(*indexed.Image().Pixel(2, 1), 9);
  EXPECT_EQ(*indexed.Image().Pixel(0, 0), 200);

  // Onto true colour the indices go through the colour table.
  cSurface screen;
  screen.CreateSurface(6, 3, 32, false);
  screen.Fill(Rgb(10, 200, 30));
  screen.Blt(1, 1, 4, 2, sprite, 0, 0, false);
  EXPECT_EQ(screen.Image().ColourAt(1, 1), Rgb(10, 200, 30));
  EXPECT_EQ(screen.Image().ColourAt(2, 2), ColourOf(TestPalette()[9]));

  // Opaque, the transparent part shows as black.
  screen.Blt(1, 1, 4, 2, sprite, 0, 0, true);
  EXPECT_EQ(screen.Image().ColourAt(1, 1), Rgb(0, 0, 0));
}

TEST_F(SurfaceDraw, CopiesClipAtEveryEdge) {
  const cSurface sprite = Sprite();
  cSurface target;
  target.CreateSurface(5, 5, 24, false);
  target.Fill(Rgb(1, 2, 3));
  target.Blt(-2, -1, 4, 2, sprite, 0, 0, true);   // only the sprite's right half, top row cut
  target.Blt(4, 4, 4, 2, sprite, 0, 0, true);     // one pixel inside
  target.Blt(0, 3, 9, 9, sprite, 3, 1, true);     // source runs out after one pixel
  target.Blt(2, 2, 4, 2, sprite, -10, -10, true); // nothing of the source
  EXPECT_EQ(target.Image().ColourAt(0, 0), ColourOf(TestPalette()[9]));
  EXPECT_EQ(target.Image().ColourAt(2, 0), Rgb(1, 2, 3));
  EXPECT_EQ(target.Image().ColourAt(4, 4), Rgb(0, 0, 0));
  EXPECT_EQ(target.Image().ColourAt(0, 3), ColourOf(TestPalette()[9]));
  EXPECT_EQ(target.Image().ColourAt(1, 3), Rgb(1, 2, 3));
  EXPECT_EQ(CountColour(target, Rgb(1, 2, 3)), 25 - 4);
}

TEST_F(SurfaceDraw, StretchHalvesWithPointSampling) {
  cSurface source;
  source.CreateSurface(4, 4, 8, false);
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 4; ++x) *source.Image().Pixel(x, y) = static_cast<uint8_t>(10 * y + x);
  }
  cSurface target;
  target.CreateSurface(3, 3, 8, false);
  target.StretchBltFrom(1, 1, 2, 2, source, 0, 0, 4, 4, true);
  EXPECT_EQ(*target.Image().Pixel(1, 1), 11);
  EXPECT_EQ(*target.Image().Pixel(2, 2), 33);
  EXPECT_EQ(*target.Image().Pixel(0, 0), 255);
  target.StretchBltFrom(-1, 0, 4, 1, source, 0, 0, 2, 1, true);  // doubled, left part off the surface
  EXPECT_EQ(*target.Image().Pixel(0, 0), 0);
  EXPECT_EQ(*target.Image().Pixel(1, 0), 1);
  target.StretchBltFrom(0, 0, 0, 3, source, 0, 0, 4, 4, true);  // no extent, nothing drawn
  EXPECT_EQ(*target.Image().Pixel(2, 0), 1);
}

TEST_F(SurfaceDraw, FillsPickTheNearestPaletteEntryOnEightBits) {
  cSurface surface;
  surface.CreateSurface(4, 4, 8, false);
  const cRgbQuad near = TestPalette()[77];
  surface.Fill(Rgb(near.red, near.green, static_cast<uint8_t>(near.blue + 1)));
  EXPECT_EQ(*surface.Image().Pixel(3, 3), 77);
  surface.FillRect(1, 1, 2, 2, 0);  // black: entry 0 comes before entry 15
  EXPECT_EQ(*surface.Image().Pixel(1, 1), 0);
  EXPECT_EQ(*surface.Image().Pixel(3, 1), 77);
  const uint8_t rgb[3] = {9, 8, 7};
  cSurface trueColour;
  trueColour.CreateSurface(2, 2, 24, false);
  trueColour.FillRgb(rgb);
  EXPECT_EQ(trueColour.Image().ColourAt(1, 1), Rgb(9, 8, 7));
}

TEST_F(SurfaceDraw, LinesBoxesAndGrids) {
  cSurface surface;
  surface.CreateSurface(40, 40, 32, false);
  surface.Fill(0);
  surface.SetPen(kPenSolid, 1, Rgb(255, 0, 0));
  surface.Line(0, 0, 10, 0);  // the end point stays undrawn
  EXPECT_EQ(CountColour(surface, Rgb(255, 0, 0)), 10);
  surface.Line(5, 5, 8, 8);
  EXPECT_EQ(surface.Image().ColourAt(7, 7), Rgb(255, 0, 0));
  EXPECT_EQ(surface.Image().ColourAt(8, 8), Rgb(0, 0, 0));
  surface.Fill(0);
  surface.Box(2, 2, 5, 4);
  EXPECT_EQ(CountColour(surface, Rgb(255, 0, 0)), 2 * 5 + 2 * 2);
  surface.FreePen();

  // A grid of 32 over 40 x 40: lines at 0 and 32, and at the far edges 39.
  surface.SetPen(kPenSolid, 3, Rgb(1, 1, 1));
  surface.Fill(0);
  surface.Grid(0, 0, 40, 40, 32, 32, Rgb(0, 0, 255));
  for (int i : {0, 32, 39}) {
    EXPECT_EQ(surface.Image().ColourAt(i, 20), Rgb(0, 0, 255)) << i;
    EXPECT_EQ(surface.Image().ColourAt(20, i), Rgb(0, 0, 255)) << i;
  }
  EXPECT_EQ(surface.Image().ColourAt(16, 16), Rgb(0, 0, 0));
  EXPECT_EQ(surface.Pen().width, 3);  // the grid gives the pen back
  surface.Fill(0);
  surface.Grid(0, 0, 40, 40, 0, 32, Rgb(0, 0, 255));
  EXPECT_EQ(CountColour(surface, Rgb(0, 0, 255)), 0);
}

TEST_F(SurfaceDraw, DottedPenLeavesTheGapsAlone) {
  cSurface surface;
  surface.CreateSurface(12, 3, 24, false);
  surface.Fill(Rgb(5, 5, 5));
  surface.SetPen(kPenDash, 1, Rgb(255, 0, 0));
  surface.Line(0, 0, 12, 0);  // opaque background: no pixel keeps its colour
  surface.SetPen(kPenDot, 1, Rgb(0, 255, 0));
  surface.Line(0, 2, 12, 2);
  int green = 0;
  for (int x = 0; x < 12; ++x) {
    EXPECT_NE(surface.Image().ColourAt(x, 0), Rgb(5, 5, 5));
    green += surface.Image().ColourAt(x, 2) == Rgb(0, 255, 0);
  }
  EXPECT_EQ(green, 6);
  EXPECT_EQ(surface.Image().ColourAt(4, 2), Rgb(5, 5, 5));
  EXPECT_TRUE(surface.TransparentBackground());
}

class cRecordingRenderer : public cTextRenderer {
 public:
  struct cCall {
    int x, y;
    std::string line;
    cColourRef colour;
    bool transparent;
    std::string font;
  };
  void DrawLine(cPixelImage&, int x, int y, const std::string& line, cColourRef colour, bool transparent,
                const cFontChoice* font) override {
    calls.push_back({x, y, line, colour, transparent, font ? font->name : ""});
  }
  std::vector<cCall> calls;
};

TEST_F(SurfaceDraw, TextGoesThroughTheRendererLineByLine) {
  cSurface surface;
  surface.CreateSurface(64, 64, 32, false);
  surface.DrawText(3, 4, "no renderer", Rgb(1, 2, 3), kTextOpaque);  // nothing to draw with, no harm
  cRecordingRenderer renderer;
  SetTextRenderer(&renderer);
  surface.DrawText(3, 4, "one\ntwo\n", Rgb(1, 2, 3), kTextOpaque);
  surface.SetFont("Gothic", 6, 12);
  surface.DrawFormat(7, 8, "%d-%s", 12, "x");
  SetTextRenderer(nullptr);
  ASSERT_EQ(renderer.calls.size(), 4u);
  EXPECT_EQ(renderer.calls[1].line, "two");
  EXPECT_EQ(renderer.calls[1].y, 24);
  EXPECT_EQ(renderer.calls[2].y, 44);
  EXPECT_FALSE(renderer.calls[0].transparent);
  EXPECT_EQ(renderer.calls[0].font, "");
  EXPECT_EQ(renderer.calls[3].line, "12-x");
  EXPECT_EQ(renderer.calls[3].colour, Rgb(255, 255, 255));
  EXPECT_TRUE(renderer.calls[3].transparent);
  EXPECT_EQ(renderer.calls[3].font, "Gothic");
}

}  // namespace
}  // namespace velmora::testing
