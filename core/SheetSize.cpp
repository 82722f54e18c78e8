#include "core/SheetSize.h"

namespace velmora {

void SheetSize::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_nSystemMajor));
  Add4(VFIELD(m_nSystemMinor));
  AddString(VSTRING(m_strFontFace));
  Add4(VFIELD(m_nFontWidth));
  Add4(VFIELD(m_nFontHeight));
  Add8(VFIELD(m_dRateX));
  Add8(VFIELD(m_dRateY));
}

}  // namespace velmora
