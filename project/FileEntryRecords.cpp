#include "project/FileEntryRecords.h"

namespace velmora {

void DropNameFromFileOfOldFiles(int32_t& flag) {
  if (g_nFileVersion < 153) flag = 0;
}

void cEdFileEntry::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  if (version >= 151) Add4(VFIELD(m_bNameFromFile));
  AddString(VSTRING(m_strPath));
}

void cEdFileEntry::Load(cDataFile& file) {
  cSaveData::Load(file);
  DropNameFromFileOfOldFiles(m_bNameFromFile);
}

void cEdBgm::SetUp() {
  Reset();
  m_iVolume = 100;
}

void cEdBgm::Register(uint32_t version) {
  cEdFileEntry::Register(version);
  if (version >= 814) Add4(VFIELD(m_iVolume));
}

void cEdCharaBmp::SetUp() {
  Reset();
  m_iHugeSize = 2;
}

void cEdCharaBmp::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  if (version >= 152) Add4(VFIELD(m_bNameFromFile));
  AddString(VSTRING(m_strPath));
  if (version >= 172) {
    Add4(VFIELD(m_bHuge));
    Add4(VFIELD(m_iHugeSize));
  }
}

void cEdCharaBmp::Load(cDataFile& file) {
  cSaveData::Load(file);
  DropNameFromFileOfOldFiles(m_bNameFromFile);
}

}  // namespace velmora
