#include "stage/StageBrush.h"

#include <array>

#include "core/CheckedAccess.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"
#include "stage/StageLayers.h"

namespace velmora {
namespace {

// Group 1 of a character's inherit flags: a placed character never takes
// its control type from the palette.
constexpr size_t kControlInheritGroup = 1;

template <class T>
void WriteCell(std::vector<T>& cells, int index, const T& record) {
  T& cell = VecAt(cells, index);
  NoteCellWrite(cell);
  cell = record;
}

void WriteCell(std::vector<cEdChara>& /*cells*/, int index, const cEdChara& record) {
  SetChara(EditStage(), index, record);
}

// The displaced player goes to the first empty cell after its own, or to
// cell 0 when the layer is full.
int FreeCellAfter(const cStage& stage, int index) {
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const int i = stage.CellIndex(x, y);
      if (i > index && !IsOccupied(VecAt(stage.m_vecCharaCell, i))) return i;
    }
  }
  return 0;
}

void RemoveOtherPlayers(cStage& stage) {
  const cEdChara blank = VecAt(stage.m_vecCharaPlt, 0);
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      cEdChara& cell = VecAt(stage.m_vecCharaCell, stage.CellIndex(x, y));
      if (cell.m_nControl != 0) continue;
      NoteCellWrite(cell);
      cell = blank;
    }
  }
}

}  // namespace

void PlaceCell(int index, int brushIndex, bool allLayers) {
  WithActiveLayers(allLayers, [&](auto& cells, const auto& brush) {
    if (brushIndex >= 0 && static_cast<size_t>(brushIndex) < brush.size()) WriteCell(cells, index, VecAt(brush, brushIndex));
  });
}

void SetChara(cStage& stage, int index, cEdChara chara) {
  if (chara.m_bbInherit.size() > kControlInheritGroup) chara.m_bbInherit[kControlInheritGroup] = 0;
  cEdChara& cell = VecAt(stage.m_vecCharaCell, index);
  const bool cellIsPlayer = IsPlayer(cell);
  const bool newIsPlayer = IsPlayer(chara);
  if (cellIsPlayer && !newIsPlayer) {
    cEdChara& to = VecAt(stage.m_vecCharaCell, FreeCellAfter(stage, index));
    NoteCellWrite(to);
    to = cell;
  } else if (newIsPlayer && !cellIsPlayer) {
    RemoveOtherPlayers(stage);
  }
  NoteCellWrite(cell);
  cell = std::move(chara);
}

int CursorModeForTool(int tool) {
  static constexpr std::array<int, 5> kModes = {kCursorPen, kCursorLine, kCursorRect, kCursorCell, kCursorCell};
  return tool >= 0 && tool < static_cast<int>(kModes.size()) ? kModes[static_cast<size_t>(tool)] : kCursorPen;
}

void EmptyPaletteClipboard() {
  cStageEdit& edit = StageEdit();
  edit.m_pClipBlock.reset();
  edit.m_pClipChara.reset();
  edit.m_pClipItem.reset();
  edit.m_bClip = 0;
  edit.m_iClipIndex = -1;
  edit.m_bClipCut = 0;
}

void SwitchLayer(int layer) {
  cStageEdit& edit = StageEdit();
  if (layer != edit.m_iLayer) {
    edit.m_aLayerBrush.at(static_cast<size_t>(edit.m_iLayer)) = {edit.m_iPltIndex, edit.m_iBrushW, edit.m_iBrushH};
    const cStageEdit::cLayerBrush& taken = edit.m_aLayerBrush.at(static_cast<size_t>(layer));
    edit.m_iPltIndex = taken.m_iPltIndex;
    edit.m_iBrushW = taken.m_iBrushW;
    edit.m_iBrushH = taken.m_iBrushH;
  }
  edit.m_iLayer = layer;
  if (StageHooks().layerShown) StageHooks().layerShown(layer);
  edit.m_iCursorMode = CursorModeForTool(edit.m_iTool);
  EmptyPaletteClipboard();
}

void NextLayer() {
  const int layer = (StageEdit().m_iLayer + 1) % kLayerCount;
  SwitchLayer(layer);
  StageEdit().m_iReturnLayer = layer;
}

}  // namespace velmora
