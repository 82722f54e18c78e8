#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "objects/OldFile.h"
#include "objects/RefSizes.h"
#include "stage/SparseStage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cTempProject;
using testing::ReadBytes;

// Two rows in every database list and in each common palette list, so
// that loading repairs references beyond them.
class cSmallProject : public cRefSizes {
 public:
  int DbListSize(eDbList) const override { return 2; }
  int PaletteListSize(ePalette palette, ePaletteList list) const override {
    return palette == ePalette::Common ? 2 : cRefSizes::PaletteListSize(palette, list);
  }
};

template <class T>
T& Cell(cStage& stage, std::vector<T>& layer, int x, int y) {
  return layer[static_cast<size_t>(stage.CellIndex(x, y))];
}

// The occupied cells of a whole layer inside the stage, as placements.
template <class T>
std::vector<cPlacement<T>> Occupied(const cStage& stage, const std::vector<T>& layer) {
  std::vector<cPlacement<T>> placed;
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const int index = stage.CellIndex(x, y);
      if (IsOccupied(layer[static_cast<size_t>(index)])) placed.push_back({index, layer[static_cast<size_t>(index)]});
    }
  }
  return placed;
}

template <class T>
bool Same(const std::vector<cPlacement<T>>& a, const std::vector<cPlacement<T>>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const cPlacement<T>& p, const cPlacement<T>& q) { return p.index == q.index && p.cell == q.cell; });
}

void ExpectSameAsWholeRead(const std::string& path) {
  cStage whole;
  cSparseStage sparse;
  ASSERT_EQ(1, whole.LoadWholeFile(path));
  ASSERT_EQ(1, sparse.LoadWholeFile(path));
  EXPECT_TRUE(Same(Occupied(whole, whole.m_vecBlockCell), sparse.m_vecBlockPlaced));
  EXPECT_TRUE(Same(Occupied(whole, whole.m_vecCharaCell), sparse.m_vecCharaPlaced));
  EXPECT_TRUE(Same(Occupied(whole, whole.m_vecItemCell), sparse.m_vecItemPlaced));
  EXPECT_TRUE(whole.m_vecCharaPlt == sparse.m_vecCharaPlt);
  EXPECT_EQ(whole.m_vecStageVar.size(), sparse.m_vecStageVar.size());
  EXPECT_EQ(whole.m_iBgm, sparse.m_iBgm);
  EXPECT_TRUE(sparse.m_vecBlockCell.empty() && sparse.m_vecCharaCell.empty() && sparse.m_vecItemCell.empty());
}

TEST(SparseStageTest, HoldsTheOccupiedCellsOfTheWholeReadCheckedAlike) {
  cTempProject project;
  cStage stage;
  stage.InitDefault();
  stage.SetSize(33, 15, 0, 0);  // a pitch of 64, wider than the stage
  stage.m_iBgm = 1;
  cEdBlock& giver = Cell(stage, stage.m_vecBlockCell, 32, 14);
  giver.m_nGraphicNo = 1;
  giver.m_nGetItemSrc = 1;
  giver.m_nGetItemNo = 5;  // beyond the common items
  cEdChara& enemy = Cell(stage, stage.m_vecCharaCell, 0, 3);
  enemy.m_nGraphicNo = 2;
  enemy.m_nControl = 1;
  enemy.m_nAnimeSet = 7;  // beyond the sets
  enemy.m_nInheritSrc = 2;
  enemy.m_nInheritNo = 1;
  enemy.m_bbInherit = std::vector<uint8_t>(37, 0);
  enemy.m_bbInherit.data()[0] = 1;  // the name
  stage.Normalize();  // fills the palettes to their first entries
  stage.m_vecCharaPlt[1].m_strName = "boss";
  Cell(stage, stage.m_vecItemCell, 5, 5).m_nGraphicNo = 3;
  Cell(stage, stage.m_vecItemCell, 32, 14).m_nGraphicNo = 4;  // over the block
  Cell(stage, stage.m_vecItemCell, 6, 5).m_nGetSound = 9;  // no graphic: not on the stage

  cSmallProject small;
  for (uint32_t version : {kCurrentVersion, 150u}) {
    {
      testing::cWriteVersion as(version);
      ASSERT_EQ(1, stage.SaveFile("s.stg4_950"));
    }
    InstallRefSizes(&small);
    ExpectSameAsWholeRead("s.stg4_950");
    InstallRefSizes(nullptr);
  }
  cSparseStage sparse;
  ASSERT_EQ(1, sparse.LoadWholeFile("s.stg4_950"));
  ASSERT_EQ(1u, sparse.m_vecCharaPlaced.size());
  EXPECT_EQ("boss", sparse.m_vecCharaPlaced[0].cell.m_strName);
  EXPECT_EQ(0, sparse.PosOf(sparse.m_vecCharaPlaced[0].index).x);
  EXPECT_EQ(3, sparse.PosOf(sparse.m_vecCharaPlaced[0].index).y);
}

