#include "objects/KeyCond.h"

#include "objects/PlainVector.h"

namespace velmora {

void cEdKeyCond::Register(uint32_t /*version*/) {
  ClearLists();
  Add1(VFIELD(m_bFrontBack));
  Add2(VFIELD(m_nPressMin));
  Add2(VFIELD(m_nPressMax));
  Add1(VFIELD(m_bPressAny));
  Add1(VFIELD(m_nJudge));
}

void cEdKeyCond::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadPlainVector(m_vKeyState, file);
}

void cEdKeyCond::Save(cDataFile& file) {
  cSaveData::Save(file);
  SavePlainVector(m_vKeyState, file);
}

}  // namespace velmora
