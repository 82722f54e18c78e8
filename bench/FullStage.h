#pragma once
#include "stage/Stage.h"

namespace velmora::bench {

// The heaviest view a stage can give: every cell holds a block, a
// character with a mark and an item, the pictures varying from cell to
// cell.
inline void FillLayers(cStage& stage) {
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const size_t index = static_cast<size_t>(stage.CellIndex(x, y));
      stage.m_vecBlockCell[index].m_nGraphicNo = static_cast<int16_t>(1 + (x + y) % 100);
      cEdChara& chara = stage.m_vecCharaCell[index];
      chara.m_nGraphicNo = static_cast<int16_t>(1 + (x * 3 + y) % 100);
      chara.m_nGraphicShift = static_cast<int16_t>(x % 8);
      chara.m_bFaceRight = static_cast<uint8_t>(y % 2);
      chara.m_nMarkShow = 1;
      chara.m_nMarkNo = static_cast<int16_t>(x % 30);
      stage.m_vecItemCell[index].m_nGraphicNo = static_cast<int16_t>(1 + (x + y * 5) % 100);
    }
  }
}

}  // namespace velmora::bench
