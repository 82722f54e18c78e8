#include <gtest/gtest.h>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/Palette.h"
#include "core/PrjOption.h"
#include "support/TempProject.h"
#include "OldFile.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cTempProject;
using testing::ReadAsVersion;
using testing::ReadBytes;
using testing::WriteBytes;

TEST(PaletteEntryTest, NewEntriesHaveTheirDefaultsAndFlagCounts) {
  cEdBlock block;
  cEdChara chara;
  cEdItem item;
  EXPECT_EQ(11u, block.m_bbInherit.size());
  EXPECT_EQ(37u, chara.m_bbInherit.size());
  EXPECT_EQ(13u, item.m_bbInherit.size());
  EXPECT_EQ(1, block.m_nBlockType);
  EXPECT_EQ(-1, block.m_nNoHitForce);
  EXPECT_EQ(10, chara.m_nHp);
  EXPECT_EQ(3, chara.m_nZ);
  EXPECT_EQ(6, item.m_nZ);
  EXPECT_EQ(2, item.m_nGraphicKind);
}

TEST(PaletteEntryTest, RoundTripKeepsEveryPartBehindTheBlocks) {
  cTempProject project;
  cEdChara chara;
  chara.m_strName = "hero";
  chara.m_nGraphicNo = 5;
  chara.m_nPosX = 3;
  chara.m_nPosY = 4;
  chara.m_nHeldItem = 2;
  chara.m_bbInherit[36] = 0;
  chara.m_vCond.resize(1);
  chara.m_vCond[0].m_nKind = 1;
  chara.m_vFlow.resize(1);
  chara.m_vFlow[0].m_strMemo = "memo";
  ASSERT_EQ(1, chara.SaveFile("c.dat"));
  cEdChara loaded;
  ASSERT_EQ(1, loaded.LoadFile("c.dat"));
  EXPECT_TRUE(loaded == chara);
  EXPECT_EQ(2, loaded.m_nHeldItem);
  EXPECT_EQ(3, loaded.m_nPosX);
  loaded.m_vFlow[0].m_strMemo = "other";
  EXPECT_FALSE(loaded == chara);
}

TEST(PaletteEntryTest, OldCharactersGainTheirFlagsAndFields) {
  cEdChara chara;
  chara.m_nGraphicNo = 1;
  for (size_t i = 0; i < chara.m_bbInherit.size(); ++i) chara.m_bbInherit[i] = static_cast<uint8_t>(i % 2 == 0 ? 0 : 2);
  chara.m_nBodyHitRange = 2;
  chara.m_nDefense = 77;
  chara.m_nInvincibleFx = 5;
  chara.m_nStartEffectMode = 2;
  chara.m_nGraphicKind = 3;
  chara.m_nGraphicNo = 119;
  cEdChara loaded = ReadAsVersion(160, chara);
  ASSERT_EQ(37u, loaded.m_bbInherit.size());
  EXPECT_EQ(0, loaded.m_nDefense);
  EXPECT_EQ(1, loaded.m_nInvincibleFx);
  EXPECT_EQ(0, loaded.m_nStartEffectMode);
  EXPECT_EQ(0, loaded.m_nBodyHitRange);  // absent below 201, reset there
  EXPECT_EQ(119, loaded.m_nGraphicNo);   // shot pictures move up, at most to 119
  // Bytes inserted at 27 (168), 24 (201) and 21 (210), each in the
  // numbering of its time: they end at 防御力, 体当たりの当たり判定 and
  // オートスクロールとシンクロ.
  EXPECT_EQ(1, loaded.m_bbInherit[21]);
  EXPECT_EQ(1, loaded.m_bbInherit[25]);
  EXPECT_EQ(1, loaded.m_bbInherit[29]);
  EXPECT_EQ(2, loaded.m_bbInherit[19]);  // untouched before the insertions
  EXPECT_EQ(2, loaded.m_bbInherit[22]);  // old 21 moved up by one

  chara.m_nBodyHitRange = 2;
  EXPECT_EQ(3, ReadAsVersion(205, chara).m_nBodyHitRange);
  EXPECT_EQ(2, ReadAsVersion(206, chara).m_nBodyHitRange);
}

TEST(PaletteEntryTest, ChecksRepairWhatCannotStand) {
  cEdBlock block;
  block.m_nGraphicNo = 0;
  block.m_nBlockType = 2;
  block.m_bNoSummon = 1;
  block.CheckRefs();
  EXPECT_EQ(0, block.m_nBlockType);
  EXPECT_EQ(0, block.m_bNoSummon);

  cEdItem item;
  item.m_nGiant = 0;
  item.CheckRefs();
  EXPECT_EQ(1, item.m_nGiant);

  cEdChara player;
  player.m_nControl = 0;
  player.m_nBlock = 1;
  player.m_nCloneCount = 4;
  player.m_vFlow.resize(2);
  player.m_vFlow[1].m_strMemo = "kept";
  player.CheckRefs();
  EXPECT_EQ(0, player.m_nBlock);
  EXPECT_EQ(0, player.m_nCloneCount);
  ASSERT_EQ(1u, player.m_vFlow.size());
  EXPECT_EQ("kept", player.m_vFlow[0].m_strMemo);
}

TEST(PaletteTest, EmptyCommonPaletteOpensWithTwoEntriesPerKind) {
  cTempProject project;
  cBytes file;
  file.U32(950).I32(0).I32(0).I32(0).I32(0).I32(0);
  WriteBytes("p.cplt4", file.Data());
  ProjectOption().m_DefChara.m_strName = "default chara";
  cPalette palette;
  ASSERT_EQ(1, palette.LoadFile("p.cplt4"));
  ASSERT_EQ(2u, palette.m_vecBlockPlt.size());
  ASSERT_EQ(2u, palette.m_vecCharaPlt.size());
  ASSERT_EQ(2u, palette.m_vecItemPlt.size());
  EXPECT_EQ("default chara", palette.m_vecCharaPlt[1].m_strName);
  ProjectOption().SetUp();
}

TEST(PaletteTest, CommonPaletteSavesTwoZeroCountsAndInheritsNothing) {
  cTempProject project;
  cPalette palette;
  palette.m_vecBlockPlt.resize(3);
  palette.m_vecBlockPlt[0].m_strName = "blank is reset";
  palette.m_vecBlockPlt[2].m_strName = "two";
  palette.m_vecBlockPlt[2].m_bbInherit[0] = 1;
  ASSERT_EQ(1, palette.SaveFile("p.cplt4"));
  const std::vector<uint8_t> bytes = ReadBytes("p.cplt4");
  ASSERT_GE(bytes.size(), 16u);
  EXPECT_EQ((std::vector<uint8_t>{0xb6, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0}),
            std::vector<uint8_t>(bytes.begin(), bytes.begin() + 16));
  cPalette loaded;
  ASSERT_EQ(1, loaded.LoadFile("p.cplt4"));
  ASSERT_EQ(3u, loaded.m_vecBlockPlt.size());
  EXPECT_EQ("", loaded.m_vecBlockPlt[0].m_strName);
  EXPECT_EQ("two", loaded.m_vecBlockPlt[2].m_strName);
  EXPECT_EQ(0, loaded.m_vecBlockPlt[2].m_bbInherit[0]);
  EXPECT_EQ(2u, loaded.m_vecItemPlt.size());
}

}  // namespace
}  // namespace velmora
