#pragma once
#include <string>

#include "core/SaveData.h"

namespace velmora {

// The measured scale of property pages, with the system and font it was
// measured under, so a change of either calls for a new measurement.
class SheetSize : public cSaveData {
 public:
  int32_t m_nSystemMajor = 0;
  int32_t m_nSystemMinor = 0;
  std::string m_strFontFace;
  int32_t m_nFontWidth = 0;
  int32_t m_nFontHeight = 0;
  double m_dRateX = 0;
  double m_dRateY = 0;

  SheetSize() { Reset(); }

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
