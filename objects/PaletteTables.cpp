#include "objects/PaletteTables.h"

namespace velmora {
namespace {

const char* const kInheritSrc[] = {"継承しない", "コモンパレット", "ステージパレット"};
const char* const kGraphicKind[] = {"ブロック", "キャラ", "アイテム", "ショット", "専用bmp"};
const char* const kOnOff[] = {"OFF", "ON"};
const char* const kMarkShow[] = {"表示しない", "表示する", "エディターでのみ表示"};
const char* const kBlockType[] = {"当たらない", "当たる", "主人公が当たると即死"};
const char* const kBlockAction[] = {"なし",          "ジャンプ X=高さ(hbl)", "ジャンプ禁止",
                                    "移動速度変更 X=％", "左移動 X=移動速度",  "右移動 X=移動速度"};
const char* const kItemRef[] = {"なし", "コモンパレット", "ステージパレット"};
const char* const kRunMode[] = {"通常実行", "反転実行", "往復実行"};
const char* const kControl[] = {"プレイヤー", "コンピューター"};
const char* const kFly[] = {"OFF", "ON (ブロックをすり抜ける)", "ON (ブロックに当たる)", "ON (ブロックに当たると即死)"};
const char* const kInvincible[] = {"OFF", "ON (ショットが当たる)", "ON (ショットがすり抜ける)"};
const char* const kInvincibleFx[] = {"なし", "白", "黒", "赤", "緑", "青", "黄", "赤紫", "青紫", "4色"};
const char* const kGiant[] = {"しない", "×4", "×9", "×16", "×25", "×36", "×49", "×64", "×81", "×100"};
const char* const kSight[] = {"画面内全て", "キャラを中心とした円形", "キャラの前方に円形", "キャラを中心とした正方形",
                              "キャラの前方に正方形"};
const char* const kBodyHit[] = {"キャラ対キャラの当たり判定範囲（推奨）", "キャラ対ショットの当たり判定範囲",
                                "ショット対キャラの当たり判定範囲", "32×32"};
const char* const kActRange[] = {"画面内", "X座標のみ画面内", "Y座標のみ画面内", "全範囲"};
const char* const kActJudge[] = {"範囲かグループが真なら成立", "一度範囲かグループが真になると、以後無条件で成立",
                                 "範囲とグループが偽なら成立"};
const char* const kGetType[] = {"1回だけ取れる", "何回でも取れる", "取れない"};

}  // namespace

const cLabelTable InheritSrcTable{kInheritSrc};
const cLabelTable GraphicKindTable{kGraphicKind};
const cLabelTable OnOffTable{kOnOff};
const cLabelTable MarkShowTable{kMarkShow};
const cLabelTable BlockTypeTable{kBlockType};
const cLabelTable BlockActionTable{kBlockAction};
const cLabelTable ItemRefTable{kItemRef};
const cLabelTable RunModeTable{kRunMode};
const cLabelTable ControlTable{kControl};
const cLabelTable FlyTable{kFly};
const cLabelTable InvincibleTable{kInvincible};
const cLabelTable InvincibleFxTable{kInvincibleFx};
const cLabelTable GiantTable{kGiant, 1};
const cLabelTable SightTable{kSight};
const cLabelTable BodyHitTable{kBodyHit};
const cLabelTable ActRangeTable{kActRange};
const cLabelTable ActJudgeTable{kActJudge};
const cLabelTable GetTypeTable{kGetType};

}  // namespace velmora
