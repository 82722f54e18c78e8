#include <gtest/gtest.h>

#include "objects/CondSummary.h"
#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"

namespace velmora::testing {
namespace {

class CondSummary : public ::testing::Test {
 protected:
  void SetUp() override {
    g_vecCommonVar.assign(kCommonVarCount, cStageVar());
    g_vecCommonVar[7].m_strName = ToCp932("体力");
    m_stageVars.resize(20);
    m_stageVars[4].m_strName = ToCp932("残機");
    m_stageVars[12].m_strName = ToCp932("鍵");
    SetStageVarList(&m_stageVars);
    SetObjectContext(eObjectContext::CharaEditor);
  }
  void TearDown() override {
    SetStageVarList(nullptr);
    g_vecCommonVar.clear();
  }
  static std::string Text(const cEdCond& c) { return ToUtf8(CondSummaryText(c)); }
  static cEdCond Kind(int kind) {
    cEdCond c;
    c.m_nKind = static_cast<uint8_t>(kind);
    return c;
  }

  std::vector<cStageVar> m_stageVars;
};

TEST_F(CondSummary, VariableKindsNameTheVariableWithThreeDigits) {
  cEdCond c = Kind(kCondCommonVar);
  c.m_nLeftVar = 7;
  c.m_nValue = 100;
  c.m_nRelation = 2;
  EXPECT_EQ(Text(c), "コモン変数条件 ： 「007 体力」 が 100 以上");

  c = Kind(kCondStageVar);
  c.m_nLeftVar = 12;
  c.m_nValue = -3;
  c.m_nRelation = 1;
  EXPECT_EQ(Text(c), "ステージ変数条件 ： 「012 鍵」 が -3 でない");

  c = Kind(kCondCharaVar);
  c.m_nLeftVar = 2;
  c.m_nValue = 5;
  EXPECT_EQ(Text(c), "キャラ変数条件 ： キャラ変数 「2 キャラ変数-2」が 5 である");

  // A number past the list has no name but still renders.
  c = Kind(kCondStageVar);
  c.m_nLeftVar = 500;
  EXPECT_EQ(Text(c), "ステージ変数条件 ： 「500 」 が 0 である");
}

TEST_F(CondSummary, StatusConditionSidesByType) {
  cEdCond c = Kind(kCondStatus);
  c.m_nLeftVar = 3;
  c.m_nValue = 10;
  c.m_nRelation = 2;
  EXPECT_EQ(Text(c), "ステータス条件 ： 自分 の 「3 キャラ変数-3」 が 10 以上");

  c.m_nLeftObject = 1;
  c.m_nLeftStatus = 6;
  c.m_nLeftCoord = 1;
  c.m_nRightType = 1;
  c.m_nRandMin = -5;
  c.m_nRandMax = 5;
  c.m_nRelation = 3;
  EXPECT_EQ(Text(c), "ステータス条件 ： ターゲット1 の X座標 (絶対座標) が -5～5 以下");

  c.m_nLeftType = 1;
  c.m_nLeftScope = kScopeStage;
  c.m_nLeftVar = 4;
  c.m_nRightType = 3;
  c.m_nRightScope = kScopeCommon;
  c.m_nRightVar = 7;
  c.m_nRelation = 6;
  EXPECT_EQ(Text(c), "ステータス条件 ： 「004 残機」が 「007 体力」 の倍数である");
}

TEST_F(CondSummary, RightStatusEndsInGaLikeTheLeftAndPercentFollows) {
  SetObjectContext(eObjectContext::BlockEditor);
  cEdCond c = Kind(kCondStatus);
  c.m_nLeftStatus = 1;
  c.m_nRightType = 2;
  c.m_nRightObject = 2;
  c.m_nRightStatus = 3;
  c.m_bPercent = 1;
  c.m_nRelation = 4;
  EXPECT_EQ(Text(c), "ステータス条件 ： 主人公 の HP が ターゲット2 の 最大HP が% より上");

  c.m_nRightObject = 3;
  c.m_nRightStatus = 7;
  c.m_nRightCoord = 2;
  c.m_bPercent = 0;
  EXPECT_EQ(Text(c), "ステータス条件 ： 主人公 の HP が ターゲット3 の Y座標 (画面座標) が より上");

  c.m_nRightObject = 4;
  c.m_nRightStatus = 0;
  c.m_nRightVar = 8;
  EXPECT_EQ(Text(c), "ステータス条件 ： 主人公 の HP が ターゲット4 の 「8 キャラ変数-8」 が より上");
}

TEST_F(CondSummary, SystemSideNamesTheSystemStatusAtTheSameIndex) {
  cEdCond c = Kind(kCondStatus);
  c.m_nLeftObject = kObjectSystem;
  c.m_nLeftStatus = 3;
  c.m_nRightType = 2;
  c.m_nRightObject = kObjectSystem;
  c.m_nRightStatus = 0;
  EXPECT_EQ(Text(c), "ステータス条件 ： スコア が 時間 である");
}

TEST_F(CondSummary, FlagConditionValueLabelsStartAtTheFlagsSmallestValue) {
  cEdCond c = Kind(kCondStatus2);
  c.m_nLeftStatus = 5;
  c.m_nLeftVar = 1;
  EXPECT_EQ(Text(c), "ステータス条件2 ： 自分 の 巨大化 が しない である");
  c.m_nLeftVar = 3;
  EXPECT_EQ(Text(c), "ステータス条件2 ： 自分 の 巨大化 が ×9 である");

  c.m_nLeftObject = 1;
  c.m_nLeftStatus = 3;
  c.m_nLeftVar = 2;
  c.m_nRelation = 1;
  EXPECT_EQ(Text(c), "ステータス条件2 ： ターゲット1 の 飛行 が ON (ブロックに当たる) でない");

  c.m_nLeftObject = kObjectSystem;
  c.m_nLeftStatus = 1;
  c.m_nLeftVar = 1;
  c.m_nRelation = 0;
  EXPECT_EQ(Text(c), "ステータス条件2 ： 縦スクロール が オートスクロール である");
}

TEST_F(CondSummary, StateAndDistanceKinds) {
  cEdCond c = Kind(kCondStatus3);
  c.m_nLeftObject = 4;
  c.m_nLeftStatus = 2;
  c.m_nRelation = 1;
  EXPECT_EQ(Text(c), "ステータス条件3 ： ターゲット4 が ブロックに乗っている(ブロックキャラも含む) でないなら");

  c = Kind(kCondDistance);
  c.m_nLeftObject = 2;
  c.m_nDistAxis = 6;
  c.m_nValue = 10;
  c.m_nRelation = 1;
  EXPECT_EQ(Text(c), "距離条件 ： ターゲット2 が 円 10 外");
}

TEST_F(CondSummary, FirstObjectFollowsTheEditingContext) {
  cEdCond c = Kind(kCondStatus3);
  SetObjectContext(eObjectContext::ItemEditor);
  EXPECT_EQ(Text(c), "ステータス条件3 ： 主人公 が 左向き なら");
  SetObjectContext(eObjectContext::ItemCommandDialog);
  EXPECT_EQ(Text(c), "ステータス条件3 ： 自分 が 左向き なら");
}

TEST_F(CondSummary, UnsetAndDamagedRecordsRenderWithoutFailing) {
  EXPECT_EQ(Text(cEdCond()), "");
  EXPECT_EQ(Text(Kind(200)), "");
  cEdCond c = Kind(kCondStatus2);
  c.m_nLeftObject = 9;
  c.m_nLeftStatus = 250;
  c.m_nRelation = 99;
  EXPECT_EQ(Text(c), "ステータス条件2 ：  が  ");
}

}  // namespace
}  // namespace velmora::testing
