#include <gtest/gtest.h>

#include "objects/CmdMoveRules.h"
#include "objects/CmdStatusRules.h"
#include "objects/CmdTable.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"

namespace velmora::testing {
namespace {

TEST(CmdWork, OpeningSizesTheParametersAndMakesTheRecordTheKindLacks) {
  cEdCmd cmd;
  cmd.m_nKind = kCmdStatusOp;
  cmd.m_vParam = {7};
  cCmdWork work = CmdWorkOf(cmd);
  EXPECT_EQ(work.paramCount, 22);
  EXPECT_EQ(work.P(0), 7);
  EXPECT_EQ(work.P(21), 0);

  cmd.m_nKind = kCmdTurn;
  cmd.m_vParam.assign(500, 3);
  EXPECT_EQ(CmdWorkOf(cmd).paramCount, 1);

  cmd.m_nKind = kCmdLine;
  const cEdCmd before = cmd;
  EXPECT_EQ(CmdWorkOf(cmd).move.m_nMaxSpeed, 200) << "as a new move";
  EXPECT_EQ(cmd, before) << "the command itself is not touched";
}

TEST(CmdWork, StoringGivesTheKindsRecordAndParametersAndKeepsWhatTheKindDoesntOwn) {
  cEdCmd cmd;
  cmd.SetUpNew(kCmdLine, false);
  cmd.m_pShot.Make().m_nPower = 9;
  cmd.m_vSubFlow.resize(2);
  cmd.m_vParam = {1, 2, 3};
  cCmdWork work = CmdWorkOf(cmd);
  work.move.m_nSpeed = 77;
  work.cmd.m_nTime = 12;
  work.shot.m_nPower = 100;
  StoreCmdWork(work, cmd);
  EXPECT_EQ(cmd.m_pMove->m_nSpeed, 77);
  EXPECT_EQ(cmd.m_nTime, 12);
  EXPECT_EQ(cmd.m_pShot->m_nPower, 9) << "a shot a move doesn't own";
  EXPECT_EQ(cmd.m_vSubFlow.size(), 2u);
  EXPECT_TRUE(cmd.m_vParam.empty());
}

TEST(CmdWork, OnlyKindsOfTheTablesAreEditable) {
  EXPECT_FALSE(IsEditableCmdKind(false, 0));
  EXPECT_TRUE(IsEditableCmdKind(false, kCmdLoop));
  EXPECT_FALSE(IsEditableCmdKind(false, kCmdLoop + 1));
  EXPECT_TRUE(IsEditableCmdKind(true, kItemCmdFlowChange));
  EXPECT_FALSE(IsEditableCmdKind(true, 25));
}

class MoveRatioRules : public ::testing::Test {
 protected:
  static cCmdWork Move(int setType, int dist, int speed, int time, int unit = 0) {
    cCmdWork work;
    work.move.m_nSetType = static_cast<uint8_t>(setType);
    work.move.m_nDist = static_cast<int16_t>(dist);
    work.move.m_nSpeed = static_cast<int16_t>(speed);
    work.move.m_nDistUnit = static_cast<uint8_t>(unit);
    work.cmd.m_nTime = static_cast<int16_t>(time);
    return work;
  }
};

TEST_F(MoveRatioRules, TheLinesTellTheRatioOfTheSettingsInUse) {
  cMoveRatioLines lines = MoveRatioLines(Move(kSetSpeedDist, 6, 10, 1, 1));
  EXPECT_EQ(ToUtf8(lines.ratio), "距離(dot)÷速度　＝　0.60 (※分身は無視)");
  lines = MoveRatioLines(Move(kSetTimeDist, 3, 10, 0));
  EXPECT_EQ(ToUtf8(lines.ratio), "距離(dot)÷時間　＝　0.0 (※分身は無視)") << "no time gives 0.0";
  EXPECT_EQ(ToUtf8(lines.rule), "※距離(dot)÷時間を-600～600にすること");
  lines = MoveRatioLines(Move(kSetTimeSpeed, 3, 10, 5));
  EXPECT_TRUE(lines.ratio.empty());
  EXPECT_TRUE(lines.rule.empty());
}

cCmdWork StatusOp(std::initializer_list<std::pair<int, int>> params) {
  cCmdWork work;
  work.cmd.m_nKind = kCmdStatusOp;
  work.paramCount = 22;
  for (const auto& [index, value] : params) work.P(index) = value;
  return work;
}

TEST(StatusRules, TheLimitsFollowTheLeftStatusOfTheCharacterTableForTheSystemToo) {
  EXPECT_EQ(StatusOpOperandRange(StatusOp({{4, 5}})), (cValueRange{-99, 99}));
  EXPECT_EQ(StatusOpOperandRange(StatusOp({{3, kObjectSystem}, {4, 4}})), (cValueRange{-999999, 999999}));
  EXPECT_EQ(StatusOpOperandRange(StatusOp({{0, 1}, {4, 5}})), (cValueRange{-999999, 999999})) << "a variable";
  EXPECT_EQ(StatusOpOperandRange(StatusOp({{4, 200}})), (cValueRange{-999999, 999999})) << "damaged: the nearest row";
}

TEST(StatusRules, PercentIsOpenToStatusesThatAllowItInTheCommand) {
  EXPECT_TRUE(StatusOpPercentAllowed(StatusOp({{4, 0}}))) << "キャラ変数, unlike in a condition";
  EXPECT_FALSE(StatusOpPercentAllowed(StatusOp({{4, 5}})));
  EXPECT_TRUE(StatusOpPercentAllowed(StatusOp({{3, kObjectSystem}, {4, 0}})));
  EXPECT_FALSE(StatusOpPercentAllowed(StatusOp({{0, 1}})));
  EXPECT_FALSE(StatusOpPercentAllowed(StatusOp({{4, 99}})));
}

TEST(StatusRules, AFlagsValueStartsFromItsDefaultWhenTheFlagOrTheListChanges) {
  cCmdWork before = StatusOp({{1, 3}, {2, 2}});
  cCmdWork work = before;
  work.P(2) = 3;
  FollowStatusOp2(work, before);
  EXPECT_EQ(work.P(2), 3) << "a value of the same flag stays";
  work.P(1) = 5;
  FollowStatusOp2(work, before);
  EXPECT_EQ(work.P(2), 1) << "巨大化's default";
  before = work;
  work.P(0) = kObjectSystem;
  FollowStatusOp2(work, before);
  EXPECT_EQ(work.P(1), 0);
  EXPECT_EQ(work.P(2), 0);
}

}  // namespace
}  // namespace velmora::testing
