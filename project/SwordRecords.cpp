#include "project/SwordRecords.h"

#include "project/FileEntryRecords.h"

namespace velmora {

void cEdSwordPos::SetUp() {
  Reset();
  m_bFlipX = 1;
}

void cEdSwordPos::Register(uint32_t version) {
  ClearLists();
  Add4(VFIELD(m_iOffsetX));
  Add4(VFIELD(m_iOffsetY));
  if (version >= 138) {
    Add4(VFIELD(m_bFlipX));
    Add4(VFIELD(m_bFlipY));
  }
  Add4(VFIELD(m_iDirection));
  Add4(VFIELD(m_iSrcX));
  Add4(VFIELD(m_iSrcY));
  Add4(VFIELD(m_iWidth));
  Add4(VFIELD(m_iHeight));
  Add4(VFIELD(m_iTime));
}

void cEdSwordType::SetUp() {
  Reset();
  // A new sword shows its single position for a moment; positions
  // inserted later start at 0.
  m_vecPositions.assign(1, cEdSwordPos());
  m_vecPositions[0].m_iTime = 1;
}

void cEdSwordType::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  if (version >= 151) Add4(VFIELD(m_bNameFromFile));
  AddString(VSTRING(m_strLeftPath));
  AddString(VSTRING(m_strRightPath));
}

void cEdSwordType::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecPositions, file);
  DropNameFromFileOfOldFiles(m_bNameFromFile);
}

void cEdSwordType::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vecPositions, file);
}

void cEdSwordType::VisitNested(cNestedVisitor& visitor) const {
  VisitVector(visitor, "m_vecPositions", m_vecPositions);
}

}  // namespace velmora
