#include "ui/stage/BrushPreview.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "project/Database.h"
#include "stage/StageBrush.h"
#include "stage/StageTools.h"
#include "ui/stage/StageViewRules.h"
#include "graphics/stageview/ObjectDraw.h"

namespace velmora {
namespace {

constexpr int kFramePenWidth = 2;

// One cell that the drag will write, with the brush record it takes.
struct cPreviewCell {
  cCellPos cell;
  int brushIndex;
};

std::vector<cPreviewCell> LinePreview(const cStageEdit& edit, cCellPos cursor) {
  const std::vector<cCellPos> cells = LineCells(edit.m_iLineX, edit.m_iLineY, cursor.x, cursor.y);
  std::vector<cPreviewCell> preview;
  for (size_t n = 0; n < cells.size(); ++n) {
    preview.push_back({cells[n], static_cast<int>(n) % std::max(edit.m_iBrushW, 1)});
  }
  return preview;
}

// Only the part in view: a rectangle may cover a whole large stage.
std::vector<cPreviewCell> RectPreview(const cStageEdit& edit, cCellPos cursor, const cSurface& out, int scrollX,
                                      int scrollY) {
  const int left = std::min(edit.m_iRectX, cursor.x);
  const int top = std::min(edit.m_iRectY, cursor.y);
  const int right = std::min(std::max(edit.m_iRectX, cursor.x), scrollX + out.Width() / kCellDots);
  const int bottom = std::min(std::max(edit.m_iRectY, cursor.y), scrollY + out.Height() / kCellDots);
  const int brushW = std::max(edit.m_iBrushW, 1);
  const int brushH = std::max(edit.m_iBrushH, 1);
  std::vector<cPreviewCell> preview;
  for (int y = std::max(top, scrollY); y <= bottom; ++y) {
    for (int x = std::max(left, scrollX); x <= right; ++x) {
      preview.push_back({{x, y}, TileIndex(x - left, y - top, brushW, brushH)});
    }
  }
  return preview;
}

// The pen writes the whole brush from the cursor on, row by row; only the
// part in view is drawn, as a copy may be the size of a whole large stage.
std::vector<cPreviewCell> PenPreview(const cStageEdit& edit, cCellPos cursor, const cSurface& out, int scrollX,
                                     int scrollY) {
  const int columns = std::min(edit.m_iBrushW, scrollX + out.Width() / kCellDots + 1 - cursor.x);
  const int rows = std::min(edit.m_iBrushH, scrollY + out.Height() / kCellDots + 1 - cursor.y);
  std::vector<cPreviewCell> preview;
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < columns; ++c) preview.push_back({{cursor.x + c, cursor.y + r}, r * edit.m_iBrushW + c});
  }
  return preview;
}

bool ShowsCopiedRange(const cStageEdit& edit) {
  return edit.m_iCursorMode == kCursorPen && edit.m_iPltIndex == -1;
}

bool ShowsDrag(const cStageEdit& edit) {
  return edit.m_bDrag && (edit.m_iCursorMode == kCursorLine || edit.m_iCursorMode == kCursorRect);
}

std::vector<cPreviewCell> PreviewCells(const cStageEdit& edit, cCellPos cursor, const cSurface& out, int scrollX,
                                       int scrollY) {
  if (ShowsCopiedRange(edit)) return PenPreview(edit, cursor, out, scrollX, scrollY);
  if (!ShowsDrag(edit)) return {};
  if (edit.m_iCursorMode == kCursorLine) return LinePreview(edit, cursor);
  return RectPreview(edit, cursor, out, scrollX, scrollY);
}

// The brush record of one layer at `index`, drawn like a placed one.
void DrawBrushRecord(const cStageEdit& edit, int layer, int index, cSurface& out, int x, int y) {
  const auto at = [index](const auto& brush) {
    return index < static_cast<int>(brush.size()) ? &brush[static_cast<size_t>(index)] : nullptr;
  };
  if (layer == 0) {
    if (const cEdBlock* block = at(edit.m_vecBrushBlock)) DrawObject(out, x, y, LookOf(*block), false);
  } else if (layer == 1) {
    if (const cEdChara* chara = at(edit.m_vecBrushChara)) {
      DrawObject(out, x, y, LookOf(*chara, Database().m_AnimeSet.m_vecEntries), false);
    }
  } else if (const cEdItem* item = at(edit.m_vecBrushItem)) {
    DrawObject(out, x, y, LookOf(*item), true);
  }
}

}  // namespace

void DrawBrushPreview(const cStage& stage, const cStageEdit& edit, cCellPos cursor, bool allLayers, cSurface& out,
                     int scrollX, int scrollY) {
  const std::vector<cPreviewCell> cells = PreviewCells(edit, cursor, out, scrollX, scrollY);
  const bool line = ShowsDrag(edit) && edit.m_iCursorMode == kCursorLine;
  const int firstLayer = allLayers ? 0 : edit.m_iLayer;
  const int lastLayer = allLayers ? 2 : edit.m_iLayer;
  std::vector<cCellPos> framed;
  for (const cPreviewCell& preview : cells) {
    const cCellPos& cell = preview.cell;
    if (cell.x < 0 || cell.y < 0 || cell.x >= stage.m_nWidth || cell.y >= stage.m_nHeight) continue;
    const int x = (cell.x - scrollX) * kCellDots;
    const int y = (cell.y - scrollY) * kCellDots;
    for (int layer = firstLayer; layer <= lastLayer; ++layer) {
      DrawBrushRecord(edit, layer, preview.brushIndex, out, x, y);
    }
    if (line) framed.push_back({x, y});
  }
  if (framed.empty()) return;
  out.SetPen(kPenSolid, kFramePenWidth, kCursorColour);
  for (const cCellPos& corner : framed) out.Box(corner.x, corner.y, kCellDots, kCellDots);
  out.FreePen();
}

}  // namespace velmora
