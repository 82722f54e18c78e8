#include "CmdDialogDriver.h"
#include "objects/CmdTable.h"
#include "tools/inspect/JsonWriter.h"

namespace velmora::testing {
namespace {

class CmdDialogs : public cCmdDialogFixture {};

int32_t& P(cEdCmd& cmd, int i) { return cmd.m_vParam.at(static_cast<size_t>(i)); }
cEdMove& Move(cEdCmd& cmd) { return *cmd.m_pMove; }
cEdShot& Shot(cEdCmd& cmd) { return *cmd.m_pShot; }

// Each kind: what its dialog makes of a new command (values brought into
// the limits and lists of its controls, the values its opening sets), one
// field changed through its control, that field as the command then holds
// it, and the command's list line.
struct cKindCase {
  int kind;
  void (*opened)(cEdCmd&);
  void (*change)(cDialog&);
  void (*changed)(cEdCmd&);
  const char* summary;
};

void Nothing(cEdCmd&) {}
void DistanceOne(cEdCmd& c) { Move(c).m_nDist = 1; }
void CountAndEntryOne(cEdCmd& c) {
  Shot(c).m_nCount = 1;
  Shot(c).m_nSummonNo = 1;
}
void CountEntryAndLifeOne(cEdCmd& c) {
  CountAndEntryOne(c);
  Shot(c).m_nRange = 1;
}

const cKindCase kKindCases[] = {
    {kCmdWait, Nothing, [](cDialog& d) { Type(d, kIdCmdTime, "25"); }, [](cEdCmd& c) { c.m_nTime = 25; },
     "25 ◆ ウエイト ◆"},
    {kCmdLine, DistanceOne, [](cDialog& d) { Choose(d, kIdMoveDir, 3); }, [](cEdCmd& c) { Move(c).m_nDir = 3; },
     "1 ◆ 直線移動 ◆ 右 時1 速10"},
    {kCmdGroundTurn, DistanceOne, [](cDialog& d) { Type(d, kIdMoveSpeed, "7"); },
     [](cEdCmd& c) { Move(c).m_nSpeed = 7; }, "1 ◆ 地上折り返し移動 ◆ 時1 速7"},
    {kCmdCircle, Nothing, [](cDialog& d) { Type(d, kIdMoveAngle, "90"); }, [](cEdCmd& c) { Move(c).m_nAngle = 90; },
     "1 ◆ 円移動 ◆ 時1 角90～0"},
    {kCmdCharge, DistanceOne, [](cDialog& d) { Choose(d, kIdMoveTargetNo, 2); },
     [](cEdCmd& c) { Move(c).m_nTargetNo = 2; }, "1 ◆ 突撃移動 ◆ ターゲット3 時1 速10"},
    {kCmdHoming, DistanceOne, [](cDialog& d) { Choose(d, kIdMoveTargetNo, 1); },
     [](cEdCmd& c) { Move(c).m_nTargetNo = 1; }, "1 ◆ 誘導移動 ◆ ターゲット2 時1 速10"},
    {kCmdAvoid, DistanceOne, [](cDialog& d) { Choose(d, kIdMoveDir, 2); }, [](cEdCmd& c) { Move(c).m_nDir = 2; },
     "1 ◆ 画面外回避移動 ◆ 左 時1 速10"},
    {kCmdStopMove, Nothing, [](cDialog& d) { Click(d, kIdCmdParallel); }, [](cEdCmd& c) { c.m_bParallel = 1; },
     "P-1 ◆ 移動の無効化 ◆"},
    {kCmdTurn, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 1); }, [](cEdCmd& c) { P(c, 0) = 1; },
     "1 ◆ 向き変更 ◆ 右を向く"},
    {kCmdJump,
     [](cEdCmd& c) {
       P(c, 2) = 1;
       P(c, 4) = 1;
     },
     [](cDialog& d) { Type(d, ParamId(2), "5"); }, [](cEdCmd& c) { P(c, 2) = 5; }, "P-? ◆ ジャンプ ◆ 高さ5"},
    {kCmdShot,
     [](cEdCmd& c) {
       Shot(c).m_nCount = 1;
       Shot(c).m_nGraphic = 1;
       Shot(c).m_nLife = 1;
       Shot(c).m_nVanishValue = 1;
     },
     [](cDialog& d) { Type(d, kIdShotSpeed, "12"); }, [](cEdCmd& c) { Shot(c).m_nSpeed = 12; },
     "1 ◆ ショット ◆ 直進A 数1(0) 前 速12 威0 直進"},
    {kCmdSword, [](cEdCmd& c) { c.m_nTime = 7; }, [](cDialog& d) { Type(d, kIdShotPower, "30"); },
     [](cEdCmd& c) { Shot(c).m_nPower = 30; }, "7 ◆ ソード ◆ 剣0 威30"},
    {kCmdSummonBlock, CountAndEntryOne, [](cDialog& d) { Choose(d, kIdShotSummonNo, 1); },
     [](cEdCmd& c) { Shot(c).m_nSummonNo = 2; }, "1 ◆ ブロック召喚 ◆ 「002 コブロック2」"},
    {kCmdSummonChara, CountEntryAndLifeOne, [](cDialog& d) { Choose(d, kIdShotSummonSrc, 1); },
     [](cEdCmd& c) { Shot(c).m_nSummonSrc = 1; }, "1 ◆ キャラ召喚 ◆ 「001 スキャラ1」"},
    {kCmdSummonItem, CountEntryAndLifeOne, [](cDialog& d) { Choose(d, kIdShotSummonNo, 2); },
     [](cEdCmd& c) { Shot(c).m_nSummonNo = 3; }, "1 ◆ アイテム召喚 ◆ 「003 コアイテム3」"},
    {kCmdFlowOp, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 1); }, [](cEdCmd& c) { P(c, 0) = 1; },
     "P-0 ◆ フローの操作 ◆ 自分 の このフロー を 終了"},
    {kCmdStageClear, [](cEdCmd& c) { P(c, 1) = 1; }, [](cDialog& d) { Choose(d, ParamId(0), 3); },
     [](cEdCmd& c) { P(c, 0) = 3; }, "0 ◆ ステージクリア ◆"},
    {kCmdGameWait, Nothing, [](cDialog& d) { Type(d, ParamId(0), "30"); }, [](cEdCmd& c) { P(c, 0) = 30; },
     "30 ◆ ゲームウエイト ◆"},
    {kCmdMessage,
     [](cEdCmd& c) {
       P(c, 7) = 1;
       P(c, 16) = 1;
     },
     [](cDialog& d) { Choose(d, ParamId(6), 2); }, [](cEdCmd& c) { P(c, 6) = 2; }, "0(1) ◆ メッセージ ◆ "},
    {kCmdWarp, Nothing, [](cDialog& d) { Type(d, kIdMoveDist, "5"); }, [](cEdCmd& c) { Move(c).m_nDist = 5; },
     "P-0 ◆ ワープ ◆ 方向と距離で指定 前 距5"},
    {kCmdTargetSet, [](cEdCmd& c) { P(c, 12) = 1; }, [](cDialog& d) { Choose(d, ParamId(1), 1); },
     [](cEdCmd& c) { P(c, 1) = 1; }, "P-0 ◆ ターゲットの設定 ◆ ターゲット1 を 自分 にする"},
    {kCmdStatusOp,
     [](cEdCmd& c) {
       P(c, 2) = 1;
       P(c, 11) = 1;
     },
     [](cDialog& d) { Choose(d, ParamId(5), 1); }, [](cEdCmd& c) { P(c, 5) = 1; },
     "P-0 ◆ ステータスの操作 ◆ 自分 の 「1 キャラ変数-1」を ＋ 0"},
    {kCmdStatusOp2, Nothing, [](cDialog& d) { Choose(d, ParamId(1), 1); }, [](cEdCmd& c) { P(c, 1) = 1; },
     "P-0 ◆ ステータスの操作2 ◆ 自分 の 透明 を OFF にする"},
    {kCmdVanish, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 1); }, [](cEdCmd& c) { P(c, 0) = 1; },
     "P-0 ◆ 消滅 ◆ ショット 画面内 対象勢力0"},
    {kCmdGetItem, [](cEdCmd& c) { P(c, 1) = 1; }, [](cDialog& d) { Choose(d, ParamId(1), 1); },
     [](cEdCmd& c) { P(c, 1) = 2; }, "P-0 ◆ アイテムの取得 ◆ 「002 コアイテム2」"},
    {kCmdGraphic, [](cEdCmd& c) { P(c, 1) = 1; }, [](cDialog& d) { Type(d, ParamId(2), "-4"); },
     [](cEdCmd& c) { P(c, 2) = -4; }, "P-0 ◆ グラフィックの変更 ◆"},
    {kCmdAnimeSet, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 2); }, [](cEdCmd& c) { P(c, 0) = 2; },
     "P-0 ◆ 基本アニメセットの変更 ◆ セット2"},
    {kCmdAnime, [](cEdCmd& c) { P(c, 0) = 1; }, [](cDialog& d) { Choose(d, ParamId(0), 2); },
     [](cEdCmd& c) { P(c, 0) = 3; }, "P-0(1) ◆ アニメの実行 ◆ アニメ3"},
    {kCmdEffect, [](cEdCmd& c) { P(c, 6) = 1; }, [](cDialog& d) { Choose(d, ParamId(0), 1); },
     [](cEdCmd& c) { P(c, 0) = 1; }, "P-0(1) ◆ エフェクトの実行 ◆ 炎1"},
    {kCmdCharaEffect, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 2); }, [](cEdCmd& c) { P(c, 0) = 2; },
     "P-0(0) ◆ キャラエフェクトの実行 ◆ 光2"},
    {kCmdScrEffect, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 1); }, [](cEdCmd& c) { P(c, 0) = 1; },
     "P-0(0) ◆ 画面エフェクトの実行 ◆ 揺れ1"},
    {kCmdPicture,
     [](cEdCmd& c) {
       P(c, 7) = 1;
       P(c, 9) = 1;
     },
     [](cDialog& d) { Choose(d, ParamId(0), 3); }, [](cEdCmd& c) { P(c, 0) = 3; }, "? ◆ ピクチャーの表示 ◆ 絵3"},
    {kCmdScreenColor, [](cEdCmd& c) { P(c, 7) = 1; }, [](cDialog& d) { Type(d, ParamId(0) + 1, "128"); },
     [](cEdCmd& c) { P(c, 0) = 128; }, "P-0(0) ◆ 画面の色を変更 ◆ R128 G0 B0 0%"},
    {kCmdBack, [](cEdCmd& c) { P(c, 0) = 1; }, [](cDialog& d) { Choose(d, ParamId(1), 2); },
     [](cEdCmd& c) { P(c, 1) = 2; }, "P-0 ◆ 背景の変更 ◆ 1番 を 反転(表示⇔非表示)"},
    {kCmdSound, [](cEdCmd& c) { P(c, 0) = 1; }, [](cDialog& d) { Choose(d, ParamId(0), 1); },
     [](cEdCmd& c) { P(c, 0) = 2; }, "P-0 ◆ 効果音の再生 ◆ 音2"},
    {kCmdBgm, Nothing, [](cDialog& d) { Choose(d, ParamId(0), 3); }, [](cEdCmd& c) { P(c, 0) = 3; },
     "P-0 ◆ BGMの再生 ◆ 曲3"},
    {kCmdCode, Nothing, [](cDialog& d) { Type(d, kIdCmdText, "hp = hp + 10"); },
     [](cEdCmd& c) { c.m_strText = "hp = hp + 10"; }, "P-0 ◆ コードの実行 ◆ hp = hp + 10"},
    {kCmdArrange,
     [](cEdCmd& c) {
       P(c, 0) = 1;
       P(c, 4) = 1;
     },
     [](cDialog& d) { Choose(d, ParamId(0), 1); }, [](cEdCmd& c) { P(c, 0) = kCmdLine; },
     "P-0 ◆ アレンジ ◆ 次の 「直線移動」 の 目標X ＝ 「001 体力」"},
    {kCmdLoop,
     [](cEdCmd& c) {
       P(c, 0) = 1;
       P(c, 1) = 1;
     },
     [](cDialog& d) { Type(d, ParamId(1), "5"); }, [](cEdCmd& c) { P(c, 1) = 5; },
     "P-0 ◆ ループ ◆ 後続 5 個のコマンドを 1 回繰り返す"},
};

