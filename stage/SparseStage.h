#pragma once
#include <cstdint>
#include <vector>

#include "stage/Stage.h"

namespace velmora {

// One occupied cell of a layer, by its cell index.
template <class T>
struct cPlacement {
  int32_t index = 0;
  T cell;
};

// A stage read for looking through rather than editing: settings,
// palettes, backgrounds and variables come in as the editor reads them,
// through the same loaders and checks, but each layer keeps only its
// occupied cells inside the stage, in the order of their index. The
// whole layers stay empty, so it must not be edited or saved.
class cSparseStage final : public cStage {
 public:
  std::vector<cPlacement<cEdBlock>> m_vecBlockPlaced;
  std::vector<cPlacement<cEdChara>> m_vecCharaPlaced;
  std::vector<cPlacement<cEdItem>> m_vecItemPlaced;

  void Load(cDataFile& file) override;
  cCellPos PosOf(int32_t index) const { return {index & (m_nPitch - 1), index >> m_nPitch_Shift}; }

 protected:
  bool LoadLayers(cDataFile& file, cCheckedCells* checked) override;

 private:
  template <class T>
  void LoadPlaced(std::vector<cPlacement<T>>& placed, cDataFile& file);
  template <class T>
  void KeepOccupied(std::vector<cPlacement<T>>& placed) const;

  // Per cell index, where its placement stands in the layer being read,
  // so that a cell placed twice is read over as in a whole layer.
  std::vector<int32_t> m_slots;
};

}  // namespace velmora
