#include "ui/palette/PaletteCommands.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <string>

#include "ui/palette/SurfaceImage.h"
#include "graphics/Surface.h"

namespace velmora {
namespace {

constexpr std::array<int, 5> kToolCommands = {40044, 40045, 40046, 40047, 40087};
constexpr std::array<int, 2> kRightModeCommands = {kCmdRightEdits, kCmdRightMenu};
constexpr std::array<int, 7> kStageCommands = {40003, 40004, 40005, 40006, 40010, 40011, 40133};

// Images 0..4 are the pen strip's, 5 and 6 the right-button strip's.
constexpr const char* kPenStrip = "e_bmp\\ToolBar_Pen.bmp";
constexpr const char* kRightModeStrip = "e_bmp\\ToolBar_PltEdit.bmp";

template <size_t N>
int PositionOf(const std::array<int, N>& table, int value) {
  const auto found = std::find(table.begin(), table.end(), value);
  return found == table.end() ? -1 : static_cast<int>(found - table.begin());
}

QImage LoadStrip(const char* name) {
  cSurface surface;
  cSurfaceSpec request;
  request.name = name;
  if (surface.TryLoad(request) != eSurfaceLoad::Ok) return QImage();
  return ToImage(surface);
}

// Which popup entries work: on entry 0 only the appends, elsewhere the
// entry commands, and those of the clipboard when it holds an entry.
bool PopupEnabled(int command, int index, bool clip, bool clipCut) {
  if (command == kCmdEdit) return false;  // the entry editor is not part of this build yet
  if (command == kCmdInsertAtEnd) return true;
  if (command == kCmdInsertCopiedAtEnd) return clip;
  if (index == 0) return false;
  if (command == kCmdInsertCopied) return clip;
  if (command == kCmdPaste) return clip && !clipCut;
  return true;
}

}  // namespace

const std::vector<cMenuItem>& PaletteMenuBar() {
  static const std::vector<cMenuItem> items = {
      {kCmdChangeCount, "データ数の変更(&C)"},
      {kCmdMoveEntries, "データの移動(&M)"},
  };
  return items;
}

const std::vector<cToolButton>& PaletteToolButtons() {
  static const std::vector<cToolButton> buttons = {
      {0, 40044, "普通", true},
      {1, 40045, "直線", true},
      {2, 40046, "矩形", true},
      {3, 40047, "塗り潰し", true},
      {4, 40087, "パラメーターの編集", true},
      {0, 0, "", false},
      {5, kCmdRightEdits, "右クリックでパレットデータの編集", true},
      {6, kCmdRightMenu, "右クリックでメニュー", true},
  };
  return buttons;
}

QImage PaletteToolStrip() {
  const QImage pen = LoadStrip(kPenStrip);
  const QImage right = LoadStrip(kRightModeStrip);
  QImage strip(7 * kToolImageSize, kToolImageSize, QImage::Format_RGB32);
  strip.fill(Qt::lightGray);
  QPainter painter(&strip);
  if (!pen.isNull()) painter.drawImage(0, 0, pen);
  if (!right.isNull()) painter.drawImage(5 * kToolImageSize, 0, right);
  return strip;
}

const cAccelTable& PaletteAccelerators() {
  static const cAccelTable table = {
      {Qt::Key_N, Qt::ControlModifier, 40003}, {Qt::Key_O, Qt::ControlModifier, 40004},
      {Qt::Key_S, Qt::ControlModifier, 40005}, {Qt::Key_T, Qt::ControlModifier, 40006},
      {Qt::Key_F5, Qt::NoModifier, 40006},     {Qt::Key_Y, Qt::ControlModifier, 40010},
      {Qt::Key_Z, Qt::ControlModifier, 40011}, {Qt::Key_G, Qt::ControlModifier, 40133},
      {Qt::Key_F7, Qt::NoModifier, 40133},
  };
  return table;
}

bool IsStageCommand(int command) { return PositionOf(kStageCommands, command) >= 0; }
int ToolOfCommand(int command) { return PositionOf(kToolCommands, command); }
int RightModeOfCommand(int command) { return PositionOf(kRightModeCommands, command); }

bool ButtonIsDown(int command, int tool, int rightMode) {
  if (const int buttonTool = ToolOfCommand(command); buttonTool >= 0) return buttonTool == tool;
  return RightModeOfCommand(command) == rightMode;
}

std::vector<cMenuItem> PalettePopup(int index, bool clip, bool clipCut) {
  static const std::vector<cMenuItem> layout = {
      {kCmdEdit, "編集"},
      {0, ""},
      {kCmdCut, "切り取り"},
      {kCmdCopy, "コピー"},
      {kCmdPaste, "貼り付け"},
      {kCmdDelete, "削除"},
      {0, ""},
      {kCmdInsert, "新規挿入"},
      {kCmdInsertCopied, "コピーしたデータを挿入"},
      {0, ""},
      {kCmdInsertCopiedAtEnd, "末尾へコピーしたデータを作成"},
      {kCmdInsertAtEnd, "末尾へ新規作成"},
  };
  std::vector<cMenuItem> menu = layout;
  for (cMenuItem& item : menu) {
    if (item.command != 0) item.enabled = PopupEnabled(item.command, index, clip, clipCut);
  }
  return menu;
}

}  // namespace velmora
