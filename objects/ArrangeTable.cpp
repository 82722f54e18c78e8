#include <array>

#include "objects/CmdTable.h"

namespace velmora {
namespace {

constexpr int kBig = 999999;

// Limits shared by several kinds.
constexpr cParamDef kSound{"効果音", 1, 9999};
constexpr cParamDef kForce{"勢力", 0, 7};
constexpr cParamDef kZ{"Z座標", 0, 7};
constexpr cParamDef kPower{"威力", -kBig, kBig};
constexpr cParamDef kImpact{"衝撃", -20, 20};
constexpr cParamDef kEffect{"エフェクト", 1, 999};
constexpr cParamDef kGetItem{"取得アイテム", 1, 9999};
constexpr cParamDef kAngle{"角度", -7200, 7200};
constexpr cParamDef kAngleClone{"分身値による増加角度", -7200, 7200};
constexpr cParamDef kForm1{"フォーメーション固有1", 0, 999};
constexpr cParamDef kForm2{"フォーメーション固有2", 0, 999};
constexpr cParamDef kForm3{"フォーメーション固有3", 0, 999};
constexpr cParamDef kTargetShiftX{"目標のズレX(bl)", -640, 640};
constexpr cParamDef kTargetShiftXDot{"目標Xのズレ(dot)", -640, 640};
constexpr cParamDef kTargetShiftY{"目標のズレY(bl)", -640, 640};
constexpr cParamDef kTargetShiftYDot{"目標Yのズレ(dot)", -640, 640};
constexpr cParamDef kScreenX{"座標X", 0, 16383};
constexpr cParamDef kScreenY{"座標Y", 0, 16383};
constexpr cParamDef kShowShiftX{"表示位置のズレX(dot)", -999, 999};
constexpr cParamDef kShowShiftY{"表示位置のズレY(dot)", -999, 999};
constexpr cParamDef kScale{"表示倍率(%)", 1, 1000};
constexpr cParamDef kSummonShiftX{"召喚位置のズレX(dot)", -640, 640};
constexpr cParamDef kSummonShiftY{"召喚位置のズレY(dot)", -640, 640};
constexpr cParamDef kSummonCount{"数", 1, 127};

constexpr cParamDef kLine[] = {
    {"目標X", -16383, 16383}, {"目標X(dot)", -640, 640}, {"目標Y", -16383, 16383}, {"目標Y(dot)", -640, 640},
    kAngle, kAngleClone,
};
constexpr cParamDef kCharge[] = {kTargetShiftX, kTargetShiftXDot, kTargetShiftY, kTargetShiftYDot, kAngle, kAngleClone};
constexpr cParamDef kHoming[] = {
    {"誘導性能の悪さ", 0, 10}, {"分身値による増加誘導性能の悪さ", 0, 10},
    kTargetShiftX, kTargetShiftXDot, kTargetShiftY, kTargetShiftYDot,
};
constexpr cParamDef kSoundOnly[] = {kSound};
constexpr cParamDef kShot[] = {
    {"グラフィック", 1, 120},
    kZ,
    kForm1, kForm2, kForm3,
    {"発射数", 1, 127},
    {"発射数に対する分身数", 0, 20},
    {"角度のズレ", -7200, 7200},
    {"分身値による角度のズレ", -7200, 7200},
    {"分散角度", 0, 180},
    {"発射位置のズレX(dot)", -640, 640},
    {"分身値による発射位置のズレX(dot)", -640, 640},
    {"発射位置のズレY(dot)", -640, 640},
    {"分身値による発射位置のズレY(dot)", -640, 640},
    kSound,
    kForce,
    {"移動タイプ固有1", 0, 999}, {"移動タイプ固有2", 0, 999}, {"移動タイプ固有3", 0, 999},
    {"速度", -200, 200},
    {"分身値による増加速度", -200, 200},
    {"加速度", -200, 200},
    {"分身値による増加加速度", -200, 200},
    {"飛距離(hbl)", 0, 64},
    {"分身値による増加飛距離", -40, 40},
    {"存在時間(1/10s)", 1, 999},
    {"分身値よる増加存在時間", -99, 99},
    {"消滅値", 1, 9},
    kPower,
    kImpact,
    kEffect,
    kGetItem,
};
constexpr cParamDef kSword[] = {kForce, kZ, kPower, kImpact, kEffect, kGetItem, kSound};
constexpr cParamDef kSummonBlock[] = {
    {"ブロック", 1, 9999}, kForm1, kForm2, kForm3, kSummonCount, kSummonShiftX, kSummonShiftY, kSound,
};
constexpr cParamDef kSummonChara[] = {
    {"キャラ", 1, 9999}, {"存在時間", 1, 9999}, kForce, kForm1, kForm2, kForm3, kSummonCount,
    kSummonShiftX, kSummonShiftY, kSound,
};
constexpr cParamDef kSummonItem[] = {
    {"アイテム", 1, 9999}, {"存在時間", 1, 9999}, kForm1, kForm2, kForm3, kSummonCount,
    kSummonShiftX, kSummonShiftY, kSound,
};
constexpr cParamDef kStageClear[] = {
    {"次のステージの番号", 1, 99},
    {"次のステージの初期位置X(bl)", 0, 999},
    {"次のステージの初期位置Y(bl)", 0, 999},
    {"クリア後のワールドマップの位置X", 0, 999},
    {"クリア後のワールドマップの位置Y", 0, 999},
};
constexpr cParamDef kMessage[] = {{"メッセージID", 0, 999}, kScreenX, kScreenY, kShowShiftX, kShowShiftY};
constexpr cParamDef kWarp[] = {
    {"距離(hbl)", 0, 64}, {"分身値による増加距離(hbl)", -40, 40}, {"目標X", -16383, 16383},
    {"目標Y", -16383, 16383}, kTargetShiftXDot, kTargetShiftYDot,
};
constexpr cParamDef kTargetSet[] = {{"対象勢力", 0, 7}, {"対象キャラID", 0, 99}, {"キャラ変数と比較する数値", -kBig, kBig}};
constexpr cParamDef kStatusOp[] = {
    {"変数（左辺）", 1, 999}, {"定数", -kBig, kBig}, {"乱数の最小値", -kBig, kBig}, {"乱数の最大値", -kBig, kBig},
    {"変数（右辺）", 1, 999},
};
constexpr cParamDef kVanish[] = {{"対象勢力", 0, 7}};
constexpr cParamDef kGetItemOnly[] = {{"アイテム", 1, 9999}};
constexpr cParamDef kGraphic[] = {{"グラフィック", 1, 999}, {"ズレ", -999, 999}};
constexpr cParamDef kEffectRun[] = {kEffect, kScreenX, kScreenY, kShowShiftX, kShowShiftY, kScale};
constexpr cParamDef kCharaEffect[] = {{"キャラエフェクト", 1, 999}};
constexpr cParamDef kScrEffect[] = {{"画面エフェクト", 1, 999}};
constexpr cParamDef kPicture[] = {
    {"ピクチャー", 1, 9999}, {"ピクチャーID", 0, 999}, kScreenX, kScreenY, kShowShiftX, kShowShiftY, kScale,
};
constexpr cParamDef kScreenColor[] = {{"R", 0, 255}, {"G", 0, 255}, {"B", 0, 255}, {"%", 0, 100}};
constexpr cParamDef kBack[] = {{"背景番号", 1, 8}};
constexpr cParamDef kBgm[] = {{"BGM", 0, 999}};

const std::array<std::span<const cParamDef>, kCmdLoop + 1> kArrangeRows = [] {
  std::array<std::span<const cParamDef>, kCmdLoop + 1> rows{};
  rows[kCmdLine] = kLine;
  rows[kCmdCharge] = kCharge;
  rows[kCmdHoming] = kHoming;
  rows[kCmdTurn] = kSoundOnly;
  rows[kCmdJump] = kSoundOnly;
  rows[kCmdShot] = kShot;
  rows[kCmdSword] = kSword;
  rows[kCmdSummonBlock] = kSummonBlock;
  rows[kCmdSummonChara] = kSummonChara;
  rows[kCmdSummonItem] = kSummonItem;
  rows[kCmdStageClear] = kStageClear;
  rows[kCmdMessage] = kMessage;
  rows[kCmdWarp] = kWarp;
  rows[kCmdTargetSet] = kTargetSet;
  rows[kCmdStatusOp] = kStatusOp;
  rows[kCmdVanish] = kVanish;
  rows[kCmdGetItem] = kGetItemOnly;
  rows[kCmdGraphic] = kGraphic;
  rows[kCmdEffect] = kEffectRun;
  rows[kCmdCharaEffect] = kCharaEffect;
  rows[kCmdScrEffect] = kScrEffect;
  rows[kCmdPicture] = kPicture;
  rows[kCmdScreenColor] = kScreenColor;
  rows[kCmdBack] = kBack;
  rows[kCmdSound] = kSoundOnly;
  rows[kCmdBgm] = kBgm;
  return rows;
}();

}  // namespace

std::span<const cParamDef> ArrangeTable(int kind) {
  if (kind < 0 || static_cast<size_t>(kind) >= kArrangeRows.size()) return {};
  return kArrangeRows[static_cast<size_t>(kind)];
}

}  // namespace velmora
