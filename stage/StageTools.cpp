#include "stage/StageTools.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/CheckedAccess.h"
#include "stage/StageBrush.h"
#include "stage/StageFill.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"
#include "stage/StageLayers.h"
#include "stage/StageRange.h"

namespace velmora {
namespace {

constexpr int kMaxLineCells = 200;

uint32_t StepMask(bool shift) { return shift ? kLayerAll : LayerBit(StageEdit().m_iLayer); }

void SetBusy(bool busy) {
  if (StageHooks().busyCursor) StageHooks().busyCursor(busy);
}

void PenPaint(const cStageInput& in) {
  const cStageEdit& edit = StageEdit();
  for (int r = 0; r < edit.m_iBrushH && InsideStage(in.x, in.y + r); ++r) {
    for (int c = 0; c < edit.m_iBrushW && InsideStage(in.x + c, in.y + r); ++c) {
      PlaceCell(EditStage().CellIndex(in.x + c, in.y + r), r * edit.m_iBrushW + c, in.shift);
    }
  }
}

void PenDown(const cStageInput& in) {
  RecordStep(kLayerAll);
  PenPaint(in);
}

void StartDrag(int& x, int& y, const cStageInput& in) {
  x = in.x;
  y = in.y;
  StageEdit().m_bDrag = 1;
}

void LineDown(const cStageInput& in) { StartDrag(StageEdit().m_iLineX, StageEdit().m_iLineY, in); }

// Only the first row of the brush is used along a line.
void DrawLine(const cStageInput& in) {
  const cStageEdit& edit = StageEdit();
  const std::vector<cCellPos> cells = LineCells(edit.m_iLineX, edit.m_iLineY, in.x, in.y);
  const int brushW = std::max(edit.m_iBrushW, 1);
  for (size_t n = 0; n < cells.size(); ++n) {
    if (!InsideStage(cells[n].x, cells[n].y)) continue;
    PlaceCell(EditStage().CellIndex(cells[n].x, cells[n].y), static_cast<int>(n) % brushW, in.shift);
  }
}

void RectDown(const cStageInput& in) {
  cStageEdit& edit = StageEdit();
  StartDrag(edit.m_iRectX, edit.m_iRectY, in);
  edit.m_iRectW = 1;
  edit.m_iRectH = 1;
}

void RectMove(const cStageInput& in) {
  cStageEdit& edit = StageEdit();
  if (!edit.m_bDrag) return;
  edit.m_iRectW = std::abs(in.x - edit.m_iRectX) + 1;
  edit.m_iRectH = std::abs(in.y - edit.m_iRectY) + 1;
}

// The brush tiles the rectangle from its upper left corner, whichever way
// it was dragged.
void DrawRect(const cStageInput& in) {
  cStageEdit& edit = StageEdit();
  RectMove(in);
  edit.m_iRectX = std::min(edit.m_iRectX, in.x);
  edit.m_iRectY = std::min(edit.m_iRectY, in.y);
  for (int r = 0; r < edit.m_iRectH; ++r) {
    for (int c = 0; c < edit.m_iRectW; ++c) {
      const int x = edit.m_iRectX + c;
      const int y = edit.m_iRectY + r;
      if (!InsideStage(x, y)) continue;
      PlaceCell(EditStage().CellIndex(x, y), TileIndex(c, r, edit.m_iBrushW, edit.m_iBrushH), in.shift);
    }
  }
}

// Line and rectangle write on release, as one step.
template <void (*Draw)(const cStageInput&)>
void FinishDrag(const cStageInput& in) {
  if (!StageEdit().m_bDrag) return;
  SetBusy(true);
  RecordStep(StepMask(in.shift));
  Draw(in);
  StageEdit().m_bDrag = 0;
  SetBusy(false);
}

void FillDown(const cStageInput& in) {
  SetBusy(true);
  FillAt(in.x, in.y);
  SetBusy(false);
}

void ParameterDown(const cStageInput& in) { EditCellUnder(in.x, in.y); }

using ToolEvent = void (*)(const cStageInput&);
struct cToolEvents {
  ToolEvent down;
  ToolEvent move;
  ToolEvent up;
};

constexpr std::array<cToolEvents, 5> kTools = {{
    {PenDown, PenPaint, nullptr},
    {LineDown, nullptr, FinishDrag<DrawLine>},
    {RectDown, RectMove, FinishDrag<DrawRect>},
    {FillDown, nullptr, nullptr},
    {ParameterDown, nullptr, nullptr},
}};

// Layers to look at under the cursor, the current one first.
constexpr std::array<std::array<int, 3>, 3> kEditSearch = {{{0, 1, 2}, {1, 2, 0}, {2, 1, 0}}};

bool OccupiedAt(int layer, int index) {
  bool occupied = false;
  WithLayer(layer, [&](const auto& cells, const auto&) { occupied = IsOccupied(VecAt(cells, index)); });
  return occupied;
}

void OpenEditor(int layer, int index) {
  const cStageHooks& hooks = StageHooks();
  cStage& stage = EditStage();
  if (layer == 0 && hooks.editBlock) hooks.editBlock(VecAt(stage.m_vecBlockCell, index));
  if (layer == 1 && hooks.editChara) hooks.editChara(VecAt(stage.m_vecCharaCell, index));
  if (layer == 2 && hooks.editItem) hooks.editItem(VecAt(stage.m_vecItemCell, index));
}

bool LeftEvent(const cStageInput& in) {
  cStageEdit& edit = StageEdit();
  if (edit.m_iTool < 0 || edit.m_iTool >= static_cast<int>(kTools.size())) return false;
  const cToolEvents& tool = kTools[static_cast<size_t>(edit.m_iTool)];
  ToolEvent event = in.action == eStageAction::Down ? tool.down : in.action == eStageAction::Move ? tool.move : in.action == eStageAction::Up ? tool.up : nullptr;
  if (in.action == eStageAction::Down) edit.m_bStageChanged = 1;
  if (!event) return false;
  event(in);
  return true;
}

}  // namespace

std::vector<cCellPos> LineCells(int fromX, int fromY, int toX, int toY) {
  std::vector<cCellPos> cells;
  double px = fromX + 0.5;
  double py = fromY + 0.5;
  bool reached = false;
  for (int n = 0; n < kMaxLineCells; ++n) {
    cells.push_back({static_cast<int>(px), static_cast<int>(py)});
    if (reached) break;
    reached = StepLine(px, py, toX, toY);
  }
  return cells;
}

bool StepLine(double& px, double& py, int tx, int ty) {
  int dx = tx - static_cast<int>(px);
  int dy = ty - static_cast<int>(py);
  const double sx = dx >= 0 ? 0.1 : -0.1;
  const double sy = dy >= 0 ? 0.1 : -0.1;
  dx = std::abs(dx);
  dy = std::abs(dy);
  // The long axis steps every round, the short one when its error overflows.
  const bool alongX = dx > dy;
  double& major = alongX ? px : py;
  double& minor = alongX ? py : px;
  const double majorStep = alongX ? sx : sy;
  const double minorStep = alongX ? sy : sx;
  const int longSide = alongX ? dx : dy;
  const int shortSide = alongX ? dy : dx;
  int error = longSide / 2;
  for (int round = 0; round < 10; ++round) {
    error += shortSide;
    if (error >= longSide) {
      minor += minorStep;
      error -= longSide;
    }
    major += majorStep;
    if (static_cast<int>(px) == tx && static_cast<int>(py) == ty) return true;
  }
  return false;
}

void EditCellUnder(int x, int y) {
  cStageEdit& edit = StageEdit();
  const int index = EditStage().CellIndex(x, y);
  const auto& order = kEditSearch.at(static_cast<size_t>(edit.m_iLayer));
  const auto found = std::find_if(order.begin(), order.end(), [&](int layer) { return OccupiedAt(layer, index); });
  if (found == order.end()) return;
  const int before = edit.m_iLayer;
  if (*found != before) {
    edit.m_iReturnLayer = before;
    SwitchLayer(*found);
  }
  OpenEditor(*found, index);
  if (*found != before) SwitchLayer(edit.m_iReturnLayer);
}

bool StageMouse(const cStageInput& input) {
  if (input.button == eStageButton::Left) return LeftEvent(input);
  if (input.action == eStageAction::DoubleClick) {
    EditCellUnder(input.x, input.y);
    return true;
  }
  return RangeMouse(input);
}

}  // namespace velmora
