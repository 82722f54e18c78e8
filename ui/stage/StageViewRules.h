#pragma once
#include <cstdint>
#include <string>

#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "graphics/stageview/StageView.h"

namespace velmora {

// The arithmetic of the stage view: where a mouse position falls, how the
// wheel and the player's place move the view, and what the scroll bars
// cover. No widgets here, so each rule can be checked on its own.

// The cursor frame, and the frames of a line drag's cells.
inline constexpr cColourRef kCursorColour = 0xFF0080;

struct cViewFrame {
  int clientWidth = 0;   // dots
  int clientHeight = 0;
  int scrollX = 0;       // the view's top left cell
  int scrollY = 0;
  int stageWidth = 0;    // cells
  int stageHeight = 0;
};

// The cell under a client position. Inside the client area the cell counts
// only when it lies on the stage; otherwise `previous` stays. Outside the
// area (a drag going on) the position is pulled back to the edge first and
// the cell held to the last column and row.
cCellPos CellAt(const cViewFrame& frame, int x, int y, cCellPos previous);

// Cells the view moves for one wheel event of `delta` (multiples of 120,
// towards the user negative). One step towards the user is always one cell,
// whatever its size.
int WheelCells(int delta);
// Whether the wheel scrolls the view up and down rather than sideways.
bool WheelScrollsVertically(int wheelDir, bool ctrlHeld);

// The first view of a stage in a view of `columns` x `rows` whole cells:
// its player in the middle, or the top left.
cCellPos InitialScroll(const cStage& stage, int columns, int rows);

// Content and page of one scroll bar in cells.
struct cBarRange {
  int maximum = 0;
  int page = 0;
};
cBarRange HorzBarRange(int stageWidth, int clientWidth);
cBarRange VertBarRange(int stageHeight, int clientHeight);

// The frame that marks the cursor, by the cursor mode: the brush for the
// pen, the rectangle or the range while one is dragged, else one cell.
cCellFrame CursorFrame(const cStageEdit& edit, cCellPos cursor);

// The status bar's words for the cursor cell; CP932.
std::string CursorStatusText(cCellPos cursor);

// The program's name as its windows show it; UTF-8.
inline constexpr const char* kProgramTitle = "ヴェルモラ";

// The window title: the program's name, and the stage file behind two
// blanks when there is one. CP932.
std::string StageWindowTitle(const std::string& path);

}  // namespace velmora
