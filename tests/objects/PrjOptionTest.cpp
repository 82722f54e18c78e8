#include <gtest/gtest.h>

#include "core/PrjOption.h"
#include "OldFile.h"

namespace velmora {
namespace {

using testing::ReadAsVersion;

// Flags whose value is their own index, so moves show.
void NumberFlags(PrjOption& option) {
  for (auto& row : option.m_vDefFlags) {
    for (auto& flags : row) {
      for (size_t i = 0; i < flags.size(); ++i) flags[i] = static_cast<uint8_t>(i + 2);
    }
  }
}

TEST(PrjOptionTest, DefaultsFollowTheThreeMoments) {
  PrjOption option;
  EXPECT_EQ(0, option.m_anDefSrc[kMomentStage][kKindChara]);
  EXPECT_EQ(1, option.m_anDefSrc[kMomentCommonPlaced][kKindChara]);
  EXPECT_EQ(2, option.m_anDefSrc[kMomentStagePlaced][kKindItem]);
  EXPECT_EQ(std::vector<uint8_t>(37, 0), option.m_vDefFlags[kMomentStage][kKindChara]);
  const std::vector<uint8_t>& placed = option.m_vDefFlags[kMomentCommonPlaced][kKindChara];
  for (int group : {4, 5, 33, 35}) EXPECT_EQ(0, placed[static_cast<size_t>(group)]) << group;
  EXPECT_EQ(1, placed[36]);
  EXPECT_EQ(placed, option.m_vDefFlags[kMomentStagePlaced][kKindChara]);
  EXPECT_EQ(0, option.m_vDefFlags[kMomentCommonPlaced][kKindBlock][1]);
  EXPECT_TRUE(option.FlagsHaveFullLength());
}

TEST(PrjOptionTest, Version80EndsWithNineFullVectorsAfterEveryInsertion) {
  PrjOption option;
  for (auto& row : option.m_vDefFlags) {
    row[kKindBlock].resize(9);
    row[kKindChara].resize(30);
    row[kKindItem].resize(12);
  }
  NumberFlags(option);
  PrjOption loaded = ReadAsVersion(80, option);
  EXPECT_TRUE(loaded.FlagsHaveFullLength());
  // Item index 7 gained 0 in the stage row and 1 in the others; old 7 moved
  // to 8 and the last element fell off.
  EXPECT_EQ(0, loaded.m_vDefFlags[kMomentStage][kKindItem][7]);
  EXPECT_EQ(1, loaded.m_vDefFlags[kMomentStagePlaced][kKindItem][7]);
  EXPECT_EQ(9, loaded.m_vDefFlags[kMomentStage][kKindItem][8]);
  EXPECT_EQ(13, loaded.m_vDefFlags[kMomentStage][kKindItem][12]);
  // Blocks: index 5 inserted at 88, then resized to 11 at 92.
  const std::vector<uint8_t>& blocks = loaded.m_vDefFlags[kMomentCommonPlaced][kKindBlock];
  EXPECT_EQ((std::vector<uint8_t>{2, 3, 4, 5, 6, 1, 7, 8, 9, 10, 0}), blocks);
  // Characters: 30 read, resized to 37 at 81, then 14, 3, 27, 24, 21.
  const std::vector<uint8_t>& charas = loaded.m_vDefFlags[kMomentStage][kKindChara];
  // Each insertion moves the ones made before it at higher indexes.
  EXPECT_EQ(2, charas[0]);
  EXPECT_EQ(0, charas[3]);
  EXPECT_EQ(5, charas[4]);
  EXPECT_EQ(0, charas[15]);
  EXPECT_EQ(0, charas[21]);
  EXPECT_EQ(1, loaded.m_vDefFlags[kMomentCommonPlaced][kKindChara][15]);
}

TEST(PrjOptionTest, OldStageHandlingOfOldFilesIsMoveNotDelete) {
  PrjOption option;
  EXPECT_EQ(0, ReadAsVersion(141, option).m_nOldStage);
  EXPECT_EQ(2, ReadAsVersion(142, option).m_nOldStage);
  option.m_nOldStage = 1;
  option.m_nBackupHours = 5;
  PrjOption loaded = ReadAsVersion(950, option);
  EXPECT_EQ(1, loaded.m_nOldStage);
  EXPECT_EQ(5, loaded.m_nBackupHours);
}

TEST(PrjOptionTest, DefaultEntriesNeverKeepInheritFlags) {
  PrjOption option;
  option.m_DefChara.m_bbInherit[3] = 1;
  option.m_DefChara.m_strName = "def";
  PrjOption loaded = ReadAsVersion(950, option);
  EXPECT_EQ(std::vector<uint8_t>(37, 0), loaded.m_DefChara.m_bbInherit);
  EXPECT_EQ("def", loaded.m_DefChara.m_strName);
}

}  // namespace
}  // namespace velmora
