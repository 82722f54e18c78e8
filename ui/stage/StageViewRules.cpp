#include "ui/stage/StageViewRules.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "core/SystemText.h"
#include "stage/StageBrush.h"

namespace velmora {
namespace {

constexpr int kWheelNotch = 120;
// A 16-bit delta read unsigned: a step towards the user turns into a huge
// count, which the rule below folds to one cell.
constexpr int kWheelTowardsUser = 10;

int ClampCell(int value, int size) { return std::clamp(value, 0, std::max(size - 1, 0)); }

}  // namespace

cCellPos CellAt(const cViewFrame& frame, int x, int y, cCellPos previous) {
  const bool inside = x >= 0 && y >= 0 && x < frame.clientWidth && y < frame.clientHeight;
  if (inside) {
    const int cellX = x / kCellDots + frame.scrollX;
    const int cellY = y / kCellDots + frame.scrollY;
    if (cellX < frame.stageWidth && cellY < frame.stageHeight) return {cellX, cellY};
    return previous;
  }
  const int clampedX = std::clamp(x, 0, std::max(frame.clientWidth - 1, 0));
  const int clampedY = std::clamp(y, 0, std::max(frame.clientHeight - 1, 0));
  return {ClampCell(clampedX / kCellDots + frame.scrollX, frame.stageWidth),
          ClampCell(clampedY / kCellDots + frame.scrollY, frame.stageHeight)};
}

int WheelCells(int delta) {
  const int steps = static_cast<uint16_t>(delta) / kWheelNotch;
  const int n = steps >= kWheelTowardsUser ? -1 : steps;
  return -n;
}

bool WheelScrollsVertically(int wheelDir, bool ctrlHeld) { return (wheelDir == 1) != ctrlHeld; }

cCellPos InitialScroll(const cStage& stage, int columns, int rows) {
  if (stage.m_vecCharaCell.empty()) return {0, 0};
  const cCellPos player = stage.FindPlayer();
  if (player.x < 0) return {0, 0};
  return {std::clamp(player.x - columns / 2, 0, std::max(stage.m_nWidth - columns, 0)),
          std::clamp(player.y - rows / 2, 0, std::max(stage.m_nHeight - rows, 0))};
}

cBarRange HorzBarRange(int stageWidth, int clientWidth) { return {stageWidth - 1, clientWidth / kCellDots}; }

cBarRange VertBarRange(int stageHeight, int clientHeight) { return {stageHeight - 1, clientHeight / kCellDots}; }

namespace {

constexpr cColourRef kRangeColour = 0x8000FF;

cCellFrame Spanning(int fromX, int fromY, cCellPos to, cColourRef colour) {
  return {std::min(fromX, to.x), std::min(fromY, to.y), std::abs(to.x - fromX) + 1, std::abs(to.y - fromY) + 1,
          colour};
}

}  // namespace

cCellFrame CursorFrame(const cStageEdit& edit, cCellPos cursor) {
  switch (edit.m_iCursorMode) {
    case kCursorPen: return {cursor.x, cursor.y, edit.m_iBrushW, edit.m_iBrushH, kCursorColour};
    case kCursorRect:
      if (edit.m_bDrag) return Spanning(edit.m_iRectX, edit.m_iRectY, cursor, kCursorColour);
      break;
    case kCursorRange:
      if (edit.m_bDrag) return Spanning(edit.m_iRangeX, edit.m_iRangeY, cursor, kRangeColour);
      return {cursor.x, cursor.y, 0, 0, kRangeColour};
    default: break;
  }
  return {cursor.x, cursor.y, 1, 1, kCursorColour};
}

std::string CursorStatusText(cCellPos cursor) {
  char text[64];
  std::snprintf(text, sizeof text, SysText("座標 (%d,%d)"), cursor.x, cursor.y);
  return text;
}

std::string StageWindowTitle(const std::string& path) {
  std::string title = SysText(kProgramTitle);
  if (!path.empty()) title += "  " + path;
  return title;
}

}  // namespace velmora
