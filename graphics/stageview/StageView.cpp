#include "graphics/stageview/StageView.h"

#include "project/Database.h"
#include "graphics/stageview/ObjectDraw.h"

namespace velmora {
namespace {

constexpr cColourRef kBlack = 0x000000;
constexpr cColourRef kGridColour = 0xFFFFFF;
constexpr cColourRef kCrossColour = 0x2040FF;
constexpr cColourRef kLimitColour = 0x40FF20;
constexpr int kCursorPenWidth = 2;
// The cross and the limits are laid out for a 640 x 480 screen, whatever
// the client size.
constexpr int kScreenRight = 639;
constexpr int kScreenBottom = 479;
constexpr int kCrossX[] = {304, 336};
constexpr int kCrossY[] = {224, 256};

// The cells in view, clipped to the stage.
struct cCellRange {
  int x0, y0, x1, y1;  // x1, y1 past the end
};

cCellRange CellsInView(const cStage& stage, const cSurface& out, int scrollX, int scrollY) {
  const int columns = out.Width() / kCellDots + 1;
  const int rows = out.Height() / kCellDots + 1;
  return {std::max(scrollX, 0), std::max(scrollY, 0), std::min(scrollX + columns, static_cast<int>(stage.m_nWidth)),
          std::min(scrollY + rows, static_cast<int>(stage.m_nHeight))};
}

template <class Record, class Look>
void DrawLayer(const std::vector<Record>& cells, const cStage& stage, const cCellRange& range, cSurface& out,
               int scrollX, int scrollY, bool half, Look look) {
  for (int y = range.y0; y < range.y1; ++y) {
    for (int x = range.x0; x < range.x1; ++x) {
      const size_t index = static_cast<size_t>(stage.CellIndex(x, y));
      if (index >= cells.size()) continue;  // a layer shorter than the stage
      const Record& cell = cells[index];
      if (IsOccupied(cell)) DrawObject(out, (x - scrollX) * kCellDots, (y - scrollY) * kCellDots, look(cell), half);
    }
  }
}

void DrawLines(cSurface& out, cColourRef colour, int width, auto draw) {
  out.SetPen(kPenSolid, width, colour);
  draw();
  out.FreePen();
}

void DrawCentreCross(cSurface& out) {
  DrawLines(out, kCrossColour, 1, [&] {
    for (int x : kCrossX) out.Line(x, 0, x, kScreenBottom);
    for (int y : kCrossY) out.Line(0, y, kScreenRight, y);
  });
}

void DrawScrollLimits(const cStage& stage, cSurface& out, int scrollX, int scrollY) {
  DrawLines(out, kLimitColour, 1, [&] {
    if (stage.m_bScrollMinX) {
      const int x = (stage.m_iScrollMinX - scrollX) * kCellDots - 1;
      out.Line(x, 0, x, kScreenBottom);
    }
    if (stage.m_bScrollMaxX) {
      const int x = (stage.m_iScrollMaxX - scrollX + 1) * kCellDots + 1;
      out.Line(x, 0, x, kScreenBottom);
    }
    if (stage.m_bScrollMinY) {
      const int y = (stage.m_iScrollMinY - scrollY) * kCellDots - 1;
      out.Line(0, y, kScreenRight, y);
    }
    if (stage.m_bScrollMaxY) {
      const int y = (stage.m_iScrollMaxY - scrollY + 1) * kCellDots + 1;
      out.Line(0, y, kScreenRight, y);
    }
  });
}

void DrawFrame(cSurface& out, const cCellFrame& frame, int scrollX, int scrollY) {
  if (frame.w <= 0 || frame.h <= 0) return;
  DrawLines(out, frame.colour, kCursorPenWidth, [&] {
    out.Box((frame.x - scrollX) * kCellDots, (frame.y - scrollY) * kCellDots, frame.w * kCellDots,
            frame.h * kCellDots);
  });
}

}  // namespace

void RenderStageView(const cStage& stage, cSurface& out, int scrollX, int scrollY, const cViewOptions& options) {
  out.Fill(kBlack);
  if (!options.hasStage) return;
  const cCellRange range = CellsInView(stage, out, scrollX, scrollY);
  const std::vector<cEdAnimeSet>& animeSets = Database().m_AnimeSet.m_vecEntries;
  DrawLayer(stage.m_vecBlockCell, stage, range, out, scrollX, scrollY, false,
            [](const cEdBlock& cell) { return LookOf(cell); });
  DrawLayer(stage.m_vecCharaCell, stage, range, out, scrollX, scrollY, false,
            [&](const cEdChara& cell) { return LookOf(cell, animeSets); });
  DrawLayer(stage.m_vecItemCell, stage, range, out, scrollX, scrollY, true,
            [](const cEdItem& cell) { return LookOf(cell); });
  out.Grid(0, 0, out.Width(), out.Height(), kCellDots, kCellDots, kGridColour);
  DrawCentreCross(out);
  DrawScrollLimits(stage, out, scrollX, scrollY);
  if (options.preview) options.preview(out);
  for (const cCellFrame& mark : options.marks) DrawFrame(out, mark, scrollX, scrollY);
  DrawFrame(out, options.cursor, scrollX, scrollY);
}

}  // namespace velmora
