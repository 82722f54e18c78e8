#pragma once
#include <vector>

#include "objects/Cond.h"

namespace velmora {

// A list of conditions that can be switched off as a whole; the command
// フローの操作 holds one.
class cCondList final : public cSaveData {
 public:
  uint8_t m_bEnabled = 0;
  uint8_t m_nJudge = 0;
  std::vector<cEdCond> m_vCond;

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override { VisitVector(visitor, "m_vCond", m_vCond); }
  bool operator==(const cCondList& other) const { return IsSame(*this, other) && m_vCond == other.m_vCond; }

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
