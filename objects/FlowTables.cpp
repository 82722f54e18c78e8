#include "objects/FlowTables.h"

namespace velmora {
namespace {

const char* const kTrigger[] = {
    "常時",
    "ダメージを受けた時（設定値「威力」が0以外）",
    "ダメージを受けた時（受けたダメージが1以上）",
    "衝撃を受けた時（設定値「衝撃」が0以外）",
    "衝撃を受けた時（受けた衝撃が1以上か-1以下）",
    "死亡した時",
    "キャラに当たった時",
    "ブロックキャラに当たった時",
    "ブロックキャラに乗っている時",
    "ショットに当たった時",
    "アイテムに当たった時",
    "ブロックに当たった時",
    "自分の左右にブロックが当たった時",
    "自分の左にブロックが当たった時",
    "自分の右にブロックが当たった時",
    "自分の上下にブロックが当たった時",
    "自分の上にブロックが当たった時",
    "自分の下にブロックが当たった時",
    "主人公に乗られている時",
    "キャラに乗られている時",
    "アタックでダメージを与えた時（設定値「威力」が0以外）",
    "アタックでダメージを与えた時（与えたダメージが1以上）",
    "アタックで衝撃を与えた時（設定値「衝撃」が0以外）",
    "アタックで衝撃を与えた時（与えた衝撃が1以上か-1以下）",
    "アタックを当てた時",
    "ステージ開始前",
    "なし（フローの操作コマンドで実行）",
};
const char* const kFlowId[] = {"-", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M",
                               "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"};
const char* const kFlowGroup[] = {"-", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m",
                                  "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z"};
const char* const kFlowLetter[] = {"全て", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M",
                                   "N",    "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"};
const char* const kObjectSelf[] = {"自分", "ターゲット1", "ターゲット2", "ターゲット3", "ターゲット4"};
const char* const kFlowOp[] = {"開始", "終了", "一時停止", "再開", "削除", "永久停止"};
const char* const kFlowRange[] = {"このフロー", "このフロー以外全て", "指定IDのフロー"};
const char* const kClearNext[] = {"次のステージへ", "番号で指定", "パスで指定", "ワールドクリア"};
const char* const kClearFace[] = {"左向き", "右向き", "ステージクリア時の向きと同じ"};
const char* const kMsgPos[] = {"画面中央に表示",
                               "自分の上に表示",
                               "自分の下に表示",
                               "自分の中心に表示",
                               "主人公の上に表示",
                               "主人公の下に表示",
                               "主人公の中心に表示",
                               "画面座標で指定（左上を指定）",
                               "画面座標で指定（中心を指定）",
                               "ステージ座標で指定（左上を指定）",
                               "ステージ座標で指定（中心を指定）"};
const char* const kEffectPos[] = {"画面中央に表示",
                                  "キャラの中心に表示",
                                  "主人公の中心に表示",
                                  "画面座標で指定（左上を指定）",
                                  "画面座標で指定（中心を指定）",
                                  "ステージ座標で指定（左上を指定）",
                                  "ステージ座標で指定（中心を指定）"};
const char* const kShowTime[] = {"進行キーが押されるまで表示", "ステージ終了まで表示", "時間で指定"};
const char* const kTargetSet[] = {"主人公",
                                  "自分",
                                  "最も近いキャラ",
                                  "キャラ（キャラIDで指定）",
                                  "親キャラ（自分を召喚したキャラ）",
                                  "子キャラ（最後に召喚したキャラ）",
                                  "子キャラ（条件付き。後で召喚したキャラ優先)",
                                  "ターゲット1",
                                  "ターゲット2",
                                  "ターゲット3",
                                  "ターゲット4"};
const char* const kTargetRange[] = {"全範囲（画面内のキャラ優先）", "全範囲", "画面内"};
const char* const kTargetNone[] = {"ターゲット無し", "ターゲットを変更しない"};
const char* const kOperator[] = {"＝", "＋", "－", "×", "÷", "÷ X の余り", "X ％"};
const char* const kPercent[] = {"通常の計算", "最大値に対する％で指定", "現在値に対する％で指定"};
const char* const kArrangeVar[] = {"コモン変数", "ステージ変数", "キャラ変数"};
const char* const kVanish[] = {"キャラ",
                               "ショット",
                               "子以下のキャラ",
                               "子のショット",
                               "子以下のキャラと子以下のショット",
                               "子以下のキャラと孫以下のショット"};
const char* const kVanishRange[] = {"画面内", "全範囲"};
const char* const kShowToggle[] = {"表示", "非表示", "反転(表示⇔非表示)"};
const char* const kTurn[] = {"左を向く",
                             "右を向く",
                             "ターゲット1がいる方を向く",
                             "ターゲット1がいる方の逆を向く",
                             "ターゲット2がいる方を向く",
                             "ターゲット2がいる方の逆を向く",
                             "ターゲット3がいる方を向く",
                             "ターゲット3がいる方の逆を向く",
                             "ターゲット4がいる方を向く",
                             "ターゲット4がいる方の逆を向く",
                             "最後にブロックが当たった方を向く",
                             "最後にブロックが当たった方の逆を向く"};
const char* const kJump[] = {"高さがキーで調節できない", "高さがキーで調節できる(主人公のみ有効)",
                             "慣性移動速度に応じて高さを決定(主人公のみ有効)"};

}  // namespace

const cLabelTable TriggerTable{kTrigger};
const cLabelTable FlowIdTable{kFlowId};
const cLabelTable FlowGroupTable{kFlowGroup};
const cLabelTable FlowLetterTable{kFlowLetter};
const cLabelTable ObjectSelfTable{kObjectSelf};
const cLabelTable FlowOpTable{kFlowOp};
const cLabelTable FlowRangeTable{kFlowRange};
const cLabelTable ClearNextTable{kClearNext};
const cLabelTable ClearFaceTable{kClearFace};
const cLabelTable MsgPosTable{kMsgPos};
const cLabelTable EffectPosTable{kEffectPos};
const cLabelTable ShowTimeTable{kShowTime};
const cLabelTable TargetSetTable{kTargetSet};
const cLabelTable TargetRangeTable{kTargetRange};
const cLabelTable TargetNoneTable{kTargetNone};
const cLabelTable OperatorTable{kOperator};
const cLabelTable PercentTable{kPercent};
const cLabelTable ArrangeVarTable{kArrangeVar};
const cLabelTable VanishTable{kVanish};
const cLabelTable VanishRangeTable{kVanishRange};
const cLabelTable ShowToggleTable{kShowToggle};
const cLabelTable TurnTable{kTurn};
const cLabelTable JumpTable{kJump};

}  // namespace velmora