// An item's own kind 1: its two numbers over the whole of their type.
const cKindCase kFlowChangeCase{kItemCmdFlowChange, Nothing, [](cDialog& d) { Type(d, ParamId(0), "-2147483648"); },
                                [](cEdCmd& c) { P(c, 0) = INT32_MIN; }, "P-0 ◆ フローの変更 ◆"};

class KindCases : public CmdDialogs {
 protected:
  void Run(const cKindCase& kase, bool itemCmd, int kind) {
    const cCmdInfo* info = FindCmdInfo(itemCmd, kind);
    ASSERT_NE(info, nullptr);
    SCOPED_TRACE(info->label);
    cEdCmd fresh;
    fresh.SetUpNew(kind, itemCmd);
    kase.opened(fresh);

    cEdCmd record;
    record.m_bItemCmd = itemCmd ? 1 : 0;
    QString title;
    ASSERT_TRUE(EditNew(record, kind, [&](cDialog& d) {
      title = d.Window()->windowTitle();
      kase.change(d);
      Click(d, kIdOk);
    }));
    EXPECT_EQ(title.toStdString(), info->label);
    cEdCmd expected = fresh;
    kase.changed(expected);
    EXPECT_EQ(inspect::RecordJson(record), inspect::RecordJson(expected));
    EXPECT_EQ(Summary(record), kase.summary);

    EXPECT_TRUE(CancelLeavesAlone(fresh, kase.change));
  }
};

TEST_F(KindCases, EveryKindStartsFromItsDefaultsTakesAChangeOnOkAndCancelLeavesItAlone) {
  for (const cKindCase& kase : kKindCases) {
    Run(kase, false, kase.kind);
    // An item's kinds from 2 on are these commands, with the same dialogs.
    if (kase.kind >= kCmdStageClear) Run(kase, true, kase.kind - kItemKindOffset);
  }
  Run(kFlowChangeCase, true, kItemCmdFlowChange);
}

}  // namespace
}  // namespace velmora::testing
