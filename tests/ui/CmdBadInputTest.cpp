#include <cmath>
#include <limits>

#include "CmdDialogDriver.h"
#include "objects/CmdTable.h"

namespace velmora::testing {
namespace {

// Commands as a damaged file can leave them: values beyond every limit,
// parameter lists of any length, kinds beyond the tables.
class CmdBadInput : public cCmdDialogFixture {
 protected:
  static void Damage(cEdCmd& cmd) {
    cmd.m_nTime = 32000;
    cmd.m_nTimeClone = -32000;
    cmd.m_nSound = 30000;
    cmd.m_nAnime = -5;
    cmd.m_strText = std::string(300, '(');
    cmd.m_vParam.assign(1000, 0);
    for (size_t i = 0; i < cmd.m_vParam.size(); ++i) {
      cmd.m_vParam[i] = i % 2 ? INT32_MAX : INT32_MIN;
    }
    cEdMove& move = cmd.m_pMove ? *cmd.m_pMove : cmd.m_pMove.Make();
    move.m_nSetType = 200;
    move.m_nAimType = 99;
    move.m_nDir = 255;
    move.m_nDist = -30000;
    move.m_nTargetType = 99;
    move.m_nAnimeKind = 77;
    move.m_dTurnRate = std::numeric_limits<double>::quiet_NaN();
    cEdShot& shot = cmd.m_pShot ? *cmd.m_pShot : cmd.m_pShot.Make();
    shot.m_nFormation = 250;
    shot.m_nMoveType = 250;
    shot.m_anFormParam[0] = -32768;
    shot.m_nGiant = 0;
    shot.m_nSummonSrc = 9;
    shot.m_nSummonNo = 32767;
    shot.m_nGetItemSrc = 200;
    shot.m_nEffect = -1;
    cCondList& conds = cmd.m_pCondList ? *cmd.m_pCondList : cmd.m_pCondList.Make();
    conds.m_nJudge = 9;
    conds.m_vCond.resize(150);
  }
};

TEST_F(CmdBadInput, EveryKindOpensADamagedCommandThatCancelLeavesAloneAndOkGivesBackInItsShape) {
  for (bool itemCmd : {false, true}) {
    const int kinds = static_cast<int>((itemCmd ? ItemCmdTable : CmdTable).size());
    for (int kind = 1; kind < kinds; ++kind) {
      SCOPED_TRACE((itemCmd ? "item " : "") + std::to_string(kind));
      cEdCmd cmd;
      cmd.SetUpNew(kind, itemCmd);
      Damage(cmd);
      EXPECT_TRUE(CancelLeavesAlone(cmd, [](cDialog&) {}));
      const std::vector<uint8_t> before = SavedBytes(cmd);

      const bool stored = EditExisting(cmd, [](cDialog& d) {
        Click(d, kIdOk);
        if (d.Result() != 1) Click(d, kIdCancel);
      });
      if (stored) {
        EXPECT_EQ(cmd.m_vParam.size(), static_cast<size_t>(CmdParamCount(itemCmd, kind)));
        EXPECT_EQ(cmd.m_vSubFlow.size(), 0u);
      } else {
        EXPECT_EQ(SavedBytes(cmd), before) << "a refused OK stores nothing";
      }
    }
  }
}

TEST_F(CmdBadInput, ValuesBeyondTheirLimitsShowClampedAndAreStoredSo) {
  cEdCmd cmd;
  cmd.SetUpNew(kCmdLine, false);
  Damage(cmd);
  cmd.m_pMove->m_nSpeed = 10;
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Shown(d, kIdMoveSetType), "速度と距離を指定");
    EXPECT_EQ(Shown(d, kIdMoveAimType), "目標座標で指定");
    EXPECT_EQ(Shown(d, kIdMoveDir), "入力方向");
    EXPECT_EQ(Shown(d, kIdCmdTime), "9999");
    EXPECT_EQ(Shown(d, kIdCmdTimeClone), "-500");
    EXPECT_EQ(Shown(d, kIdMoveDist), "1");
    EXPECT_EQ(Shown(d, kIdCmdAnime), "なし（変更しない）");
    Click(d, kIdOk);
  }));
  const cEdMove& move = *cmd.m_pMove;
  EXPECT_EQ(cmd.m_nTime, 9999);
  EXPECT_EQ(cmd.m_nTimeClone, -500);
  EXPECT_EQ(cmd.m_nAnime, 0);
  EXPECT_EQ(move.m_nSetType, 2);
  EXPECT_EQ(move.m_nDir, 12);
  EXPECT_EQ(move.m_nDist, 1);
  EXPECT_EQ(move.m_nTargetType, 3);
  EXPECT_EQ(move.m_nAnimeKind, 2);
  EXPECT_FALSE(std::isnan(move.m_dTurnRate));
  EXPECT_TRUE(cmd.m_vParam.empty());

  cmd.SetUpNew(kCmdShot, false);
  Damage(cmd);
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Shown(d, kIdShotFormation), "包囲");
    EXPECT_EQ(Shown(d, kIdShotFormParam), "0");
    EXPECT_EQ(Shown(d, kIdShotGiant), "しない");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_pShot->m_nFormation, 5);
  EXPECT_EQ(cmd.m_pShot->m_nMoveType, 9);
  EXPECT_EQ(cmd.m_pShot->m_nGiant, 1);
  EXPECT_EQ(cmd.m_pShot->m_nGetItemSrc, 2);
  EXPECT_EQ(cmd.m_pShot->m_nGetItemNo, 1) << "the first item of the palette it came to";
}

TEST_F(CmdBadInput, AKindBeyondTheTablesOpensNothingAndIsReported) {
  const std::pair<bool, int> kinds[] = {{false, 0}, {false, kCmdLoop + 1}, {false, 255}, {true, 25}};
  for (const auto& [itemCmd, kind] : kinds) {
    cEdCmd cmd;
    cmd.m_bItemCmd = itemCmd ? 1 : 0;
    cmd.m_nKind = static_cast<uint8_t>(kind);
    cmd.m_vParam = {1, 2, 3};
    const std::vector<uint8_t> before = SavedBytes(cmd);
    bool opened = false;
    WhenModal([&opened](QWidget* modal) {
      opened = modal != nullptr;
      if (modal) static_cast<QDialog*>(modal)->reject();
    });
    EXPECT_FALSE(EditFlowCommand(cmd, false, manager, nullptr));
    QTest::qWait(10);
    EXPECT_FALSE(opened) << kind;
    EXPECT_EQ(SavedBytes(cmd), before);
  }
  const std::string log = ReadText("Report_Editor.txt");
  EXPECT_NE(log.find("command: kind 40 of CmdTable has no dialog, nothing was opened"), std::string::npos) << log;
  EXPECT_NE(log.find("command: kind 25 of ItemCmdTable has no dialog"), std::string::npos);
}

TEST_F(CmdBadInput, AnItemsFlowChangeKeepsItsNumbersExactly) {
  cEdCmd cmd;
  cmd.SetUpNew(kItemCmdFlowChange, true);
  cmd.m_vParam = {INT32_MAX, INT32_MIN};
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Shown(d, ParamId(0)), "2147483647");
    EXPECT_EQ(Shown(d, ParamId(1)), "-2147483648");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_vParam, (std::vector<int32_t>{INT32_MAX, INT32_MIN}));
}

}  // namespace
}  // namespace velmora::testing
