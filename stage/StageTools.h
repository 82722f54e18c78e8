#pragma once
#include <vector>

#include "stage/Stage.h"

namespace velmora {

enum class eStageButton { Left, Right };
enum class eStageAction { Down, Move, Up, DoubleClick };

// One mouse event of the stage window, already in cells and clamped to the
// stage. A move names the button that is held.
struct cStageInput {
  int x = 0;
  int y = 0;
  eStageButton button = eStageButton::Left;
  eStageAction action = eStageAction::Down;
  bool shift = false;
};

// Tool numbers of `m_iTool`.
enum eStageTool { kToolPen, kToolLine, kToolRect, kToolFill, kToolParameter };

// The stage window's entry for mouse events. true when the stage needs a
// repaint.
bool StageMouse(const cStageInput& input);

// One step of a line from (px, py) towards cell (tx, ty), a tenth of a cell
// at a time for up to ten rounds. true once the target cell is reached.
bool StepLine(double& px, double& py, int tx, int ty);

// The cells of a line in the order the line tool writes them, outside the
// stage too; the n-th takes column n % brush width of the brush's first row.
std::vector<cCellPos> LineCells(int fromX, int fromY, int toX, int toY);

// The brush record that lands on (column, row) of a rectangle, counted
// from its top left cell: the brush tiles it from there.
inline int TileIndex(int column, int row, int brushW, int brushH) {
  return (row % brushH) * brushW + column % brushW;
}

// Opens the parameter editor on what stands under the cursor, switching
// to its layer for as long as the editor is open.
void EditCellUnder(int x, int y);

}  // namespace velmora
