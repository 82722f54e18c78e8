#pragma once
#include <vector>

#include "stage/Stage.h"
#include "stage/StageEdit.h"

namespace velmora {

inline constexpr int kLayerCount = 3;

// Calls fn(cells, brush) with the edit stage's placements and the brush of
// one layer (0 blocks, 1 characters, 2 items), so a tool is written once
// for all three record types.
template <class Fn>
void WithLayer(int layer, Fn&& fn) {
  cStage& stage = EditStage();
  cStageEdit& edit = StageEdit();
  if (layer == 0) fn(stage.m_vecBlockCell, edit.m_vecBrushBlock);
  if (layer == 1) fn(stage.m_vecCharaCell, edit.m_vecBrushChara);
  if (layer == 2) fn(stage.m_vecItemCell, edit.m_vecBrushItem);
}

// Every layer with Shift held, else the current one.
template <class Fn>
void WithActiveLayers(bool allLayers, Fn&& fn) {
  if (!allLayers) return WithLayer(StageEdit().m_iLayer, fn);
  for (int layer = 0; layer < kLayerCount; ++layer) WithLayer(layer, fn);
}

inline bool InsideStage(int x, int y) {
  const cStage& stage = EditStage();
  return x >= 0 && y >= 0 && x < stage.m_nWidth && y < stage.m_nHeight;
}

}  // namespace velmora