void PatchInt32(std::vector<uint8_t>& bytes, int32_t from, int32_t to) {
  uint8_t pattern[4];
  std::memcpy(pattern, &from, 4);
  auto at = std::search(bytes.begin(), bytes.end(), pattern, pattern + 4);
  ASSERT_NE(bytes.end(), at);
  std::memcpy(&*at, &to, 4);
}

TEST(SparseStageTest, ACellPlacedTwiceOrOutOfOrderReadsAsInAWholeLayer) {
  cTempProject project;
  cStage stage;
  stage.InitDefault();
  stage.SetSize(512, 512, 0, 0);
  for (int16_t x = 0x45; x <= 0x47; ++x) Cell(stage, stage.m_vecBlockCell, x, 0x91).m_nGraphicNo = x;
  ASSERT_EQ(1, stage.SaveFile("s.stg4_950"));
  std::vector<uint8_t> bytes = ReadBytes("s.stg4_950");
  const int32_t first = stage.CellIndex(0x45, 0x91);
  PatchInt32(bytes, first, first + 2);  // the first placement now names the last cell too
  testing::WriteBytes("s.stg4_950", bytes);

  ExpectSameAsWholeRead("s.stg4_950");
  cSparseStage sparse;
  ASSERT_EQ(1, sparse.LoadWholeFile("s.stg4_950"));
  ASSERT_EQ(2u, sparse.m_vecBlockPlaced.size());
  EXPECT_EQ(0x46, sparse.m_vecBlockPlaced[0].cell.m_nGraphicNo);
  EXPECT_EQ(0x47, sparse.m_vecBlockPlaced[1].cell.m_nGraphicNo);
}

TEST(SparseStageTest, DamageIsRefused) {
  cTempProject project;
  cStage stage;
  stage.InitDefault();
  Cell(stage, stage.m_vecBlockCell, 19, 14).m_nGraphicNo = 1;
  ASSERT_EQ(1, stage.SaveFile("s.stg4_950"));
  const std::vector<uint8_t> good = ReadBytes("s.stg4_950");

  std::vector<uint8_t> bytes = good;
  const int32_t huge = 1 << 30;
  std::memcpy(bytes.data() + 8, &huge, 4);  // the width
  testing::WriteBytes("s.stg4_950", bytes);
  cSparseStage sparse;
  EXPECT_EQ(0, sparse.LoadWholeFile("s.stg4_950"));

  bytes = good;
  PatchInt32(bytes, stage.CellIndex(19, 14), 32 * 15);  // one beyond the layer
  testing::WriteBytes("s.stg4_950", bytes);
  EXPECT_EQ(0, sparse.LoadWholeFile("s.stg4_950"));

  bytes.assign(good.begin(), good.end() - 40);
  testing::WriteBytes("s.stg4_950", bytes);
  EXPECT_EQ(0, sparse.LoadWholeFile("s.stg4_950"));
}

}  // namespace
}  // namespace velmora
