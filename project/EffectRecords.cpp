#include "project/EffectRecords.h"

#include "project/FileEntryRecords.h"

namespace velmora {

void cEdEffectFrame::SetUp() {
  Reset();
  m_iTime = 1;
}

void cEdEffectFrame::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_iCell));
  Add4(VFIELD(m_iTime));
}

void cEdEffect::SetUp() {
  Reset();
  m_iWidth = 32;
  m_iHeight = 32;
  m_vecFrames.assign(1, cEdEffectFrame());
}

void cEdEffect::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  if (version >= 151) Add4(VFIELD(m_bNameFromFile));
  AddString(VSTRING(m_strPath));
  Add4(VFIELD(m_iWidth));
  Add4(VFIELD(m_iHeight));
  Add4(VFIELD(m_bAllowGiant));
}

void cEdEffect::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecFrames, file);
  DropNameFromFileOfOldFiles(m_bNameFromFile);
}

void cEdEffect::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vecFrames, file);
}

void cEdEffect::VisitNested(cNestedVisitor& visitor) const { VisitVector(visitor, "m_vecFrames", m_vecFrames); }

void cEdKindEffect::SetUp() {
  Reset();
  m_iKind = 1;
}

void cEdKindEffect::Register(uint32_t) {
  ClearLists();
  AddString(VSTRING(m_strName));
  Add4(VFIELD(m_iKind));
  Add4(VFIELDS(m_aiParam, kParamCount));
}

void cEdKindEffect::FillParamsAddedIn511(int slot, std::initializer_list<int> kinds) {
  if (g_nFileVersion >= 511) return;
  for (int kind : kinds) {
    if (m_iKind == kind) m_aiParam[slot] = Catalog().Param(kind, slot).m_sDefault;
  }
}

void cEdCharaEffect::Load(cDataFile& file) {
  cSaveData::Load(file);
  FillParamsAddedIn511(4, {4, 5});
  FillParamsAddedIn511(3, {10});
}

void cEdScrEffect::Load(cDataFile& file) {
  cSaveData::Load(file);
  FillParamsAddedIn511(4, {6, 7});
  FillParamsAddedIn511(3, {10});
}

}  // namespace velmora
