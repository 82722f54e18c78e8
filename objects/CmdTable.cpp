#include "objects/CmdTable.h"

#include <array>

namespace velmora {
namespace {

using enum eCmdRecord;

constexpr cCmdInfo kCmdRows[] = {
    {"", 0, None, 0, 0, false, false, 0},
    {"ウエイト", 0, None, 207, 1, false, false, 0},
    {"直線移動", 0, Move, 208, 1, false, false, 6},
    {"地上折り返し移動", 0, Move, 259, 1, false, false, 0},
    {"円移動", 0, Move, 260, 1, false, false, 0},
    {"突撃移動", 0, Move, 261, 1, false, false, 6},
    {"誘導移動", 0, Move, 214, 1, false, false, 6},
    {"画面外回避移動", 0, Move, 262, 1, false, false, 0},
    {"移動の無効化", 0, None, 273, 1, false, false, 0},
    {"向き変更", 1, None, 263, 1, false, false, 1},
    {"ジャンプ", 5, None, 243, 1, true, false, 1},
    {"ショット", 0, Shot, 209, 1, false, false, 32},
    {"ソード", 0, Shot, 224, 0, false, true, 7},
    {"ブロック召喚", 0, Shot, 258, 1, false, false, 8},
    {"キャラ召喚", 0, Shot, 256, 1, false, false, 10},
    {"アイテム召喚", 0, Shot, 257, 1, false, false, 9},
    {"フローの操作", 4, CondList, 225, 0, true, false, 0},
    {"ステージクリア", 11, None, 245, 0, false, false, 5},
    {"ゲームウエイト", 1, None, 244, 0, false, false, 0},
    {"メッセージ", 19, None, 239, 0, false, false, 5},
    {"ワープ", 0, Move, 264, 0, true, false, 6},
    {"ターゲットの設定", 16, None, 265, 0, true, false, 3},
    {"ステータスの操作", 22, None, 215, 0, true, false, 5},
    {"ステータスの操作2", 5, None, 266, 0, true, false, 0},
    {"消滅", 3, None, 281, 0, true, false, 1},
    {"アイテムの取得", 2, None, 268, 0, true, false, 1},
    {"グラフィックの変更", 3, None, 232, 0, true, false, 2},
    {"基本アニメセットの変更", 1, None, 230, 0, true, false, 0},
    {"アニメの実行", 2, None, 227, 0, true, false, 0},
    {"エフェクトの実行", 9, None, 234, 0, true, false, 6},
    {"キャラエフェクトの実行", 3, None, 213, 0, true, false, 1},
    {"画面エフェクトの実行", 3, None, 231, 0, true, false, 1},
    {"ピクチャーの表示", 16, None, 233, 0, true, false, 7},
    {"画面の色を変更", 8, None, 238, 0, true, false, 4},
    {"背景の変更", 2, None, 240, 0, true, false, 1},
    {"効果音の再生", 1, None, 228, 0, true, false, 1},
    {"BGMの再生", 2, None, 229, 0, true, false, 1},
    {"コードの実行", 0, None, 252, 0, true, false, 0},
    {"アレンジ", 5, None, 279, 0, true, false, 0},
    {"ループ", 2, None, 280, 0, true, false, 0},
};
constexpr int kCmdRowCount = static_cast<int>(std::size(kCmdRows));

// An item's own rows: its kind 1, then the shared kinds from ステージクリア on.
constexpr int kItemRowCount = kCmdRowCount - kItemKindOffset;
constexpr std::array<cCmdInfo, kItemRowCount> kItemCmdRows = [] {
  std::array<cCmdInfo, kItemRowCount> rows{};
  rows[0] = kCmdRows[0];
  rows[kItemCmdFlowChange] = {"フローの変更", 2, None, 0, 0, true, false, 0};
  for (int kind = kItemCmdFlowChange + 1; kind < kItemRowCount; ++kind) rows[kind] = kCmdRows[kind + kItemKindOffset];
  return rows;
}();

}  // namespace

const std::span<const cCmdInfo> CmdTable{kCmdRows};
const std::span<const cCmdInfo> ItemCmdTable{kItemCmdRows};

}  // namespace velmora
