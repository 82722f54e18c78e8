#pragma once
#include <cstdint>
#include <vector>

#include "core/SaveData.h"
#include "objects/CondTables.h"

namespace velmora {

// One key condition of a flow: the state of every key and the time the
// input may take.
class cEdKeyCond final : public cSaveData {
 public:
  uint8_t m_bFrontBack = 0;
  int16_t m_nPressMin = 1;
  int16_t m_nPressMax = 1;
  uint8_t m_bPressAny = 0;
  uint8_t m_nJudge = 0;
  std::vector<uint8_t> m_vKeyState = std::vector<uint8_t>(kKeyCount, 0);  // rows of KeyStateTable

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override {
    visitor.Numbers("m_vKeyState", std::vector<int64_t>(m_vKeyState.begin(), m_vKeyState.end()));
  }
  bool operator==(const cEdKeyCond& other) const {
    return IsSame(*this, other) && m_vKeyState == other.m_vKeyState;
  }

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
