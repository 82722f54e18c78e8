#include "project/SystemParts.h"

#include "core/SystemText.h"
#include "project/StreamParts.h"

namespace velmora {

void cEdSysGauge::SetUp() {
  Reset();
  m_bShow = 1;
  m_bSymbol = 1;
  m_bShowValue = 1;
}

void cEdSysGauge::Register(uint32_t version) {
  ClearLists();
  Add4(VFIELD(m_bShow));
  Add4(VFIELD(m_bSymbol));
  AddString(VSTRING(m_strText));
  Add4(VFIELD(m_iDigits));
  if (version >= 204) Add4(VFIELD(m_bShowValue));
  if (version >= 587) {
    Add4(VFIELD(m_iBarThreshold));
    Add4(VFIELD(m_bBarPercent));
  }
}

cEdSysMenuItem::cEdSysMenuItem(bool enabled, const char* utf8Text) {
  SetUp();
  m_bEnabled = enabled;
  m_strText = SysText(utf8Text);
}

void cEdSysMenuItem::SetUp() {
  Reset();
  m_bEnabled = 1;
}

void cEdSysMenuItem::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_bEnabled));
  AddString(VSTRING(m_strText));
}

void cEdSysRanking::SetUp() {
  Reset();
  SetAll(false);
}

void cEdSysRanking::SetAll(bool on) {
  m_bEnabled = on;
  m_abColumns.assign(kColumnCount, on);
}

void cEdSysRanking::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_bEnabled));
}

void cEdSysRanking::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadBytes(m_abColumns, file);
}

void cEdSysRanking::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveBytes(m_abColumns, file);
}

void cEdSysRanking::VisitNested(cNestedVisitor& visitor) const { VisitNumbers(visitor, "m_abColumns", m_abColumns); }

cEdSysOption::cEdSysOption(eType type, const char* key, int32_t value) {
  Reset();
  m_iType = type;
  m_strKey = key;
  m_iDefault = value;
}

void cEdSysOption::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_iType));
  AddString(VSTRING(m_strKey));
  Add4(VFIELD(m_iDefault));
  AddString(VSTRING(m_strDefault));
}

}  // namespace velmora
