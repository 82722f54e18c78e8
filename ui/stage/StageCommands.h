#pragma once
#include <array>
#include <vector>

#include "ui/framework/Accelerators.h"
#include "ui/framework/WindowParts.h"

namespace velmora {

// What a command of the stage window does; several ids may ask for the same
// action (a menu entry and its tool bar button).
enum class eMenuAction {
  New, Open, Close, Save, SaveAs, SaveCommon,
  Undo, Redo,
  LayerBlock, LayerChara, LayerItem,
  ClearAll, ClearBlocks, ClearCharas, ClearItems,
  CommonPalettes, StagePalettes, GroupWindow,
  StageSettings, LoadStagePalette, SaveStagePalette, StageOptions, EditOptions,
  Database, WorldMap, System, ProjectOptions,
  TestPlay, TestPlayAll, BitmapTool,
  WhereUsed, Compare, CompareClear,
};

struct cStageCommand {
  eMenuAction action;
  std::array<int, 4> ids;  // the first is the menu's; unused slots 0
  const char* menuText;    // UTF-8; null for a command without a menu entry
  bool needsStage;         // does nothing while no stage is open
  bool withoutStage;       // stays enabled while no stage is open
  bool checkable;
};

const std::vector<cStageCommand>& StageCommands();
// The row of a command id, or null.
const cStageCommand* FindStageCommand(int id);
const cStageCommand& StageCommandOf(eMenuAction action);

// Menu 128 and the tool bar, built from the rows above.
std::vector<cMenuPopup> StageMenu();
// Tool bar images: the first five are the standard file and undo pictures,
// then the three of e_bmp\ToolBar_Palette and the two of ToolBar_TestPlay.
inline constexpr int kStandardToolImages = 5;
const std::vector<cToolButton>& StageToolButtons();
// Accelerator table 105.
const cAccelTable& StageAccelerators();

inline constexpr int kCmdTestPlayKey = 40006;     // F5 in the stage window
inline constexpr int kCmdTestPlayAllKey = 40133;  // F7 in the stage window

}  // namespace velmora
