#include "core/WindowPlace.h"

#include <algorithm>

#include "platform/Screen.h"

namespace velmora {

void cWindowPlace::SetUp() {
  Reset();
  m_bVisible = 1;
}

void cWindowPlace::Register(uint32_t version) {
  ClearLists();
  if (version >= 72) Add4(VFIELD(m_bStored));
  Add4(VFIELD(m_nX));
  Add4(VFIELD(m_nY));
  Add4(VFIELD(m_nWidth));
  Add4(VFIELD(m_nHeight));
  if (version >= 122) Add4(VFIELD(m_bVisible));
}

void cWindowPlace::Load(cDataFile& file) {
  cSaveData::Load(file);
  const cScreenSize screen = ScreenSize();
  m_nX = std::clamp(m_nX, 0, screen.width);
  m_nY = std::clamp(m_nY, 0, screen.height);
}

}  // namespace velmora
