#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace velmora::testing {

// A record with one field of each kind and the three shapes of gate: a
// field retired at 200, one added at 300 and one that lived from 100 to 400.
class cSampleRecord : public cSaveData {
 public:
  int32_t m_nLife = 0;
  int16_t m_sSpeed = 0;
  uint8_t m_bFlag = 0;
  double m_dRate = 0;
  int32_t m_anParam[3] = {};
  int32_t m_nAdded = 0;
  int32_t m_nWindow = 0;
  std::string m_strName;
  std::string m_strNote;

  cSampleRecord() { SetUp(); }
  void SetUp() {
    Reset();
    m_nLife = 10;
    m_nAdded = 42;
    m_strNote = "note";
  }

 protected:
  void Register(uint32_t version) override {
    ClearLists();
    Add4(VFIELD(m_nLife));
    if (version < 200) Add4(&g_nDropped, 1, "retired");
    Add2(VFIELD(m_sSpeed));
    Add1(VFIELD(m_bFlag));
    Add8(VFIELD(m_dRate));
    Add4(VFIELDS(m_anParam, 3));
    if (version >= 300) Add4(VFIELD(m_nAdded));
    if (version >= 100 && version < 400) Add4(VFIELD(m_nWindow));
    AddString(VSTRING(m_strName));
    if (version < 200) AddString(&g_strDropped, "retiredText");
    AddString(VSTRING(m_strNote));
  }
};

// A record that holds a vector of others behind its own blocks.
class cSampleHolder : public cSaveData {
 public:
  int32_t m_nCount = 0;
  std::vector<cSampleRecord> m_vItem;

  cSampleHolder() { Reset(); }
  void Load(cDataFile& file) override {
    cSaveData::Load(file);
    LoadVector(m_vItem, file);
  }
  void Save(cDataFile& file) override {
    cSaveData::Save(file);
    SaveVector(m_vItem, file);
  }
  void VisitNested(cNestedVisitor& visitor) const override { VisitVector(visitor, "m_vItem", m_vItem); }

 protected:
  void Register(uint32_t) override {
    ClearLists();
    Add4(VFIELD(m_nCount));
  }
};

}  // namespace velmora::testing
