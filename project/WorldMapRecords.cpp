#include "project/WorldMapRecords.h"

namespace velmora {

void cEdWorldChip::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_iReserved));
  Add4(VFIELD(m_bBlocked));
  Add4(VFIELD(m_iGraphic));
  AddString(VSTRING(m_strName));
  AddString(VSTRING(m_strExtra));
}

void cEdWorldPage::SetUp() {
  Reset();
  m_iVarVar = 1;
}

void cEdWorldPage::Register(uint32_t version) {
  ClearLists();
  Add4(VFIELD(m_iType));
  Add4(VFIELD(m_iGraphic));
  Add4(VFIELD(m_iWorldNo));
  Add4(VFIELD(m_bPassable));
  Add4(VFIELD(m_bReplayable));
  Add4(VFIELD(m_iGameClear));
  Add4(VFIELD(m_iCondWorld));
  Add4(VFIELD(m_iCondVar));
  Add4(VFIELD(m_iCondValue));
  Add4(VFIELD(m_iCondOp));
  if (version >= 209) Add4(VFIELD(m_iCondScore));
  if (version >= 758) {
    Add4(VFIELD(m_bVariation));
    Add4(VFIELD(m_iVarVar));
    Add4(VFIELD(m_iVarValue));
  }
  AddString(VSTRING(m_strWorldName));
  AddString(VSTRING(m_strStartStage));
}

void cEdWorldPage::Load(cDataFile& file) {
  cSaveData::Load(file);
  if (g_nFileVersion < 209) m_iCondScore = 0;
}

void cEdWorldEvent::SetUp() {
  Reset();
  m_vecPages.assign(1, cEdWorldPage());
}

void cEdWorldEvent::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_iX));
  Add4(VFIELD(m_iY));
  AddString(VSTRING(m_strName));
}

void cEdWorldEvent::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecPages, file);
}

void cEdWorldEvent::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vecPages, file);
}

void cEdWorldEvent::VisitNested(cNestedVisitor& visitor) const { VisitVector(visitor, "m_vecPages", m_vecPages); }

}  // namespace velmora
