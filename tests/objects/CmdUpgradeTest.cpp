#include <gtest/gtest.h>

#include "objects/Cmd.h"
#include "objects/CmdTable.h"
#include "objects/Flow.h"
#include "OldFile.h"

namespace velmora::testing {
namespace {

using Params = std::vector<int32_t>;

cEdCmd Cmd(int kind, Params params, bool item = false) {
  cEdCmd c;
  c.m_bItemCmd = item ? 1 : 0;
  c.m_nKind = static_cast<uint8_t>(kind);
  c.m_vParam = std::move(params);
  return c;
}

Params Count(int n, int32_t value = 0) { return Params(static_cast<size_t>(n), value); }

// Old files number the kinds from 24 on one lower.
TEST(CmdUpgrade, KindsFrom24RiseBelow734) {
  EXPECT_EQ(ReadAsVersion(733, Cmd(23, Count(5))).m_nKind, kCmdStatusOp2);
  EXPECT_EQ(ReadAsVersion(733, Cmd(24, Count(2))).m_nKind, kCmdGetItem);
  EXPECT_EQ(ReadAsVersion(733, Cmd(38, Count(2))).m_nKind, kCmdLoop);
  EXPECT_EQ(ReadAsVersion(734, Cmd(24, Count(3))).m_nKind, kCmdVanish);
}

TEST(CmdUpgrade, StageClear) {
  // 145 size 11, 722 the next-stage row moved, 944 the replay box.
  EXPECT_EQ(ReadAsVersion(144, Cmd(kCmdStageClear, {3})).m_vParam, (Params{4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(ReadAsVersion(721, Cmd(kCmdStageClear, Count(11, 1))).m_vParam[0], 1);
  EXPECT_EQ(ReadAsVersion(721, Cmd(kCmdStageClear, Count(11, 2))).m_vParam[0], 3);
  EXPECT_EQ(ReadAsVersion(914, Cmd(kCmdStageClear, {0, 5})).m_vParam, (Params{0, 5, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(ReadAsVersion(943, Cmd(kCmdStageClear, Count(11, 7))).m_vParam[10], 1);
  EXPECT_EQ(ReadAsVersion(944, Cmd(kCmdStageClear, Count(11, 7))).m_vParam[10], 7);
}

TEST(CmdUpgrade, Bgm) {
  cEdCmd c = ReadAsVersion(165, Cmd(35, {5}));
  EXPECT_EQ(c.m_nKind, kCmdBgm);
  EXPECT_EQ(c.m_vParam, (Params{5, 1}));
}

TEST(CmdUpgrade, StatusOperationRowsObjectsAndCoordinates) {
  Params p = Count(14);
  p[3] = 1;
  p[4] = 10;
  p[6] = 2;
  p[12] = 2;
  p[13] = 12;
  cEdCmd c = ReadAsVersion(167, Cmd(kCmdStatusOp, p));
  Params expected = Count(22);
  expected[3] = 1;
  expected[4] = 14;  // 168, 203, 882
  expected[6] = 2;
  expected[12] = 5;   // the system moved from 2 to 5 at 767
  expected[13] = 12;  // a system status never moved
  expected[20] = 2;
  EXPECT_EQ(c.m_vParam, expected);

  p = Count(18);
  p[3] = 0;
  p[4] = 5;
  EXPECT_EQ(ReadAsVersion(202, Cmd(kCmdStatusOp, p)).m_vParam[4], 8);

  p = Count(20);
  p[3] = 5;
  p[4] = 7;
  p[6] = 2;
  p[12] = 1;
  p[13] = 6;
  p[18] = p[19] = 9;
  c = ReadAsVersion(881, Cmd(kCmdStatusOp, p));
  EXPECT_EQ(c.m_vParam[4], 7);
  EXPECT_EQ(c.m_vParam[13], 8);
  EXPECT_EQ(c.m_vParam[18], 0);
  EXPECT_EQ(c.m_vParam[20], 2);
  EXPECT_EQ(c.m_vParam[21], 0);
  EXPECT_EQ(ReadAsVersion(892, Cmd(kCmdStatusOp, Count(22, 1))).m_vParam, Count(22, 1));
}

TEST(CmdUpgrade, TargetSetting) {
  Params p;
  for (int i = 1; i <= 15; ++i) p.push_back(i);
  EXPECT_EQ(ReadAsVersion(188, Cmd(kCmdTargetSet, p)).m_vParam,
            (Params{0, 1, 2, 0, 3, 4, 5, 6, 7, 8, 9, 0, 1, 12, 13, 0}));
  Params ones = Count(16, 5);
  Params expected = {0, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5};
  EXPECT_EQ(ReadAsVersion(766, Cmd(kCmdTargetSet, ones)).m_vParam, expected);
}

TEST(CmdUpgrade, PictureAndScreenEffects) {
  Params p;
  for (int i = 1; i <= 15; ++i) p.push_back(i);
  cEdCmd c = ReadAsVersion(193, Cmd(31, p));
  EXPECT_EQ(c.m_nKind, kCmdPicture);
  EXPECT_EQ(c.m_vParam, (Params{1, 2, 3, 4, 5, 6, 1, 7, 8, 9, 10, 0, 0, 0, 0, 15}));
  Params pos = Count(16);
  pos[1] = 4;
  EXPECT_EQ(ReadAsVersion(890, Cmd(kCmdPicture, pos)).m_vParam[1], 5);

  c = ReadAsVersion(194, Cmd(29, {7, 8}));
  EXPECT_EQ(c.m_nKind, kCmdCharaEffect);
  EXPECT_EQ(c.m_vParam, (Params{7, 0, 8}));
  c = ReadAsVersion(194, Cmd(30, {7, 8}));
  EXPECT_EQ(c.m_nKind, kCmdScrEffect);
  EXPECT_EQ(c.m_vParam, (Params{7, 0, 8}));
}

TEST(CmdUpgrade, EffectAndAnime) {
  Params p = Count(8);
  p[1] = 4;
  EXPECT_EQ(ReadAsVersion(890, Cmd(kCmdEffect, p)).m_vParam, (Params{0, 5, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(ReadAsVersion(878, Cmd(kCmdAnime, {3})).m_vParam, (Params{3, 0}));
  EXPECT_EQ(ReadAsVersion(733, Cmd(27, {3, 1})).m_vParam, (Params{3, 0}));
}

TEST(CmdUpgrade, SummonsAndFlowOperation) {
  EXPECT_TRUE(ReadAsVersion(202, Cmd(kCmdSummonChara, {1, 2})).m_vParam.empty());
  EXPECT_TRUE(ReadAsVersion(202, Cmd(kCmdSummonItem, {1})).m_vParam.empty());

  cEdCmd c = ReadAsVersion(202, Cmd(kCmdFlowOp, {1, 2, 3, 4, 5}));
  EXPECT_EQ(c.m_vParam, (Params{1, 2, 3, 0}));
  ASSERT_TRUE(c.m_pCondList);
  EXPECT_EQ(c.m_pCondList->m_bEnabled, 0);
  EXPECT_TRUE(c.m_pCondList->m_vCond.empty());

  // From 764 on the list is in the file, presence word and all.
  cEdCmd stored = Cmd(kCmdFlowOp, {0, 2, 3, 1});
  stored.m_pCondList.Make().m_bEnabled = 1;
  stored.m_pCondList->m_vCond.resize(1);
  EXPECT_EQ(ReadAsVersion(766, stored), stored);
  EXPECT_FALSE(ReadAsVersion(764, Cmd(kCmdFlowOp, Count(4))).m_pCondList);
}

TEST(CmdUpgrade, StatusOperation2) {
  EXPECT_EQ(ReadAsVersion(209, Cmd(kCmdStatusOp2, {1, 6})).m_vParam, (Params{1, 7, 0, 0, 0}));
  EXPECT_EQ(ReadAsVersion(209, Cmd(kCmdStatusOp2, {2, 6})).m_vParam, (Params{5, 6, 0, 0, 0}));
  EXPECT_EQ(ReadAsVersion(819, Cmd(kCmdStatusOp2, {1, 1, 1})).m_vParam, (Params{1, 1, 1, 0, 0}));
}

TEST(CmdUpgrade, GraphicChangeAndShotGraphicsMoveUpToTheLast) {
  EXPECT_EQ(ReadAsVersion(218, Cmd(25, {3, 118, 0})).m_vParam, (Params{3, 119, 0}));
  EXPECT_EQ(ReadAsVersion(218, Cmd(25, {3, 119, 0})).m_vParam, (Params{3, 119, 0}));
  EXPECT_EQ(ReadAsVersion(218, Cmd(25, {2, 5, 0})).m_vParam, (Params{2, 5, 0}));

  cEdCmd shot = Cmd(kCmdShot, {});
  shot.m_pShot.Make().m_nGraphic = 5;
  EXPECT_EQ(ReadAsVersion(219, shot).m_pShot->m_nGraphic, 6);
  shot.m_pShot->m_nGraphic = 119;
  EXPECT_EQ(ReadAsVersion(219, shot).m_pShot->m_nGraphic, 119);
  shot.m_pShot->m_nGraphic = 5;
  EXPECT_EQ(ReadAsVersion(220, shot).m_pShot->m_nGraphic, 5);
}

TEST(CmdUpgrade, MovesOfChargeAndWarp) {
  cEdCmd charge = Cmd(kCmdCharge, {});
  cEdMove& move = charge.m_pMove.Make();
  move.m_nAngle = 30;
  move.m_nAngleClone = 5;
  move.m_bAngleMirror = 0;
  cEdCmd loaded = ReadAsVersion(513, charge);
  EXPECT_EQ(loaded.m_pMove->m_nAngle, 0);
  EXPECT_EQ(loaded.m_pMove->m_nAngleClone, 0);
  EXPECT_EQ(loaded.m_pMove->m_bAngleMirror, 1);
  EXPECT_EQ(ReadAsVersion(514, charge).m_pMove->m_nAngle, 30);

  cEdCmd warp = Cmd(kCmdWarp, {});
  warp.m_pMove.Make().m_nAimType = 2;
  warp.m_pMove->m_bTargetX = 0;
  warp.m_pMove->m_bTargetY = 0;
  loaded = ReadAsVersion(766, warp);
  EXPECT_EQ(loaded.m_pMove->m_nAimType, 5);
  EXPECT_EQ(loaded.m_pMove->m_bTargetX, 1);
  EXPECT_EQ(loaded.m_pMove->m_bTargetY, 1);
  EXPECT_EQ(loaded.m_pMove->m_nWarpOrigin, 2);
  warp.m_pMove->m_nWarpOrigin = 1;
  loaded = ReadAsVersion(892, warp);
  EXPECT_EQ(loaded.m_pMove->m_bTargetX, 0);
  EXPECT_EQ(loaded.m_pMove->m_nWarpOrigin, 1);
}

TEST(CmdUpgrade, Message) {
  Params p = Count(10);
  p[0] = 7;
  Params expected = Count(19);
  expected[0] = 7;
  expected[10] = 1;
  expected[14] = 1;
  expected[16] = 1;
  EXPECT_EQ(ReadAsVersion(544, Cmd(kCmdMessage, p)).m_vParam, expected);

  p = Count(19, 1);
  p[0] = 3;
  cEdCmd c = ReadAsVersion(545, Cmd(kCmdMessage, p));
  EXPECT_EQ(c.m_vParam[10], 0);
  EXPECT_EQ(c.m_vParam[13], 0);
  EXPECT_EQ(c.m_vParam[15], 0);
  EXPECT_EQ(c.m_vParam[17], 0);
  p[0] = 8;
  EXPECT_EQ(ReadAsVersion(890, Cmd(kCmdMessage, p)).m_vParam[0], 9);
}

TEST(CmdUpgrade, TurnRowsOfTheFourTargets) {
  EXPECT_EQ(ReadAsVersion(766, Cmd(kCmdTurn, {4})).m_vParam[0], 10);
  EXPECT_EQ(ReadAsVersion(766, Cmd(kCmdTurn, {3})).m_vParam[0], 3);
}

TEST(CmdUpgrade, ArrangeTargetsFollowTheirKindsParameters) {
  EXPECT_EQ(ReadAsVersion(725, Cmd(37, {})).m_vParam, (Params{11, 0, 0, 0, 0}));
  EXPECT_EQ(ReadAsVersion(726, Cmd(37, {11, 3, 0, 0, 0})).m_vParam[1], 6);
  EXPECT_EQ(ReadAsVersion(726, Cmd(37, {11, 1, 0, 0, 0})).m_vParam[1], 1);
  cEdCmd c = ReadAsVersion(733, Cmd(37, {24, 0, 0, 0, 0}));
  EXPECT_EQ(c.m_nKind, kCmdArrange);
  EXPECT_EQ(c.m_vParam[0], 25);
  EXPECT_EQ(ReadAsVersion(897, Cmd(kCmdArrange, {32, 0, 0, 0, 0})).m_vParam[1], 1);
  EXPECT_EQ(ReadAsVersion(898, Cmd(kCmdArrange, {32, 0, 0, 0, 0})).m_vParam[1], 0);
  EXPECT_EQ(ReadAsVersion(898, Cmd(kCmdArrange, {22, 0, 0, 0, 0})).m_vParam[1], 2);
  EXPECT_EQ(ReadAsVersion(898, Cmd(kCmdArrange, {29, 0, 0, 0, 0})).m_vParam[1], 1);
  EXPECT_EQ(ReadAsVersion(898, Cmd(kCmdArrange, {11, 14, 0, 0, 0})).m_vParam[1], 15);
  EXPECT_EQ(ReadAsVersion(898, Cmd(kCmdArrange, {11, 13, 0, 0, 0})).m_vParam[1], 13);
}

TEST(CmdUpgrade, ItemCommandsUseTheTableLoweredBy15) {
  cEdCmd c = ReadAsVersion(144, Cmd(2, {3}, true));
  EXPECT_EQ(c.m_vParam, (Params{4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(ReadAsVersion(733, Cmd(9, {}, true)).m_nKind, 10);
  EXPECT_EQ(ReadAsVersion(733, Cmd(8, {}, true)).m_nKind, 8);
  EXPECT_EQ(ReadAsVersion(897, Cmd(23, {32, 0, 0, 0, 0}, true)).m_vParam[1], 1);

  // フローの変更 has no part in the rows of フローの操作.
  c = ReadAsVersion(202, Cmd(kItemCmdFlowChange, {7, 8}, true));
  EXPECT_EQ(c.m_vParam, (Params{7, 8}));
  EXPECT_FALSE(c.m_pCondList);
  c = ReadAsVersion(202, Cmd(0, {7}, true));
  EXPECT_EQ(c.m_vParam, (Params{7}));
}

TEST(CmdRecord, NestedPartsRoundTripAndCopiesOwnTheirRecords) {
  cEdCmd c = Cmd(kCmdLine, {});
  c.m_strText = "abc";
  c.m_pMove.Make().m_nSpeed = -7;
  c.m_pShot.Make().m_nPower = 12;
  c.m_vSubFlow.resize(1);
  c.m_vSubFlow[0].m_vCmd.push_back(Cmd(kCmdWait, {}));
  c.m_vParam = {1, -2};
  EXPECT_EQ(ReadAsVersion(950, c), c);

  cEdCmd copy = c;
  copy.m_pMove->m_nSpeed = 3;
  EXPECT_EQ(c.m_pMove->m_nSpeed, -7);
  EXPECT_FALSE(copy == c);
  copy = c;
  EXPECT_EQ(copy, c);
  copy.m_pShot.Clear();
  EXPECT_FALSE(copy == c);
}

}  // namespace
}  // namespace velmora::testing
