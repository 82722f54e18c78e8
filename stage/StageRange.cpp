#include "stage/StageRange.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

#include "core/CheckedAccess.h"
#include "stage/StageBrush.h"
#include "stage/StageHistory.h"
#include "stage/StageLayers.h"
#include "stage/StageTools.h"

namespace velmora {
namespace {

constexpr int kKeySpace = 32;
// Byte 5 of a character's inherit flags: its facing comes from the palette.
constexpr size_t kFacingInheritGroup = 5;

struct cRect {
  int x0, y0, w, h;
};

// Sizes the brush from the first corner to the cursor.
cRect RangeRect(int cursorX, int cursorY) {
  cStageEdit& edit = StageEdit();
  edit.m_iBrushW = std::abs(cursorX - edit.m_iRangeX) + 1;
  edit.m_iBrushH = std::abs(cursorY - edit.m_iRangeY) + 1;
  return {std::min(edit.m_iRangeX, cursorX), std::min(edit.m_iRangeY, cursorY), edit.m_iBrushW, edit.m_iBrushH};
}

template <class Fn>
void ForRangeCells(const cRect& rect, Fn&& fn) {
  for (int r = 0; r < rect.h; ++r) {
    for (int c = 0; c < rect.w; ++c) {
      if (InsideStage(rect.x0 + c, rect.y0 + r)) fn(EditStage().CellIndex(rect.x0 + c, rect.y0 + r), r * rect.w + c);
    }
  }
}

void EraseRange(const cRect& rect, bool allLayers) {
  WithActiveLayers(allLayers, [&](auto& cells, const auto&) {
    ForRangeCells(rect, [&](int index, int) {
      auto& cell = VecAt(cells, index);
      NoteCellWrite(cell);
      EraseCell(cell);
    });
  });
}

// The cell under the cursor goes to the palette clipboard as well.
void ClipCellUnder(int x, int y) {
  cStageEdit& edit = StageEdit();
  const int index = EditStage().CellIndex(x, y);
  bool clipped = false;
  auto clip = [&](auto& slot, const auto& cells) {
    const auto& cell = VecAt(cells, index);
    if (!IsOccupied(cell)) return;
    slot = std::make_shared<std::decay_t<decltype(cell)>>(cell);
    clipped = true;
  };
  const cStage& stage = EditStage();
  if (edit.m_iLayer == 0) clip(edit.m_pClipBlock, stage.m_vecBlockCell);
  if (edit.m_iLayer == 1) clip(edit.m_pClipChara, stage.m_vecCharaCell);
  if (edit.m_iLayer == 2) clip(edit.m_pClipItem, stage.m_vecItemCell);
  if (!clipped) return;
  edit.m_bClip = 1;
  edit.m_iClipIndex = -1;
  edit.m_iClipSource = edit.m_iPltSource;
  edit.m_bClipCut = 0;
}

void EndRange() {
  cStageEdit& edit = StageEdit();
  edit.m_iCursorMode = CursorModeForTool(edit.m_iTool);
  edit.m_bDrag = 0;
}

void Cut(int x, int y, bool shift) {
  RecordStep(shift ? kLayerAll : LayerBit(StageEdit().m_iLayer));
  CopyRange(x, y, shift);
  EraseRange(RangeRect(x, y), shift);
  StageEdit().m_iCursorMode = CursorModeForTool(StageEdit().m_iTool);
}

void Delete(int x, int y, bool shift) {
  RecordStep(shift ? kLayerAll : LayerBit(StageEdit().m_iLayer));
  EraseRange(RangeRect(x, y), shift);
}

void TurnRound(int x, int y, bool shift) {
  if (!shift && StageEdit().m_iLayer != 1) return;
  RecordStep(shift ? kLayerAll : kLayerChara);
  std::vector<cEdChara>& cells = EditStage().m_vecCharaCell;
  ForRangeCells(RangeRect(x, y), [&](int index, int) {
    cEdChara& chara = VecAt(cells, index);
    const bool facingInherited = chara.m_bbInherit.size() > kFacingInheritGroup && chara.m_bbInherit[kFacingInheritGroup];
    if (!IsOccupied(chara) || facingInherited) return;
    NoteCellWrite(chara);
    chara.m_bFaceRight = !chara.m_bFaceRight;
  });
}

struct cRangeKey {
  int upperCode;  // the lower case letter is 32 above
  void (*run)(int x, int y, bool shift);
};

constexpr std::array<cRangeKey, 3> kRangeKeys = {{{'D', Cut}, {'Q', Delete}, {'R', TurnRound}}};

}  // namespace

void CopyRange(int cursorX, int cursorY, bool allLayers) {
  const cRect rect = RangeRect(cursorX, cursorY);
  WithActiveLayers(allLayers, [&](const auto& cells, auto& brush) {
    brush.assign(static_cast<size_t>(rect.w) * static_cast<size_t>(rect.h), {});
    ForRangeCells(rect, [&](int index, int brushIndex) { VecAt(brush, brushIndex) = VecAt(cells, index); });
  });
}

bool RangeMouse(const cStageInput& in) {
  cStageEdit& edit = StageEdit();
  if (in.action == eStageAction::Down) {
    edit.m_iRangeX = in.x;
    edit.m_iRangeY = in.y;
    edit.m_iCursorMode = kCursorRange;
    edit.m_iPltIndex = -1;
    edit.m_bDrag = 1;
    edit.m_iBrushW = 1;
    edit.m_iBrushH = 1;
    return true;
  }
  if (edit.m_iCursorMode != kCursorRange || !edit.m_bDrag) return false;
  if (in.action == eStageAction::Move) {
    RangeRect(in.x, in.y);
    return true;
  }
  CopyRange(in.x, in.y, in.shift);
  if (edit.m_iRightMode == 1) ClipCellUnder(in.x, in.y);
  EndRange();
  return true;
}

bool StageKey(int key, bool shift, int cursorX, int cursorY) {
  if (key == kKeySpace) {
    NextLayer();
    return true;
  }
  cStageEdit& edit = StageEdit();
  if (edit.m_iCursorMode != kCursorRange) return false;
  const auto found = std::find_if(kRangeKeys.begin(), kRangeKeys.end(),
                                  [key](const cRangeKey& k) { return key == k.upperCode || key == k.upperCode + 32; });
  if (found == kRangeKeys.end()) return false;
  found->run(cursorX, cursorY, shift);
  edit.m_bStageChanged = 1;
  return true;
}

}  // namespace velmora
