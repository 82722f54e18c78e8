#include <functional>

#include "objects/CmdSummary.h"
#include "objects/CmdTable.h"
#include "summary/SummaryFixture.h"

namespace velmora::testing {
namespace {

// A new command of a kind as the flow editor makes it, then shaped.
cEdCmd Cmd(int kind, std::vector<int32_t> params = {}, const std::function<void(cEdCmd&)>& shape = {}) {
  cEdCmd cmd;
  cmd.SetUpNew(kind, false);
  for (size_t i = 0; i < params.size() && i < cmd.m_vParam.size(); ++i) cmd.m_vParam[i] = params[i];
  if (shape) shape(cmd);
  return cmd;
}

cEdCmd Moved(int kind, const std::function<void(cEdMove&)>& shape, int16_t time = 1) {
  return Cmd(kind, {}, [&](cEdCmd& c) {
    c.m_nTime = time;
    shape(*c.m_pMove);
  });
}

cEdCmd Shot(int kind, const std::function<void(cEdShot&)>& shape, int16_t time = 1) {
  return Cmd(kind, {}, [&](cEdCmd& c) {
    c.m_nTime = time;
    shape(*c.m_pShot);
  });
}

struct cCase {
  cEdCmd cmd;
  const char* line;
};

void ExpectLines(const std::vector<cCase>& cases) {
  for (size_t i = 0; i < cases.size(); ++i) {
    EXPECT_EQ(ToUtf8(CmdSummaryText(cases[i].cmd)), cases[i].line) << "case " << i;
  }
}

TEST_F(SummaryTest, MoveLinesShowAimAndTiming) {
  ExpectLines({
      {Cmd(kCmdWait), "1 ◆ ウエイト ◆"},
      {Cmd(kCmdWait, {}, [](cEdCmd& c) { c.m_bParallel = 1; }), "P-1 ◆ ウエイト ◆"},
      {Moved(kCmdLine, [](cEdMove& m) { m.m_nSetType = 2; m.m_nSpeed = 10; m.m_nDist = 6; m.m_nDir = 3; m.m_nAngle = 45; }),
       "16.0? ◆ 直線移動 ◆ 右45 速10 距6"},
      {Moved(kCmdLine, [](cEdMove& m) {
         m.m_nSetType = 2; m.m_nSpeed = 10; m.m_nDist = 6; m.m_nDistUnit = 1;
         m.m_nAimType = 1; m.m_bTargetY = 0; m.m_nTargetX = 5; m.m_nTargetY = 7;
       }),
       "1.0? ◆ 直線移動 ◆ 目標(5,-) 速10 距6dot"},
      {Moved(kCmdLine, [](cEdMove& m) { m.m_nSetType = 2; m.m_nSpeed = 0; m.m_nDist = 6; }), "0.0? ◆ 直線移動 ◆ 前 速0 距6"},
      {Moved(kCmdLine, [](cEdMove& m) { m.m_nSetType = 1; m.m_nDist = 4; m.m_nAimType = 1; m.m_bTargetX = m.m_bTargetY = 0; }, 12),
       "12 ◆ 直線移動 ◆ 目標(-,-) 時12 距4"},
      {Moved(kCmdGroundTurn, [](cEdMove& m) { m.m_nSetType = 1; m.m_nDist = 3; m.m_nDistUnit = 1; }, 8),
       "8 ◆ 地上折り返し移動 ◆ 時8 距3dot"},
      {Moved(kCmdCircle, [](cEdMove& m) { m.m_nSetType = 1; m.m_nSpeed = 30; m.m_nDist = 90; }), "5.0? ◆ 円移動 ◆ 速30 角0～90"},
      {Moved(kCmdCircle, [](cEdMove& m) { m.m_nAngle = -90; m.m_nDist = 90; }, 15), "15 ◆ 円移動 ◆ 時15 角-90～90"},
      {Moved(kCmdCharge, [](cEdMove& m) { m.m_nTargetNo = 2; }, 5), "5 ◆ 突撃移動 ◆ ターゲット3 時5 速10"},
      // Avoidance shows its whole target even with an axis switched off.
      {Moved(kCmdAvoid, [](cEdMove& m) { m.m_nAimType = 1; m.m_bTargetX = 0; m.m_nTargetX = 3; m.m_nTargetY = 4; }),
       "1 ◆ 画面外回避移動 ◆ 目標(3,4) 時1 速10"},
      {Cmd(kCmdStopMove, {}, [](cEdCmd& c) { c.m_nTime = 30; }), "30 ◆ 移動の無効化 ◆"},
      {Cmd(kCmdTurn, {10}), "1 ◆ 向き変更 ◆ 最後にブロックが当たった方を向く"},
      {Cmd(kCmdJump, {0, 0, 5}), "P-? ◆ ジャンプ ◆ 高さ5"},
      {Cmd(kCmdJump, {2, 0, 8, 0, 3}), "P-? ◆ ジャンプ ◆ 高さ3～8"},
  });
}

TEST_F(SummaryTest, ShotAndSummonLinesNameWhatTheyMake) {
  ExpectLines({
      {Shot(kCmdShot, [](cEdShot& s) {
         s.m_nFormation = 2; s.m_nCount = 5; s.m_nCloneCount = 1; s.m_nDir = 2; s.m_nAngleShift = -30;
         s.m_nSpeed = 12; s.m_nPower = 100; s.m_nMoveType = 1;
       }, 3),
       "3 ◆ ショット ◆ 拡散 数5(1) 左-30 速12 威100 主人公を狙う"},
      {Shot(kCmdSword, [](cEdShot& s) { s.m_nMoveType = 2; s.m_nPower = 50; }, 4), "4 ◆ ソード ◆ 剣2 威50"},
      {Shot(kCmdSummonBlock, [](cEdShot& s) { s.m_nSummonNo = 3; }), "1 ◆ ブロック召喚 ◆ 「003 岩」"},
      {Shot(kCmdSummonBlock, [](cEdShot& s) { s.m_nSummonType = 1; s.m_nSummonNo = 3; }), "1 ◆ ブロック召喚 ◆ ブロックを消す"},
      // A number beyond the list keeps its number and shows no name.
      {Shot(kCmdSummonChara, [](cEdShot& s) { s.m_nSummonSrc = 1; s.m_nSummonNo = 12; }), "1 ◆ キャラ召喚 ◆ 「012 」"},
      {Shot(kCmdSummonItem, [](cEdShot& s) { s.m_nSummonSrc = 1; s.m_nSummonNo = 2; }), "1 ◆ アイテム召喚 ◆ 「002 鍵」"},
      {Cmd(kCmdGetItem, {1, 2}), "P-0 ◆ アイテムの取得 ◆ 「002 鍵」"},
  });
}

TEST_F(SummaryTest, FlowLinesAndTheMarkOfEmbeddedConditions) {
  cEdCmd guarded = Cmd(kCmdFlowOp, {4, 2, 3, 1});
  guarded.m_pCondList->m_bEnabled = 1;
  guarded.m_pCondList->m_vCond.resize(2);
  cEdCmd itemFlowChange;
  itemFlowChange.SetUpNew(kItemCmdFlowChange, true);
  ExpectLines({
      {Cmd(kCmdFlowOp), "P-0 ◆ フローの操作 ◆ 自分 の このフロー を 開始"},
      {guarded, "P-0 ◆ フローの操作 ◆ ターゲット1 の 指定IDのフロー を 削除 (ID:C)  ★条件あり★"},
      {Cmd(kCmdLoop, {3, 5}, [](cEdCmd& c) { c.m_bParallel = 0; }), "0 ◆ ループ ◆ 後続 5 個のコマンドを 3 回繰り返す"},
      {itemFlowChange, "P-0 ◆ フローの変更 ◆"},
  });
  // A list that is switched off shows no mark, whatever it holds.
  guarded.m_pCondList->m_bEnabled = 0;
  EXPECT_EQ(ToUtf8(CmdSummaryText(guarded)), "P-0 ◆ フローの操作 ◆ ターゲット1 の 指定IDのフロー を 削除 (ID:C)");
}

TEST_F(SummaryTest, GameLinesAndTheirHeads) {
  auto text = [](const char* t) { return [t](cEdCmd& c) { c.m_strText = ToCp932(t); }; };
  ExpectLines({
      {Cmd(kCmdStageClear), "0 ◆ ステージクリア ◆"},
      {Cmd(kCmdGameWait, {25}), "25 ◆ ゲームウエイト ◆"},
      {Cmd(kCmdMessage, std::vector<int32_t>{0, 0, 0, 0, 0, 0, 2, 30}, text("こんにちは")), "0(30) ◆ メッセージ ◆ こんにちは"},
      {Cmd(kCmdMessage, {}, text("やあ")), "? ◆ メッセージ ◆ やあ"},
      {Cmd(kCmdMessage, std::vector<int32_t>{0, 0, 0, 0, 0, 0, 1}, text("やあ")), "P-0(∞) ◆ メッセージ ◆ やあ"},
      {Cmd(kCmdMessage, std::vector<int32_t>{0, 0, 0, 0, 0, 0, 2, 30, 0, 0, 0, 0, 0, 0, 0, 1}, text("やあ")),
       "P-0 ◆ メッセージ ◆ メッセージの消去"},
      {Moved(kCmdWarp, [](cEdMove& m) { m.m_nAimType = 1; m.m_nDir = 6; m.m_nDist = 4; }),
       "P-0 ◆ ワープ ◆ ターゲット1からの方向と距離で指定 上 距4"},
      {Moved(kCmdWarp, [](cEdMove& m) { m.m_nAimType = 5; m.m_nTargetType = 1; m.m_bTargetX = 0; m.m_nTargetY = 9; }),
       "P-0 ◆ ワープ ◆ 目標座標で指定 絶対座標 (-,9)"},
      {Cmd(kCmdTargetSet, {1, 2}), "P-0 ◆ ターゲットの設定 ◆ ターゲット2 を 最も近いキャラ にする"},
      {Cmd(kCmdVanish, {1, 3, 1}), "P-0 ◆ 消滅 ◆ ショット 全範囲 対象勢力3"},
      {Cmd(kCmdGraphic, {1, 5, 2}), "P-0 ◆ グラフィックの変更 ◆"},
      {Cmd(kCmdAnimeSet, {0}), "P-0 ◆ 基本アニメセットの変更 ◆ セット0"},
      {Cmd(kCmdBack, {3, 2}), "P-0 ◆ 背景の変更 ◆ 3番 を 反転(表示⇔非表示)"},
      {Cmd(kCmdSound, {7}), "P-0 ◆ 効果音の再生 ◆ 音7"},
      {Cmd(kCmdBgm, {2, 1}), "P-0 ◆ BGMの再生 ◆ 曲2"},
      {Cmd(kCmdCode, {}, text("$a = 1")), "P-0 ◆ コードの実行 ◆ $a = 1"},
  });
}

TEST_F(SummaryTest, ShowCommandsReckonTheirTimeFromTheDatabase) {
  ExpectLines({
      {Cmd(kCmdAnime, {3}), "P-0(7) ◆ アニメの実行 ◆ アニメ3"},
      {Cmd(kCmdAnime, {9}), "P-0(9999) ◆ アニメの実行 ◆ アニメ9"},
      {Cmd(kCmdAnime, {3, 1}), "P-0 ◆ アニメの実行 ◆ アニメ3 を 終了"},
      // Effects have no limit on their sum, and clearing shows two separators.
      {Cmd(kCmdEffect, {9}), "P-0(15000) ◆ エフェクトの実行 ◆ 炎9"},
      {Cmd(kCmdEffect, {0}), "P-0 ◆ ◆ エフェクトの実行 ◆ エフェクトの消去"},
      {Cmd(kCmdCharaEffect, {2, 2, 1}), "P-0(20) ◆ キャラエフェクトの実行 ◆ 光2 往復実行 ループ実行"},
      {Cmd(kCmdCharaEffect, {0, 2, 1}), "P-0(0) ◆ キャラエフェクトの実行 ◆ なし"},
      {Cmd(kCmdScrEffect, {1, 1, 0}), "P-0(5) ◆ 画面エフェクトの実行 ◆ 揺れ1 反転実行"},
      {Cmd(kCmdScrEffect, {1, 0, 0}, [](cEdCmd& c) { c.m_bParallel = 0; }), "0(5) ◆ 画面エフェクトの実行 ◆ 揺れ1"},
      {Cmd(kCmdPicture, {0}), "P-0 ◆ ピクチャーの表示 ◆ ピクチャーの消去"},
      {Cmd(kCmdPicture, {2, 0, 0, 0, 0, 0, 0, 100, 2, 40}), "P-0(40) ◆ ピクチャーの表示 ◆ 絵2"},
      {Cmd(kCmdPicture, {2}), "? ◆ ピクチャーの表示 ◆ 絵2"},
      {Cmd(kCmdScreenColor, {255, 128, 0, 50, 0, 10, 1, 3}), "P-0(30) ◆ 画面の色を変更 ◆ R255 G128 B0 50% 瞬間表示 × 3"},
      {Cmd(kCmdScreenColor, {255, 128, 0, 50, 1, 10, 0, 3}), "P-0(10) ◆ 画面の色を変更 ◆ 元に戻す"},
  });
}

TEST_F(SummaryTest, StatusLinesNameBothSides) {
  ExpectLines({
      {Cmd(kCmdStatusOp, {1, 1, 4, 0, 0, 1, 0, 10}), "P-0 ◆ ステータスの操作 ◆ 「004 残機」を ＋ 10"},
      {Cmd(kCmdStatusOp, {0, 0, 3, 0, 0, 0, 1, 0, -5, 5}), "P-0 ◆ ステータスの操作 ◆ 自分 の 「3 キャラ変数-3」を ＝ -5～5"},
      {Cmd(kCmdStatusOp, {0, 0, 0, 1, 6, 2, 2, 0, 0, 0, 0, 0, 5, 3, 1, 0, 0, 0, 2}),
       "P-0 ◆ ステータスの操作 ◆ ターゲット1 の X座標 (画面座標) を － スコア%"},
      {Cmd(kCmdStatusOp, {0, 0, 0, 5, 1, 3, 3, 0, 0, 0, 0, 7}), "P-0 ◆ ステータスの操作 ◆ 横スクロール速度 を × 「007 体力」"},
      {Cmd(kCmdStatusOp, {0, 0, 0, 2, 1, 0, 2, 0, 0, 0, 0, 0, 0, 7}),
       "P-0 ◆ ステータスの操作 ◆ ターゲット2 の HP を ＝ 自分 の Y座標 (相対座標)"},
      {Cmd(kCmdStatusOp, {0, 0, 0, 2, 1, 0, 2, 0, 0, 0, 0, 8, 3, 0}),
       "P-0 ◆ ステータスの操作 ◆ ターゲット2 の HP を ＝ ターゲット3 の 「8 キャラ変数-8」"},
      // 巨大化 stores its values from 1.
      {Cmd(kCmdStatusOp2, {2, 5, 3}), "P-0 ◆ ステータスの操作2 ◆ ターゲット2 の 巨大化 を ×9 にする"},
      {Cmd(kCmdStatusOp2, {0, 3, 2}), "P-0 ◆ ステータスの操作2 ◆ 自分 の 飛行 を ON (ブロックに当たる) にする"},
      {Cmd(kCmdStatusOp2, {5, 1, 1}), "P-0 ◆ ステータスの操作2 ◆ 縦スクロール を オートスクロール にする"},
  });
  // The first object is named as the editor in use has it.
  SetObjectContext(eObjectContext::ItemEditor);
  EXPECT_EQ(ToUtf8(CmdSummaryText(Cmd(kCmdStatusOp2, {0, 1, 1}))), "P-0 ◆ ステータスの操作2 ◆ 主人公 の 透明 を ON にする");
}

TEST_F(SummaryTest, ArrangeNamesItsTargetAndVariableAsTheyAreNow) {
  const cEdCmd arrange = Cmd(kCmdArrange, {kCmdShot, 19, 1, 1, 12});
  EXPECT_EQ(ToUtf8(CmdSummaryText(arrange)), "P-0 ◆ アレンジ ◆ 次の 「ショット」 の 速度 ＋ 「012 鍵」");
  m_stageVars[12].m_strName = ToCp932("扉");
  EXPECT_EQ(ToUtf8(CmdSummaryText(arrange)), "P-0 ◆ アレンジ ◆ 次の 「ショット」 の 速度 ＋ 「012 扉」");
  ExpectLines({
      {Cmd(kCmdArrange, {kCmdSound, 0, 3, 2, 2}), "P-0 ◆ アレンジ ◆ 次の 「効果音の再生」 の 効果音 × 「002 2 キャラ変数-2」"},
      {Cmd(kCmdArrange, {kCmdStopMove, 0, 0, 0, 1}), "P-0 ◆ アレンジ ◆ ※不正です。設定を見直して下さい。"},
  });
}

TEST_F(SummaryTest, ItemCommandsUseTheSharedLinesUnderTheirOwnNumbers) {
  cEdCmd loop;
  loop.SetUpNew(kCmdLoop - kItemKindOffset, true);
  loop.m_vParam = {2, 4};
  EXPECT_EQ(ToUtf8(CmdSummaryText(loop)), "P-0 ◆ ループ ◆ 後続 4 個のコマンドを 2 回繰り返す");
  cEdCmd getItem;
  getItem.SetUpNew(kCmdGetItem - kItemKindOffset, true);
  getItem.m_vParam = {1, 2};
  EXPECT_EQ(ToUtf8(CmdSummaryText(getItem)), "P-0 ◆ アイテムの取得 ◆ 「002 鍵」");

  // Kinds outside their table, and damaged records, give a line or nothing
  // but never fail.
  cEdCmd stray;
  for (int kind : {0, kCmdLoop + 1, 255}) {
    stray.m_nKind = static_cast<uint8_t>(kind);
    EXPECT_EQ(CmdSummaryText(stray), "") << kind;
  }
  stray.m_bItemCmd = 1;
  stray.m_nKind = kCmdLoop - kItemKindOffset + 1;
  EXPECT_EQ(CmdSummaryText(stray), "");
  cEdCmd bare;
  bare.m_nKind = kCmdLine;
  EXPECT_EQ(ToUtf8(CmdSummaryText(bare)), "0 ◆ 直線移動 ◆ 前 時0 速10");
  bare.m_nKind = kCmdScreenColor;
  EXPECT_EQ(ToUtf8(CmdSummaryText(bare)), "0(0) ◆ 画面の色を変更 ◆ R0 G0 B0 0%");
}

}  // namespace
}  // namespace velmora::testing
