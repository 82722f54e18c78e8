#pragma once
#include "core/SaveData.h"

namespace velmora {

// Where a window stood when it was last closed.
class cWindowPlace : public cSaveData {
 public:
  int32_t m_bStored = 0;  // 0 until the window has been placed once
  int32_t m_nX = 0;
  int32_t m_nY = 0;
  int32_t m_nWidth = 0;
  int32_t m_nHeight = 0;
  int32_t m_bVisible = 1;

  cWindowPlace() { SetUp(); }
  void SetUp();
  // A window saved on a larger screen comes back into view.
  void Load(cDataFile& file) override;

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
