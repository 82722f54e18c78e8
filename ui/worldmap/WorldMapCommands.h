#pragma once
#include <vector>

#include "project/WorldMapEditor.h"
#include "ui/framework/Accelerators.h"
#include "ui/framework/WindowParts.h"

namespace velmora {

// What a command of the world map window does; menu entry and tool bar
// button of one action share its id.
enum class eWorldAction { Save, Exit, Undo, Redo, ChipMode, EventMode, ClearChips, ClearEvents, Settings };

struct cWorldCommand {
  eWorldAction action;
  int id;
  const char* menuText;  // UTF-8
  bool checkable;
};

const std::vector<cWorldCommand>& WorldCommands();
// The row of an id, or null.
const cWorldCommand* FindWorldCommand(int id);

// Menu 155, the tool bar (three standard pictures, then the two of
// e_bmp\ToolBar_WorldPalette.bmp) and the keys of the window.
std::vector<cMenuPopup> WorldMenu();
const std::vector<cToolButton>& WorldToolButtons();
const cAccelTable& WorldAccelerators();

// Pop-up menu 163 on a cell in event mode, with what works there enabled;
// the command of a chosen entry, or none.
std::vector<cMenuItem> WorldPopupMenu(const cWorldMapEditor& editor, int x, int y);
bool WorldPopupOf(int id, eWorldPopup& command);

}  // namespace velmora
