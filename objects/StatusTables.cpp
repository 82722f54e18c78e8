#include "objects/StatusTables.h"

#include "core/SystemText.h"

namespace velmora {
namespace {

constexpr int kBig = 999999;

const cStatusInfo kCharaStatus[] = {
    {"キャラ変数", -kBig, kBig, -kBig, kBig, false, true},
    {"HP", 0, kBig, -kBig, kBig, true, true},
    {"SP", 0, kBig, -kBig, kBig, true, true},
    {"最大HP", 0, kBig, -kBig, kBig, false, true},
    {"最大SP", 0, kBig, -kBig, kBig, false, true},
    {"キャラID", 0, 99, -99, 99, false, false},
    {"X座標", -16384, 16384, -16384, 16384, false, false},
    {"Y座標", -16384, 16384, -16384, 16384, false, false},
    {"Z座標", 0, 8, -8, 8, false, false},
    {"マーク番号", 0, 119, -121, 119, false, false},
    {"視界範囲(hbl)", 0, 40, -40, 40, false, true},
    {"体当たりの威力", -kBig, kBig, -kBig, kBig, false, true},
    {"体当たりの衝撃", -20, 20, -20, 20, false, true},
    {"防御力", 0, kBig, -kBig, kBig, false, true},
    {"衝撃耐性", 0, 20, -20, 20, false, true},
    {"止まりやすさ", 0, 200, -200, 200, false, true},
    {"倒したら獲得するスコア", -kBig, kBig, -kBig, kBig, false, true},
};

const cStatusInfo kSystemStatus[] = {
    {"時間", 0, 999, -999, 999, false, true},
    {"横スクロール速度", -480, 480, -480, 480, false, true},
    {"縦スクロール速度", -480, 480, -480, 480, false, true},
    {"スコア", 0, kBig, -kBig, kBig, false, true},
    {"残り人数", 0, 99, -99, 99, false, true},
};

const char* const kOnly[] = {"ON"};
const char* const kOffOn[] = {"OFF", "ON"};
const char* const kFly[] = {"OFF", "ON (ブロックをすり抜ける)", "ON (ブロックに当たる)", "ON (ブロックに当たると即死)"};
const char* const kInvincible[] = {"OFF", "ON (ショットが当たる)", "ON (ショットがすり抜ける)"};
const char* const kGiant[] = {"しない", "×4", "×9", "×16", "×25", "×36", "×49", "×64", "×81", "×100"};
const char* const kScroll[] = {"主人公の位置に合わせてスクロール", "オートスクロール"};

const cFlagInfo kCharaFlag[] = {
    {"消滅", 0, 0, 0, kOnly},
    {"透明", 0, 1, 0, kOffOn},
    {"向き固定", 0, 1, 0, kOffOn},
    {"飛行", 0, 3, 0, kFly},
    {"無敵", 0, 2, 0, kInvincible},
    {"巨大化", 1, 10, 1, kGiant},
    {"オートスクロールとシンクロ", 0, 1, 0, kOffOn},
};

const cFlagInfo kSystemFlag[] = {
    {"横スクロール", 0, 1, 0, kScroll},
    {"縦スクロール", 0, 1, 0, kScroll},
};

}  // namespace

const std::span<const cStatusInfo> CharaStatusTable{kCharaStatus};
const std::span<const cStatusInfo> SystemStatusTable{kSystemStatus};
const std::span<const cFlagInfo> CharaFlagTable{kCharaFlag};
const std::span<const cFlagInfo> SystemFlagTable{kSystemFlag};

const char* StatusLabel(std::span<const cStatusInfo> table, int row) {
  if (row < 0 || static_cast<size_t>(row) >= table.size()) return "";
  return SysText(table[static_cast<size_t>(row)].label);
}

const cFlagInfo* FlagAt(std::span<const cFlagInfo> table, int row) {
  if (row < 0 || static_cast<size_t>(row) >= table.size()) return nullptr;
  return &table[static_cast<size_t>(row)];
}

}  // namespace velmora
