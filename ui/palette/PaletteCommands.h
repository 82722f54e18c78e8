#pragma once
#include <QImage>
#include <vector>

#include "ui/framework/Accelerators.h"
#include "ui/framework/WindowParts.h"

namespace velmora {

// Commands of the palette windows.
enum ePaletteCommand : int {
  kCmdChangeCount = 40088,
  kCmdMoveEntries = 40089,
  kCmdEdit = 40141,
  kCmdCut = 40142,
  kCmdCopy = 40143,
  kCmdPaste = 40144,
  kCmdDelete = 40145,
  kCmdInsert = 40146,
  kCmdInsertCopied = 40147,
  kCmdInsertCopiedAtEnd = 40151,
  kCmdInsertAtEnd = 40152,
  kCmdRightEdits = 40139,
  kCmdRightMenu = 40140,
};

inline constexpr int kToolImageSize = 16;

// The menu bar (menu 168) and the tool bar with its image strip.
const std::vector<cMenuItem>& PaletteMenuBar();
const std::vector<cToolButton>& PaletteToolButtons();
QImage PaletteToolStrip();

// The keys that a palette window passes to the stage window.
const cAccelTable& PaletteAccelerators();
bool IsStageCommand(int command);

// -1 when the command is no tool or right-button mode.
int ToolOfCommand(int command);
int RightModeOfCommand(int command);
bool ButtonIsDown(int command, int tool, int rightMode);

// The pop-up menu (menu 179) on an entry, with the entries that work there
// enabled.
std::vector<cMenuItem> PalettePopup(int index, bool clip, bool clipCut);

}  // namespace velmora
