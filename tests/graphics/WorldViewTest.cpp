#include <gtest/gtest.h>

#include "core/SaveData.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/ProjectPalette.h"
#include "graphics/SamplePictures.h"
#include "graphics/worldview/WorldView.h"
#include "project/WorldEditState.h"
#include "project/WorldMap.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora::testing {
namespace {

constexpr int kBackColour = 20;

// The sample's sheets, a map of three chips (pictures 7, 0 and one beyond
// the sheet) and a view of 320 x 240 dots.
class WorldView : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(WriteSamplePictures());
    ASSERT_TRUE(LoadPaletteBitmaps());
    ASSERT_TRUE(LoadFixedBitmaps("", "bmp\\WorldBack.bmp"));
    ASSERT_TRUE(view.CreateSurface(320, 240, 32, false));
    ASSERT_TRUE(expected.CreateSurface(320, 240, 32, false));
    for (int graphic : {7, 0, 80}) {
      map.m_vecChips.emplace_back();
      map.m_vecChips.back().m_iGraphic = graphic;
    }
    map.m_iBackColor = kBackColour;
  }
  void TearDown() override {
    FreeFixedBitmaps();
    g_bNoSave = 0;
  }
  cColourRef At(int x, int y) const { return view.Image().ColourAt(x, y); }
  static cColourRef Back() { return ColourOf(ProjectPalette()[kBackColour]); }
  void PlaceEvent(int x, int y, int worldNo, int graphic) {
    cEdWorldEvent event;
    event.m_vecPages[0].m_iWorldNo = worldNo;
    event.m_vecPages[0].m_iGraphic = graphic;
    map.PlaceEvent(event, x, y);
  }

  cTempProject project;
  cScriptedPrompt prompt;
  cEdWorldMap map;
  cSurface view;
  cSurface expected;
};

TEST_F(WorldView, ChipsComeFromTheirSheetCellAndUnknownChipsShowTheBackground) {
  map.SetCell(1, 0, 0);  // picture 7: column 2, row 1 of the sheet
  map.SetCell(2, 0, 12);
  map.SetCell(3, 0, -3);
  map.SetCell(4, 0, 2);
  map.SetCell(0, 0, 1);
  RenderWorldView(map, view, 0, 0, {});
  expected.Blt(0, 0, 32, 32, FixedBitmap(kFixedWorldChip), 64, 32, false);
  EXPECT_EQ(At(48, 16), expected.Image().ColourAt(16, 16));
  expected.Blt(0, 0, 32, 32, FixedBitmap(kFixedWorldChip), 0, 0, false);
  EXPECT_EQ(At(16, 16), expected.Image().ColourAt(16, 16));
  for (int x : {2, 3, 4}) EXPECT_EQ(At(x * 32 + 16, 16), Back()) << "cell " << x;
  EXPECT_EQ(At(0, 5), 0xFFFFFFu) << "grid";
}

TEST_F(WorldView, TheBackgroundPictureFollowsTheScrollOrigin) {
  map.m_bUseBackImage = 1;
  map.SetCell(3, 2, 12);
  RenderWorldView(map, view, 2, 1, {});
  EXPECT_EQ(At(48, 48), FixedBitmap(kFixedWorldBack).Image().ColourAt(112, 80));
}

TEST_F(WorldView, EventsShowTheirFirstPageSmallAndFramed) {
  PlaceEvent(1, 1, 3, 2);
  PlaceEvent(2, 1, 0, 4);
  PlaceEvent(0, 5, 1, 0);
  map.SetCell(1, 1, 12);
  map.SetCell(2, 1, 12);
  RenderWorldView(map, view, 0, 1, {});
  expected.Fill(Back());
  const cSurface& sheet = FixedBitmap(kFixedWorldEvent);
  expected.StretchBltFrom(47, 1, 16, 16, sheet, 0, 64, 32, 32, false);  // numbered: the left cell
  expected.StretchBltFrom(79, 1, 16, 16, sheet, 32, 128, 32, 32, false);
  for (int y = 2; y < 16; ++y) {
    for (int x : {48, 50, 56, 61, 80, 86, 93}) {
      ASSERT_EQ(At(x, y), expected.Image().ColourAt(x, y)) << x << "," << y;
    }
  }
  EXPECT_EQ(At(47, 1), 0x00FFFFu);
  EXPECT_EQ(At(62, 16), 0x00FFFFu);
  EXPECT_EQ(At(15 + 8, 4 * 32 + 1), 0x00FFFFu) << "row 5 seen from row 1";
  EXPECT_NE(At(15, 0 * 32 + 1), 0x00FFFFu) << "scrolled out of view";
}

TEST_F(WorldView, TheCursorShowsThePickRectangleOrTheBrush) {
  cEdWorldEditState state;
  state.m_iBrushW = 2;
  state.m_iBrushH = 1;
  const cCellFrame brush = WorldCursorFrame(state, 3, 2);
  EXPECT_EQ(brush.colour, 0xFF0080u);
  RenderWorldView(map, view, 0, 0, brush);
  EXPECT_EQ(At(100, 65), 0xFF0080u);
  EXPECT_NE(At(100, 97), 0xFF0080u) << "one row high";

  state.m_bPicking = 1;
  state.m_iPickX = 5;
  state.m_iPickY = 4;
  const cCellFrame pick = WorldCursorFrame(state, 3, 2);
  EXPECT_EQ(pick.x, 3);
  EXPECT_EQ(pick.w, 3);
  EXPECT_EQ(pick.h, 3);
  EXPECT_EQ(pick.colour, 0x8000FFu);
}

TEST_F(WorldView, DamagedValuesDrawNothingAndReachNoFurtherThanTheirSheets) {
  map.m_vecChips[1].m_iGraphic = -6;
  map.SetCell(0, 0, 1);
  map.m_iBackColor = 5000;
  map.m_bUseBackImage = 1;
  PlaceEvent(1, 0, 7, 999);
  PlaceEvent(2, 0, 0, -2);
  map.m_vecEvents.back().m_vecPages.clear();
  RenderWorldView(map, view, -3, 140, {});
  map.m_bUseBackImage = 0;
  RenderWorldView(map, view, 0, 0, {});
  EXPECT_EQ(At(16, 16), ColourOf(ProjectPalette()[255])) << "a colour beyond the table takes its last";
  EXPECT_EQ(At(79, 1), 0x00FFFFu) << "an event without pages still shows where it stands";
}

}  // namespace
}  // namespace velmora::testing
