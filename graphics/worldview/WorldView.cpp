#include "graphics/worldview/WorldView.h"

#include <algorithm>
#include <string>

#include "graphics/FixedBitmaps.h"
#include "graphics/ProjectPalette.h"
#include "project/WorldEditState.h"
#include "project/WorldMap.h"

namespace velmora {
namespace {

constexpr int kCell = 32;
constexpr int kChipSheetColumns = 5;
constexpr int kEventCell = 16;
constexpr int kEventX = 15;  // where the small event picture stands in its cell
constexpr int kEventY = 1;
constexpr cColourRef kBrushColour = 0xFF0080;
constexpr cColourRef kPickColour = 0x8000FF;
constexpr cColourRef kEventFrameColour = 0x00FFFF;
constexpr cColourRef kGridColour = 0xFFFFFF;
constexpr int kCursorPenWidth = 2;

// The cells in view, clipped to the map; x1, y1 past the end.
struct cCellRange {
  int x0, y0, x1, y1;
  bool Contains(int x, int y) const { return x >= x0 && x < x1 && y >= y0 && y < y1; }
};

cCellRange CellsInView(const cEdWorldMap& map, const cSurface& out, int scrollX, int scrollY) {
  return {std::max(scrollX, 0), std::max(scrollY, 0), std::min(scrollX + out.Width() / kCell + 1, map.m_nWidth),
          std::min(scrollY + out.Height() / kCell + 1, map.m_nHeight)};
}

// Whether a whole cell of `size` dots at (sx, sy) lies on the sheet.
bool OnSheet(const cSurface& sheet, int sx, int sy, int size) {
  return sx >= 0 && sy >= 0 && sx + size <= sheet.Width() && sy + size <= sheet.Height();
}

void DrawBackground(const cEdWorldMap& map, cSurface& out, int scrollX, int scrollY) {
  const cRgbQuad& colour = ProjectPalette()[static_cast<size_t>(std::clamp(map.m_iBackColor, 0, 255))];
  out.Fill(ColourOf(colour));
  const cSurface& back = FixedBitmap(kFixedWorldBack);
  if (map.m_bUseBackImage && back.IsLoaded()) {
    out.Blt(-scrollX * kCell, -scrollY * kCell, back.Width(), back.Height(), back, 0, 0, true);
  }
}

void DrawChips(const cEdWorldMap& map, const cCellRange& range, cSurface& out, int scrollX, int scrollY) {
  const cSurface& sheet = FixedBitmap(kFixedWorldChip);
  const int chips = static_cast<int>(map.m_vecChips.size());
  for (int y = range.y0; y < range.y1; ++y) {
    for (int x = range.x0; x < range.x1; ++x) {
      const int chip = map.Cell(x, y);
      if (chip < 0 || chip >= chips) continue;
      const int graphic = map.m_vecChips[static_cast<size_t>(chip)].m_iGraphic;
      const int sx = graphic % kChipSheetColumns * kCell;
      const int sy = graphic / kChipSheetColumns * kCell;
      if (graphic < 0 || !OnSheet(sheet, sx, sy, kCell)) continue;
      out.Blt((x - scrollX) * kCell, (y - scrollY) * kCell, kCell, kCell, sheet, sx, sy, false);
    }
  }
}

// The number stands over the picture, shifted left as it grows.
int NumberShift(int number) {
  const size_t digits = std::to_string(number).size();
  return digits == 1 ? 4 : digits == 2 ? 0 : -8;
}

void DrawEvent(const cEdWorldEvent& event, cSurface& out, int left, int top) {
  const cSurface& sheet = FixedBitmap(kFixedWorldEvent);
  if (!event.m_vecPages.empty()) {
    const cEdWorldPage& page = event.m_vecPages.front();
    const int sx = page.m_iWorldNo != 0 ? 0 : kCell;
    const int sy = page.m_iGraphic * kCell;
    if (OnSheet(sheet, sx, sy, kCell)) {
      out.StretchBltFrom(left, top, kEventCell, kEventCell, sheet, sx, sy, kCell, kCell, false);
    }
  }
  out.SetPen(kPenSolid, 1, kEventFrameColour);
  out.Box(left, top, kEventCell, kEventCell);
  out.FreePen();
  if (event.m_vecPages.empty()) return;
  const cEdWorldPage& page = event.m_vecPages.front();
  if (page.m_iType == cEdWorldPage::TypeWorld && page.m_iWorldNo != 0) {
    out.DrawFormat(left + NumberShift(page.m_iWorldNo), top, "%d", page.m_iWorldNo);
  }
}

void DrawEvents(const cEdWorldMap& map, const cCellRange& range, cSurface& out, int scrollX, int scrollY) {
  for (const cEdWorldEvent& event : map.m_vecEvents) {
    if (!range.Contains(event.m_iX, event.m_iY)) continue;
    DrawEvent(event, out, (event.m_iX - scrollX) * kCell + kEventX, (event.m_iY - scrollY) * kCell + kEventY);
  }
}

void DrawFrame(cSurface& out, const cCellFrame& frame, int scrollX, int scrollY) {
  if (frame.w <= 0 || frame.h <= 0) return;
  out.SetPen(kPenSolid, kCursorPenWidth, frame.colour);
  out.Box((frame.x - scrollX) * kCell, (frame.y - scrollY) * kCell, frame.w * kCell, frame.h * kCell);
  out.FreePen();
}

}  // namespace

cCellFrame WorldCursorFrame(const cEdWorldEditState& state, int x, int y) {
  if (state.m_bPicking) {
    return {std::min(x, state.m_iPickX), std::min(y, state.m_iPickY), std::abs(x - state.m_iPickX) + 1,
            std::abs(y - state.m_iPickY) + 1, kPickColour};
  }
  return {x, y, state.m_iBrushW, state.m_iBrushH, kBrushColour};
}

void RenderWorldView(const cEdWorldMap& map, cSurface& out, int scrollX, int scrollY, const cCellFrame& cursor) {
  DrawBackground(map, out, scrollX, scrollY);
  const cCellRange range = CellsInView(map, out, scrollX, scrollY);
  DrawChips(map, range, out, scrollX, scrollY);
  DrawEvents(map, range, out, scrollX, scrollY);
  out.Grid(0, 0, out.Width(), out.Height(), kCell, kCell, kGridColour);
  DrawFrame(out, cursor, scrollX, scrollY);
}

}  // namespace velmora
