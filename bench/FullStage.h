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

template <class Entry>
void GiveBehaviour(Entry& entry, int graphic) {
  entry.m_nGraphicNo = static_cast<int16_t>(graphic);
  entry.m_vCond.resize(2);
  entry.m_vCond[1].m_nKind = 3;
}

// The heaviest file a stage can make: a side x side stage whose every cell
// holds a block, an enemy with three flows of commands and an item, all
// with conditions. At 512 that is a file of 368 MB.
inline void FillWithBehaviour(cStage& stage, int side) {
  stage.InitDefault();
  stage.SetSize(side, side, 0, 0);
  cEdChara enemy;
  GiveBehaviour(enemy, 2);
  enemy.m_nControl = 1;
  enemy.m_vFlow.resize(3);
  for (cEdFlow& flow : enemy.m_vFlow) {
    flow.m_vCond.resize(2);
    flow.m_vCmd.resize(4);
    for (cEdCmd& cmd : flow.m_vCmd) cmd.m_vParam.assign(6, 7);
  }
  cEdBlock block;
  GiveBehaviour(block, 1);
  cEdItem item;
  GiveBehaviour(item, 3);
  item.m_vCmd.resize(2);
  stage.m_vecBlockPlt.push_back(block);
  stage.m_vecCharaPlt.push_back(enemy);
  stage.m_vecItemPlt.push_back(item);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const size_t cell = static_cast<size_t>(stage.CellIndex(x, y));
      stage.m_vecBlockCell[cell].CopyFrom(block);
      stage.m_vecCharaCell[cell] = enemy;
      stage.m_vecItemCell[cell] = item;
    }
  }
  stage.m_vecCharaCell[0].m_nControl = 0;  // the player
}

}  // namespace velmora::bench
