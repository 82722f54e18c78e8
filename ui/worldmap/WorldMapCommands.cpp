#include "ui/worldmap/WorldMapCommands.h"

namespace velmora {
namespace {

using A = eWorldAction;

const std::vector<cWorldCommand> kCommands = {
    {A::Save, 40301, "上書き保存(&S)\tCtrl+S", false},
    {A::Exit, 40302, "終了(&E)", false},
    {A::Undo, 40303, "元に戻す(&U)\tCtrl+Z", false},
    {A::Redo, 40304, "やり直し(&R)\tCtrl+Y", false},
    {A::ChipMode, 40305, "マップチップ(&M)", true},
    {A::EventMode, 40306, "イベント(&E)", true},
    {A::ClearChips, 40307, "全てのマップチップをクリア(&M)", false},
    {A::ClearEvents, 40308, "全てのイベントをクリア(&V)", false},
    {A::Settings, 40309, "ワールドマップの設定(&W)", false},
};

int IdOf(A action) {
  for (const cWorldCommand& command : kCommands) {
    if (command.action == action) return command.id;
  }
  return 0;
}

struct cPopupRow {
  const char* title;
  std::vector<int> ids;  // 0 is a separator
};

std::vector<cPopupRow> MenuRows() {
  return {
      {"ファイル(&F)", {IdOf(A::Save), 0, IdOf(A::Exit)}},
      {"編集(&E)", {IdOf(A::Undo), IdOf(A::Redo), 0, IdOf(A::ClearChips), IdOf(A::ClearEvents)}},
      {"パレット(&P)", {IdOf(A::ChipMode), IdOf(A::EventMode)}},
      {"ワールドマップ(&W)", {IdOf(A::Settings)}},
  };
}

constexpr int kStandardImages = 3;

const std::vector<cToolButton> kToolButtons = {
    {0, 40301, "上書き保存"},
    {1, 40303, "元に戻す"},
    {2, 40304, "やり直し"},
    {0, 0, ""},
    {kStandardImages + 0, 40305, "マップチップパレット", true},
    {kStandardImages + 1, 40306, "イベントパレット", true},
};

const cAccelTable kAccelerators = {
    {Qt::Key_S, Qt::ControlModifier, 40301},
    {Qt::Key_Z, Qt::ControlModifier, 40303},
    {Qt::Key_Y, Qt::ControlModifier, 40304},
};

struct cPopupEntry {
  eWorldPopup command;
  int id;
  const char* text;
};

constexpr cPopupEntry kPopup[] = {
    {eWorldPopup::Edit, 40311, "編集"},    {eWorldPopup::Cut, 40312, "切り取り"},
    {eWorldPopup::Copy, 40313, "コピー"},  {eWorldPopup::Paste, 40314, "貼り付け"},
    {eWorldPopup::New, 40315, "新規作成"}, {eWorldPopup::Delete, 40316, "削除"},
};

}  // namespace

const std::vector<cWorldCommand>& WorldCommands() { return kCommands; }

const cWorldCommand* FindWorldCommand(int id) {
  for (const cWorldCommand& command : kCommands) {
    if (command.id == id) return &command;
  }
  return nullptr;
}

std::vector<cMenuPopup> WorldMenu() {
  std::vector<cMenuPopup> menu;
  for (const cPopupRow& row : MenuRows()) {
    cMenuPopup popup{row.title, {}};
    for (int id : row.ids) {
      const cWorldCommand* command = FindWorldCommand(id);
      cMenuItem item;
      if (command) {
        item.command = id;
        item.text = command->menuText;
        item.checkable = command->checkable;
      }
      popup.items.push_back(item);
    }
    menu.push_back(std::move(popup));
  }
  return menu;
}

const std::vector<cToolButton>& WorldToolButtons() { return kToolButtons; }

const cAccelTable& WorldAccelerators() { return kAccelerators; }

std::vector<cMenuItem> WorldPopupMenu(const cWorldMapEditor& editor, int x, int y) {
  std::vector<cMenuItem> menu;
  for (const cPopupEntry& entry : kPopup) {
    cMenuItem item;
    item.command = entry.id;
    item.text = entry.text;
    item.enabled = editor.PopupEnabled(entry.command, x, y);
    menu.push_back(item);
  }
  return menu;
}

bool WorldPopupOf(int id, eWorldPopup& command) {
  for (const cPopupEntry& entry : kPopup) {
    if (entry.id != id) continue;
    command = entry.command;
    return true;
  }
  return false;
}

}  // namespace velmora
