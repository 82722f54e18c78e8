#include <gtest/gtest.h>

#include "objects/Move.h"
#include "objects/MoveTables.h"
#include "objects/Shot.h"
#include "OldFile.h"

namespace velmora::testing {
namespace {

TEST(MoveRecord, NewestLayoutWidthsAndDefaults) {
  cTempProject project;
  cEdMove move;
  EXPECT_EQ(move.m_nSpeed, 10);
  EXPECT_EQ(move.m_dTurnRate, 1.0);
  ASSERT_EQ(move.SaveFile("m.dat"), 1);
  // Version, 35 entries of 55 bytes with their count, an empty string block.
  EXPECT_EQ(ReadBytes("m.dat").size(), 4u + 4u + 55u + 4u);

  move.m_dTurnRate = 2.5;
  move.m_nTargetY = -16383;
  move.m_nTargetNo = 3;
  EXPECT_EQ(ReadAsVersion(950, move), move);
}

TEST(MoveUpgrade, FieldsOfOldFilesAndTheOldStillAnimation) {
  cEdMove move;
  move.m_bAngleMirror = 1;
  move.m_nDistUnit = 1;
  move.m_bKeepDir = 1;
  move.m_nAnimeKind = 1;
  cEdMove loaded = ReadAsVersion(157, move);
  EXPECT_EQ(loaded.m_bAngleMirror, 0);
  EXPECT_EQ(loaded.m_nDistUnit, 0);
  EXPECT_EQ(loaded.m_bKeepDir, 0);
  EXPECT_EQ(loaded.m_nAnimeKind, 0);

  loaded = ReadAsVersion(829, move);
  EXPECT_EQ(loaded.m_bAngleMirror, 1);
  EXPECT_EQ(loaded.m_nAnimeKind, 2);  // その他
  move.m_nAnimeKind = 0;
  EXPECT_EQ(ReadAsVersion(829, move).m_nAnimeKind, 0);
  move.m_nAnimeKind = 1;
  EXPECT_EQ(ReadAsVersion(830, move).m_nAnimeKind, 1);
}

TEST(MoveRatio, DivisorZeroUnitsAndLimits) {
  EXPECT_EQ(DistPerSpeed(5, 0, 0), 0.0);
  EXPECT_FALSE(IsDistSpeedValid(5, 0, 0));
  EXPECT_EQ(DistPerSpeed(1, 160, 0), 0.1);
  EXPECT_TRUE(IsDistSpeedValid(1, 160, 0));
  EXPECT_FALSE(IsDistSpeedValid(1, 161, 0));
  EXPECT_TRUE(IsDistSpeedValid(-1, 160, 0));
  EXPECT_EQ(DistPerSpeed(8, 4, 1), 2.0);  // (dot)
  EXPECT_EQ(DistPerTime(64, 1, 0), 1024.0);
  EXPECT_FALSE(IsDistTimeValid(64, 1, 0));
  EXPECT_TRUE(IsDistTimeValid(600, 1, 1));
  EXPECT_TRUE(IsDistTimeValid(-600, 1, 1));
  EXPECT_FALSE(IsDistTimeValid(601, 1, 1));
  EXPECT_EQ(DistPerTime(3, 0, 1), 0.0);
}

TEST(ShotRecord, NewestLayoutAndWholeTriplesInEquality) {
  cTempProject project;
  cEdShot shot;
  EXPECT_EQ(shot.m_nGiant, 1);
  EXPECT_EQ(shot.m_bSameForce, 1);
  ASSERT_EQ(shot.SaveFile("s.dat"), 1);
  EXPECT_EQ(ReadBytes("s.dat").size(), 4u + 4u + 97u + 4u);

  shot.m_anFormParam[2] = 40;
  shot.m_anMoveParam[1] = 999;
  shot.m_nPower = -999999;
  shot.m_nImpact = -20;
  shot.m_nReserved3 = 77;  // no control reads it, yet it survives
  cEdShot loaded = ReadAsVersion(950, shot);
  EXPECT_EQ(loaded, shot);
  EXPECT_EQ(loaded.m_nReserved3, 77);

  cEdShot other = shot;
  other.m_anMoveParam[2] = 1;
  EXPECT_FALSE(other == shot);
}

TEST(ShotUpgrade, EveryChangeOfOldFiles) {
  cEdShot shot;
  shot.m_bAngleMirror = 1;
  shot.m_bFailOnHero = 1;
  shot.m_bFailOnEnemy = 0;
  shot.m_nMoveType = 5;
  shot.m_bAccel = 1;
  shot.m_nAccel = 30;
  shot.m_bPierceChara = 1;
  shot.m_nAimTarget = 2;
  cEdShot loaded = ReadAsVersion(157, shot);
  EXPECT_EQ(loaded.m_bAngleMirror, 0);
  EXPECT_EQ(loaded.m_bFailOnEnemy, 1);
  EXPECT_EQ(loaded.m_bAutoScrollSync, 1);
  EXPECT_EQ(loaded.m_bAccel, 0);
  EXPECT_EQ(loaded.m_nAccel, 0);
  EXPECT_EQ(loaded.m_bPierceBlockChara, 1);
  EXPECT_EQ(loaded.m_nAimTarget, 0);

  // A file of 211 holds the scroll field, and it is still recomputed.
  shot.m_nMoveType = 8;
  shot.m_bAutoScrollSync = 1;
  EXPECT_EQ(ReadAsVersion(211, shot).m_bAutoScrollSync, 0);
  EXPECT_EQ(ReadAsVersion(212, shot).m_bAutoScrollSync, 1);

  loaded = ReadAsVersion(670, shot);
  EXPECT_EQ(loaded.m_bPierceBlockChara, 0);  // stored from 636 on, no longer copied
  EXPECT_EQ(loaded.m_nAccel, 30);
  EXPECT_EQ(loaded.m_nAimTarget, 0);
  EXPECT_EQ(ReadAsVersion(671, shot).m_nAimTarget, 2);
}

TEST(ShotTables, ParameterTriplesFollowFormationAndMoveType) {
  ASSERT_EQ(FormationParamTable.size(), static_cast<size_t>(FormationTable.Size()));
  ASSERT_EQ(ShotMoveParamTable.size(), static_cast<size_t>(ShotMoveTable.Size()));
  const cParamTriple& thunder = FormationParamTable[3];
  EXPECT_STREQ(thunder[1].label, "列の数");
  EXPECT_EQ(thunder[1].min, 1);
  EXPECT_FALSE(FormationParamTable[4][0].Shown());
  EXPECT_EQ(ShotMoveParamTable[8][2].max, 359);
  EXPECT_EQ(ShotMoveParamTable[5][1].def, 999);
}

}  // namespace
}  // namespace velmora::testing
