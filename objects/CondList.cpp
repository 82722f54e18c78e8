#include "objects/CondList.h"

namespace velmora {
namespace {
constexpr uint32_t kCondsStored = 766;
}

void cCondList::Register(uint32_t /*version*/) {
  ClearLists();
  Add1(VFIELD(m_bEnabled));
  Add1(VFIELD(m_nJudge));
}

void cCondList::Load(cDataFile& file) {
  cSaveData::Load(file);
  if (g_nFileVersion >= kCondsStored) {
    LoadVector(m_vCond, file);
  } else {
    m_vCond.clear();
  }
}

void cCondList::Save(cDataFile& file) {
  cSaveData::Save(file);
  // Writing an older layout is how tests state old files.
  if (g_nAppVersion >= kCondsStored) SaveVector(m_vCond, file);
}

}  // namespace velmora
