#include <gtest/gtest.h>

#include "platform/TextCodec.h"
#include "project/WorldMap.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cTempProject;
using testing::WriteBytes;

TEST(WorldMapTest, PitchIsTheSmallestPowerOfTwoNotBelowTheWidth) {
  EXPECT_EQ(5, PitchShiftFor(20));
  EXPECT_EQ(5, PitchShiftFor(32));
  EXPECT_EQ(6, PitchShiftFor(33));
  EXPECT_EQ(0, PitchShiftFor(1));
  cEdWorldMap map;
  EXPECT_EQ(32u * 15u, map.m_vecCells.size());
  EXPECT_EQ(ToCp932("デフォルト"), map.m_vecTemplates.at(0).m_strName);
  EXPECT_EQ(-1, map.CellIndex(20, 0));
  EXPECT_EQ(2 * 32 + 3, map.CellIndex(3, 2));
}

TEST(WorldMapTest, ResizingKeepsCellsInPlaceAcrossAPitchChange) {
  cEdWorldMap map;
  ASSERT_TRUE(map.SetSize(33, 15));
  EXPECT_EQ(64, map.m_nPitch);
  map.SetCell(19, 14, 7);
  map.SetCell(25, 1, 8);
  map.SetCell(0, 3, 9);
  EXPECT_EQ(7, map.m_vecCells[14 * 64 + 19]);
  ASSERT_TRUE(map.SetSize(20, 15));
  EXPECT_EQ(32, map.m_nPitch);
  EXPECT_EQ(5, map.m_nPitch_Shift);
  EXPECT_EQ(32u * 15u, map.m_vecCells.size());
  EXPECT_EQ(7, map.Cell(19, 14));
  EXPECT_EQ(9, map.Cell(0, 3));
  ASSERT_TRUE(map.SetSize(40, 16));
  EXPECT_EQ(0, map.Cell(25, 1));  // cut by the shrink, not brought back
  EXPECT_EQ(0, map.Cell(39, 15));
  EXPECT_EQ(7, map.Cell(19, 14));
  EXPECT_FALSE(map.SetSize(0, 15));
  EXPECT_EQ(40, map.m_nWidth);
}

TEST(WorldMapTest, SanitizeClearsUnknownChipsAndDropsEventsOutside) {
  cTempProject project;
  cEdWorldMap map;
  map.m_vecChips.resize(10);
  map.SetCell(4, 4, 12);
  map.SetCell(5, 4, 9);
  ASSERT_TRUE(map.SetSize(40, 15));
  map.PlaceEvent(cEdWorldEvent(), 30, 2);
  map.PlaceEvent(cEdWorldEvent(), 3, 3);
  map.PlaceEvent(cEdWorldEvent(), 31, 2);
  map.m_iStartX = 35;
  ASSERT_EQ(1, map.SaveFile("w.dat"));
  ASSERT_TRUE(map.SetSize(20, 15));
  ASSERT_EQ(1, map.SaveFile("w.dat"));
  cEdWorldMap loaded;
  ASSERT_EQ(1, loaded.LoadFile("w.dat"));
  EXPECT_EQ(0, loaded.Cell(4, 4));
  EXPECT_EQ(9, loaded.Cell(5, 4));
  ASSERT_EQ(1u, loaded.m_vecEvents.size());
  EXPECT_TRUE(loaded.HasEventAt(3, 3));
  EXPECT_EQ(19, loaded.m_iStartX);
}

