#include "core/EditConfig.h"

#include "core/ProjectPaths.h"

namespace velmora {

EditConfig& EditorConfig() {
  static EditConfig config;
  return config;
}

void EditConfig::SetUp() {
  Reset();
  m_strTemplateStage = PathOf(ePath::DefaultStage);
  m_nStagePaletteChoice = 1;
  m_bEditBeforePlace = 1;
  m_bAutoWorldNumber = 1;
  m_bBmpUseTrans = 1;
  m_nBmpLineIn = 1;
  m_nBmpLineOut = 15;
  m_strBmpFolder = "bmp\\convert";
  for (cWindowPlace& place : m_aPlace) place.SetUp();
}

void EditConfig::Register(uint32_t version) {
  ClearLists();
  if (version < 129) AddString(&g_strDropped, "retired");
  if (version >= 73) AddString(VSTRING(m_strLastStage));
  if (version >= 288 && version < 784) {
    Add4(&g_nDropped, 1, "retired");
    Add4(&g_nDropped, 1, "retired");
  }
  if (version >= 130) {
    AddString(VSTRING(m_strTemplateStage));
    Add4(VFIELD(m_nStagePaletteChoice));
    AddString(VSTRING(m_strStagePaletteFile));
  }
  if (version >= 95) {
    for (int32_t& page : m_anEditPage) Add4(&page, 1, "m_anEditPage");
  }
  if (version >= 198) {
    Add4(VFIELD(m_nSizeDirX));
    Add4(VFIELD(m_nSizeDirY));
  }
  if (version == 130) AddString(&g_strDropped, "retired");
  Add4(VFIELD(m_bEditIfPlaced));
  Add4(VFIELD(m_bEditBeforePlace));
  Add4(VFIELD(m_bAutoWorldNumber));
  Add4(VFIELD(m_bBmpUseTrans));
  Add4(VFIELD(m_nBmpTransColor));
  if (version >= 87) {
    Add4(VFIELD(m_bBmpReplaceLine));
    Add4(VFIELD(m_nBmpLineIn));
    Add4(VFIELD(m_nBmpLineOut));
  }
  Add4(VFIELD(m_bBmpSameAsInput));
  AddString(VSTRING(m_strBmpFolder));
}

void EditConfig::Load(cDataFile& file) {
  const uint32_t version = g_nFileVersion;
  cSaveData::Load(file);
  if (version < 130) return;
  for (cWindowPlace& place : m_aPlace) place.Load(file);
}

void EditConfig::Save(cDataFile& file) {
  SharePairedVisibility();
  cSaveData::Save(file);
  for (cWindowPlace& place : m_aPlace) place.Save(file);
}

void EditConfig::VisitNested(cNestedVisitor& visitor) const { VisitVector(visitor, "m_aPlace", m_aPlace); }

void EditConfig::SharePairedVisibility() {
  m_aPlace[3].m_bVisible = m_aPlace[5].m_bVisible = m_aPlace[1].m_bVisible;
  m_aPlace[4].m_bVisible = m_aPlace[6].m_bVisible = m_aPlace[2].m_bVisible;
}

}  // namespace velmora
