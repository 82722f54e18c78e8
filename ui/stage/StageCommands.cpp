#include "ui/stage/StageCommands.h"

namespace velmora {
namespace {

using A = eMenuAction;

// Every command of the stage window. Entries whose windows come later stay
// in the table; the window enables only what it has a handler for.
const std::vector<cStageCommand> kCommands = {
    {A::New, {40003, 40079}, "ステージの新規作成(&N)\tCtrl+N", false, true, false},
    {A::Open, {40004, 40074}, "ステージを開く(&O)\tCtrl+O", false, true, false},
    {A::Close, {40130}, "ステージを閉じる(&C)", false, false, false},
    {A::Save, {40005, 40077}, "コモンパレットの上書き保存＆ステージの上書き保存(&S)\tCtrl+S", true, false, false},
    {A::SaveAs, {40076}, "コモンパレットの上書き保存＆ステージの新規保存(&A)", false, false, false},
    {A::SaveCommon, {40129}, "コモンパレットの上書き保存(&B)", false, true, false},
    {A::Undo, {40011, 40052}, "元に戻す(&U)\tCtrl+Z", true, false, false},
    {A::Redo, {40010, 40053}, "やり直し(&R)\tCtrl+Y", true, false, false},
    {A::LayerBlock, {40054, 40048}, "ブロック(&B)", true, false, true},
    {A::LayerChara, {40055, 40049}, "キャラ(&C)", true, false, true},
    {A::LayerItem, {40056, 40050}, "アイテム(&I)", true, false, true},
    {A::ClearAll, {40161}, "全ての配置データをクリア(&A)", false, false, false},
    {A::ClearBlocks, {40057}, "全てのブロックをクリア(&B)", false, false, false},
    {A::ClearCharas, {40058}, "全てのキャラをクリア(&C)", false, false, false},
    {A::ClearItems, {40059}, "全てのアイテムをクリア(&I)", false, false, false},
    {A::CommonPalettes, {40148}, "コモンパレット(&C)", true, false, true},
    {A::StagePalettes, {40149}, "ステージパレット(&S)", true, false, true},
    {A::GroupWindow, {40150}, "グループ情報(&G)", true, false, true},
    {A::StageSettings, {40013}, "ステージの設定(&E)", false, false, false},
    {A::LoadStagePalette, {40083}, "ステージパレットの読み込み(&L)", false, false, false},
    {A::SaveStagePalette, {40084}, "ステージパレットの保存(&A)", false, false, false},
    {A::StageOptions, {40085}, "ステージオプション(&O)", false, false, false},
    {A::EditOptions, {40086}, nullptr, false, false, false},
    {A::Database, {40063}, "データベース(&D)", false, true, false},
    {A::WorldMap, {40064}, "ワールドマップ(&W)", false, true, false},
    {A::System, {40122}, "システム(&S)", false, true, false},
    {A::ProjectOptions, {40062}, "プロジェクトオプション(&O)", false, true, false},
    {A::TestPlay, {40165, 40006, 40060, 40081}, "テストプレイ(&T)\tF5 or Ctrl+T", true, false, false},
    {A::TestPlayAll, {40133, 40131, 40134}, "ゲーム全体のテストプレイ(&G)\tF7 or Ctrl+G", false, true, false},
    {A::BitmapTool, {40061}, "ビットマップ変換ツール(&B)", false, true, false},
    {A::WhereUsed, {40901}, "使用箇所の検索(&F)", false, true, false},
    {A::Compare, {40902}, "比較(&D)", true, false, false},
    {A::CompareClear, {40903}, "比較の印を消す(&X)", true, false, false},
};

struct cPopupRow {
  const char* title;
  std::vector<A> actions;  // a repeated action stands for nothing: see kSeparator
};

constexpr A kSeparator = A::EditOptions;  // has no menu entry, so it marks a separator

const std::vector<cPopupRow> kPopups = {
    {"ファイル(&F)", {A::New, A::Open, A::Close, kSeparator, A::Save, A::SaveAs, A::SaveCommon}},
    {"編集(&E)", {A::Undo, A::Redo, kSeparator, A::ClearAll, A::ClearBlocks, A::ClearCharas, A::ClearItems}},
    {"レイヤー(&L)", {A::LayerBlock, A::LayerChara, A::LayerItem}},
    {"表示(&V)", {A::CommonPalettes, A::StagePalettes, A::GroupWindow}},
    {"ステージ(&S)",
     {A::StageSettings, kSeparator, A::LoadStagePalette, A::SaveStagePalette, kSeparator, A::StageOptions, kSeparator,
      A::Compare, A::CompareClear}},
    {"プロジェクト(&P)", {A::Database, A::WorldMap, A::System, kSeparator, A::ProjectOptions, kSeparator, A::WhereUsed}},
    {"テストプレイ(&T)", {A::TestPlay, A::TestPlayAll}},
    {"ツール(&O)", {A::BitmapTool}},
};

const std::vector<cToolButton> kToolButtons = {
    {0, 40079, "新規作成"},
    {1, 40074, "開く"},
    {2, 40077, "上書き保存"},
    {0, 0, ""},
    {3, 40052, "元に戻す"},
    {4, 40053, "やり直し"},
    {0, 0, ""},
    {kStandardToolImages + 0, 40048, "ブロックパレット", true},
    {kStandardToolImages + 1, 40049, "キャラパレット", true},
    {kStandardToolImages + 2, 40050, "アイテムパレット", true},
    {0, 0, ""},
    {kStandardToolImages + 3, 40081, "テストプレイ"},
    {kStandardToolImages + 4, 40134, "ゲーム全体のテストプレイ"},
};

const cAccelTable kAccelerators = {
    {Qt::Key_N, Qt::ControlModifier, 40003},
    {Qt::Key_O, Qt::ControlModifier, 40004},
    {Qt::Key_S, Qt::ControlModifier, 40005},
    {Qt::Key_Z, Qt::ControlModifier, 40011},
    {Qt::Key_Y, Qt::ControlModifier, 40010},
    {Qt::Key_T, Qt::ControlModifier, 40060},
    {Qt::Key_F5, Qt::NoModifier, 40165},
    {Qt::Key_G, Qt::ControlModifier, 40131},
    {Qt::Key_F7, Qt::NoModifier, 40133},
    // For the dialogs that share the table; the stage window ignores them.
    {Qt::Key_C, Qt::ControlModifier, 40001},
    {Qt::Key_D, Qt::ControlModifier, 40162},
    {Qt::Key_I, Qt::ControlModifier, 40002},
    {Qt::Key_V, Qt::ControlModifier, 40007},
    {Qt::Key_X, Qt::ControlModifier, 40009},
    {Qt::Key_Delete, Qt::NoModifier, 40008},
    {Qt::Key_Space, Qt::NoModifier, 40163},
};

}  // namespace

const std::vector<cStageCommand>& StageCommands() { return kCommands; }

const cStageCommand* FindStageCommand(int id) {
  for (const cStageCommand& command : kCommands) {
    for (int each : command.ids) {
      if (each != 0 && each == id) return &command;
    }
  }
  return nullptr;
}

const cStageCommand& StageCommandOf(eMenuAction action) {
  for (const cStageCommand& command : kCommands) {
    if (command.action == action) return command;
  }
  return kCommands.front();
}

std::vector<cMenuPopup> StageMenu() {
  std::vector<cMenuPopup> menu;
  for (const cPopupRow& row : kPopups) {
    cMenuPopup popup{row.title, {}};
    for (A action : row.actions) {
      const cStageCommand& command = StageCommandOf(action);
      if (!command.menuText) {
        popup.items.push_back({});
        continue;
      }
      cMenuItem item;
      item.command = command.ids[0];
      item.text = command.menuText;
      item.checkable = command.checkable;
      popup.items.push_back(item);
    }
    menu.push_back(std::move(popup));
  }
  return menu;
}

const std::vector<cToolButton>& StageToolButtons() { return kToolButtons; }

const cAccelTable& StageAccelerators() { return kAccelerators; }

}  // namespace velmora