TEST(WorldMapTest, PlacingReplacesTheEventOnACellAndWorldNumbersSkipOnlyWorldPages) {
  cEdWorldMap map;
  auto event = [](std::initializer_list<std::pair<int, int>> pages) {
    cEdWorldEvent e;
    e.m_vecPages.clear();
    for (auto [type, number] : pages) {
      cEdWorldPage page;
      page.m_iType = type;
      page.m_iWorldNo = number;
      e.m_vecPages.push_back(page);
    }
    return e;
  };
  map.PlaceEvent(event({{0, 1}}), 1, 1);
  map.PlaceEvent(event({{0, 2}, {1, 3}}), 2, 1);
  map.PlaceEvent(event({{0, 4}}), 3, 1);
  map.PlaceEvent(event({{1, 7}}), 4, 1);
  EXPECT_EQ(3, map.NextWorldNo(nullptr));
  map.PlaceEvent(event({{0, 3}}), 5, 1);
  EXPECT_EQ(5, map.NextWorldNo(nullptr));
  EXPECT_EQ(3, map.NextWorldNo(map.EventAt(5, 1)));
  map.PlaceEvent(event({{0, 9}}), 5, 1);
  EXPECT_EQ(5u, map.m_vecEvents.size());
  EXPECT_EQ(9, map.EventAt(5, 1)->m_vecPages[0].m_iWorldNo);

  cEdWorldEvent fresh = event({{0, 0}, {2, 0}, {0, 0}});
  map.AssignWorldNos(fresh, nullptr);
  EXPECT_EQ(3, fresh.m_vecPages[0].m_iWorldNo);
  EXPECT_EQ(0, fresh.m_vecPages[1].m_iWorldNo);
  EXPECT_EQ(3, fresh.m_vecPages[2].m_iWorldNo);

  map.RemoveEvent(map.EventAt(2, 1));
  EXPECT_FALSE(map.HasEventAt(2, 1));
  map.RemoveEventsAt(1, 1);
  EXPECT_EQ(3u, map.m_vecEvents.size());
}

TEST(WorldMapTest, OldFilesGetTheTenFixedChipsAndOldPagesNoScoreCondition) {
  cTempProject project;
  // Version 208: blocks, no chips, a grid of 32 × 15 with cell (2, 1) = 7,
  // one event of one page without the score condition, no templates.
  cBytes b;
  b.U32(208).I32(8).I32(20).I32(15).I32(32).I32(5).I32(9).I32(7).I32(16).I32(0);
  b.I32(2).Str("old").Str("");
  b.I32(0);
  b.I32(32 * 15);
  for (int i = 0; i < 32 * 15; ++i) b.I32(i == 32 + 2 ? 7 : 0);
  b.I32(1).I32(2).I32(4).I32(5).I32(1).Str("ev");
  b.I32(1).I32(10).I32(0).I32(0).I32(3).I32(0).I32(0).I32(0).I32(0).I32(0).I32(0).I32(0);
  b.I32(2).Str("w").Str("data\\stg4\\a.stg4_950");
  b.I32(0);
  WriteBytes("w.dat", b.Data());
  cEdWorldMap map;
  ASSERT_EQ(1, map.LoadFile("w.dat"));
  ASSERT_EQ(10u, map.m_vecChips.size());
  EXPECT_EQ(1, map.m_vecChips[4].m_bBlocked);
  EXPECT_EQ(ToCp932("移動不可"), map.m_vecChips[4].m_strName);
  EXPECT_EQ(0, map.m_vecChips[5].m_bBlocked);
  EXPECT_EQ(ToCp932("移動可"), map.m_vecChips[9].m_strName);
  EXPECT_EQ(9, map.m_vecChips[9].m_iGraphic);
  EXPECT_EQ(7, map.Cell(2, 1));
  ASSERT_EQ(1u, map.m_vecEvents.size());
  const cEdWorldPage& page = map.m_vecEvents[0].m_vecPages.at(0);
  EXPECT_EQ(3, page.m_iWorldNo);
  EXPECT_EQ(0, page.m_iCondScore);
  EXPECT_EQ(1, page.m_iVarVar);
  EXPECT_EQ("data\\stg4\\a.stg4_950", page.m_strStartStage);
  EXPECT_TRUE(map.m_vecTemplates.empty());
}

TEST(WorldMapTest, DamagedGridShapeIsRepairedNotTrusted) {
  cTempProject project;
  cEdWorldMap map;
  map.m_nWidth = 100000;
  map.m_nPitch = 4;
  map.m_vecCells.assign(3, 1);
  map.m_vecChips.resize(2);
  // Saved as is: Sanitize's walk must not reach past the short grid.
  ASSERT_EQ(1, map.SaveFile("w.dat"));
  cEdWorldMap loaded;
  ASSERT_EQ(1, loaded.LoadFile("w.dat"));
  EXPECT_EQ(cEdWorldMap::kMaxWidth, loaded.m_nWidth);
  EXPECT_EQ(256, loaded.m_nPitch);
  EXPECT_EQ(256u * 15u, loaded.m_vecCells.size());
  EXPECT_EQ(1, loaded.Cell(2, 0));
}

}  // namespace
}  // namespace velmora
