#include "objects/CondTables.h"

#include <iterator>

namespace velmora {
namespace {

const char* const kCondKind[] = {"",           "コモン変数条件",  "ステージ変数条件", "キャラ変数条件",
                                 "ステータス条件", "ステータス条件2", "ステータス条件3", "距離条件"};
const char* const kCondJudge[] = {"全ての条件が真なら成立", "1つ以上の条件が真なら成立"};
const char* const kKeyJudge[] = {"全てのキーが真なら成立", "1つ以上のキーが真なら成立",
                                 "1つだけキーが真なら成立"};
const char* const kKeyState[] = {"--", "押", "離"};
const char* const kKeyName[] = {"方向キーニュートラル", "←", "→", "↑", "↓", "←↑", "←↓", "→↑", "→↓",
                                "方向キーのいずれか", "アクションキーニュートラル", "Z", "X", "C", "V", "A", "S", "D", "F"};
const char* const kCondRelation[] = {"である", "でない", "以上",         "以下",
                                     "より上", "より下", "の倍数である", "の倍数でない"};
const char* const kCondBool[] = {"なら", "でないなら"};
const char* const kLeftType[] = {"ステータス", "変数"};
const char* const kRightType[] = {"定数", "乱数", "ステータス", "変数"};
const char* const kVarScope[] = {"コモン変数", "ステージ変数"};
const char* const kCoordType[] = {"相対座標", "絶対座標", "画面座標"};
const char* const kGiantPos[] = {"キャラの中心", "キャラの中央下", "歩行なら中央下、飛行なら中心"};
const char* const kCharaVar[] = {"1 キャラ変数-1", "2 キャラ変数-2", "3 キャラ変数-3", "4 キャラ変数-4",
                                 "5 キャラ変数-5", "6 キャラ変数-6", "7 キャラ変数-7", "8 キャラ変数-8"};
const char* const kDistTarget[] = {"主人公", "ターゲット1", "ターゲット2", "ターゲット3", "ターゲット4"};
const char* const kDistAxis[] = {"横", "前", "後", "縦", "前Y", "後Y", "円"};
const char* const kDistRange[] = {"以内", "外"};
const char* const kDistShow[] = {"表示しない", "表示する", "テストプレイ時のみ表示"};
const char* const kDistColor[] = {"赤", "緑", "青", "黄", "赤紫", "青紫", "黒", "虹"};
const char* const kCharaState[] = {"左向き", "右向き", "ブロックに乗っている(ブロックキャラも含む)", "画面内にいる",
                                   "存在している"};

static_assert(std::size(kKeyName) == kKeyCount);

}  // namespace

const cLabelTable CondKindTable{kCondKind};
const cLabelTable CondJudgeTable{kCondJudge};
const cLabelTable KeyJudgeTable{kKeyJudge};
const cLabelTable KeyStateTable{kKeyState};
const cLabelTable KeyNameTable{kKeyName};
const cLabelTable CondRelationTable{kCondRelation};
const cLabelTable CondBoolTable{kCondBool};
const cLabelTable LeftTypeTable{kLeftType};
const cLabelTable RightTypeTable{kRightType};
const cLabelTable VarScopeTable{kVarScope};
const cLabelTable CoordTypeTable{kCoordType};
const cLabelTable GiantPosTable{kGiantPos};
const cLabelTable CharaVarTable{kCharaVar, 1};
const cLabelTable DistTargetTable{kDistTarget};
const cLabelTable DistAxisTable{kDistAxis};
const cLabelTable DistRangeTable{kDistRange};
const cLabelTable DistShowTable{kDistShow};
const cLabelTable DistColorTable{kDistColor};
const cLabelTable CharaStateTable{kCharaState};

}  // namespace velmora
