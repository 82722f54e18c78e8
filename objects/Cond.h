#pragma once
#include <cstdint>

#include "core/SaveData.h"

namespace velmora {

// One condition. One layout serves every kind; a kind reads only some of
// the fields, and the distance condition lends several of them other
// meanings. A new condition is all zero.
class cEdCond final : public cSaveData {
 public:
  uint8_t m_nKind = 0;
  int32_t m_nValue = 0;
  int32_t m_nRandMin = 0;
  int32_t m_nRandMax = 0;
  uint8_t m_nLeftObject = 0;
  uint8_t m_nLeftStatus = 0;
  uint8_t m_nLeftType = 0;
  uint8_t m_nLeftScope = 0;
  int16_t m_nLeftVar = 0;
  uint8_t m_nRightType = 0;
  uint8_t m_nRightObject = 0;
  uint8_t m_nRightStatus = 0;
  uint8_t m_nRightScope = 0;
  int16_t m_nRightVar = 0;
  uint8_t m_nRelation = 0;
  uint8_t m_bPercent = 0;
  uint8_t m_nLeftCoord = 0;
  uint8_t m_nRightCoord = 0;
  uint8_t m_nLeftGiantPos = 0;
  uint8_t m_nRightGiantPos = 0;
  uint8_t m_nDistAxis = 0;

  void Load(cDataFile& file) override;
  bool operator==(const cEdCond& other) const { return IsSame(*this, other); }

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
