#include "stage/StageFill.h"

#include <algorithm>
#include <new>

#include "core/CheckedAccess.h"
#include "core/Log.h"
#include "core/SystemText.h"
#include "stage/StageHistory.h"
#include "stage/StageLayers.h"

namespace velmora {
namespace {

template <class T>
bool SameForFill(const T& a, const T& b) {
  if (!IsOccupied(a) && !IsOccupied(b)) return true;
  return IsSame(a, b) && a.m_bbInherit == b.m_bbInherit && a.m_vCond == b.m_vCond;
}

template <class T>
class cFill {
 public:
  cFill(std::vector<T>& cells, const std::vector<T>& brush, const T& reference, std::vector<uint32_t>& visited)
      : m_cells(cells), m_brush(brush), m_reference(reference), m_visited(visited) {}

  void From(int x, int y, int bx, int by) {
    const int index = m_stage.CellIndex(x, y);
    uint32_t& mark = VecAt(m_visited, index);
    if (mark || m_depth >= kFillDepthLimit) return;
    if (!SameForFill(VecAt(m_cells, index), m_reference)) return;
    const int brushIndex = by * m_edit.m_iBrushW + bx;
    if (static_cast<size_t>(brushIndex) < m_brush.size()) {
      T& cell = VecAt(m_cells, index);
      NoteCellWrite(cell);
      cell = VecAt(m_brush, brushIndex);
    }
    mark = 1;
    const int w = m_edit.m_iBrushW;
    const int h = m_edit.m_iBrushH;
    Neighbour(x - 1, y, bx == 0 ? w - 1 : bx - 1, by);
    Neighbour(x + 1, y, bx + 1 == w ? 0 : bx + 1, by);
    Neighbour(x, y - 1, bx, by == 0 ? h - 1 : by - 1);
    Neighbour(x, y + 1, bx, by + 1 == h ? 0 : by + 1);
  }

 private:
  void Neighbour(int x, int y, int bx, int by) {
    if (!InsideStage(x, y)) return;
    ++m_depth;
    From(x, y, bx, by);
    --m_depth;
  }

  const cStage& m_stage = EditStage();
  const cStageEdit& m_edit = StageEdit();
  std::vector<T>& m_cells;
  const std::vector<T>& m_brush;
  const T m_reference;
  std::vector<uint32_t>& m_visited;
  int m_depth = 0;
};

bool BrushHasPlayer(const std::vector<cEdChara>& brush) { return std::any_of(brush.begin(), brush.end(), IsPlayer); }

}  // namespace

void FillAt(int x, int y) {
  cStageEdit& edit = StageEdit();
  cStage& stage = EditStage();
  const bool characters = edit.m_iLayer == 1;
  RecordStep(LayerBit(edit.m_iLayer));
  if (characters) {
    if (edit.m_vecBrushChara.empty()) return;
    if (BrushHasPlayer(edit.m_vecBrushChara)) {
      ErrorBox("%s", SysText("プレイヤーキャラは塗りつぶしモードで配置できません！"));
      return;
    }
  }
  std::vector<uint32_t> visited;
  try {
    visited.assign(static_cast<size_t>(stage.m_nPitch) * static_cast<size_t>(stage.m_nHeight), 0);
  } catch (const std::bad_alloc&) {
    StopOutOfMemory();
    return;
  }
  const int index = stage.CellIndex(x, y);
  WithLayer(edit.m_iLayer, [&](auto& cells, const auto& brush) {
    cFill fill(cells, brush, VecAt(cells, index), visited);
    fill.From(x, y, 0, 0);
  });
  if (characters) stage.RemoveSurplusPlayers();
}

}  // namespace velmora
