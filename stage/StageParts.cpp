#include "stage/StageParts.h"

namespace velmora {

void cAutoVanish::SetAll(int32_t on, int32_t margin) {
  m_bLeft = m_bRight = m_bTop = m_bBottom = on;
  m_iLeft = m_iRight = m_iTop = m_iBottom = margin;
}

void cAutoVanish::Register(uint32_t version) {
  ClearLists();
  Add4(VFIELD(m_bLeft));
  if (version >= 125) {
    Add4(VFIELD(m_bRight));
    Add4(VFIELD(m_bTop));
    Add4(VFIELD(m_bBottom));
  }
  Add4(VFIELD(m_iLeft));
  Add4(VFIELD(m_iRight));
  Add4(VFIELD(m_iTop));
  Add4(VFIELD(m_iBottom));
}

void cStageBack::MoveAutoSpeed() {
  if (m_bAutoX) {
    m_dAutoSpeedX = m_dSpeedX;
    m_dSpeedX = 1.0;
  }
  if (m_bAutoY) {
    m_dAutoSpeedY = m_dSpeedY;
    m_dSpeedY = 1.0;
  }
}

void cStageBack::AddRetiredPair() {
  Add4(&g_nDropped, 1, "retired");
  Add4(&g_nDropped, 1, "retired");
}

void cStageBack::Register(uint32_t version) {
  ClearLists();
  if (version >= 62) Add4(VFIELD(m_bFromStart));
  Add4(VFIELD(m_bUseColor));
  Add4(VFIELD(m_iColor));
  Add4(VFIELD(m_bFront));
  if (version < 61) AddRetiredPair();
  if (version >= 61) {
    Add8(VFIELD(m_dSpeedX));
    Add8(VFIELD(m_dSpeedY));
    Add4(VFIELD(m_bAutoX));
    Add4(VFIELD(m_bAutoY));
  }
  if (version >= 876) {
    Add8(VFIELD(m_dAutoSpeedX));
    Add8(VFIELD(m_dAutoSpeedY));
  }
  if (version == 61) AddRetiredPair();
  if (version >= 62) {
    Add8(VFIELD(m_dReserved1));
    Add8(VFIELD(m_dReserved2));
  }
  AddString(VSTRING(m_strPath));
}

}  // namespace velmora
