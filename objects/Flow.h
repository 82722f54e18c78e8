#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "objects/Cmd.h"
#include "objects/Cond.h"
#include "objects/KeyCond.h"

namespace velmora {

inline constexpr int kMaxFlowConds = 99;
inline constexpr int kMaxFlowKeyConds = 99;
inline constexpr int kMaxFlowCmds = 999;
inline constexpr int kMaxFlows = 999;
inline constexpr int kMaxFlowMemoChars = 200;

// One flow of a character: when it runs and what it does.
class cEdFlow final : public cSaveData {
 public:
  std::string m_strMemo;
  uint8_t m_nFlowId = 0;
  uint8_t m_nFlowGroup = 0;
  uint8_t m_bTestOnly = 0;
  uint8_t m_nCondJudge = 0;
  uint8_t m_bCondLatch = 0;
  uint8_t m_nTrigger = 0;
  uint8_t m_bTargetRelated = 0;
  uint8_t m_nTargetNo = 0;
  uint8_t m_nKeyEase = 0;
  uint8_t m_bKeyRepeat = 0;
  std::vector<cEdCond> m_vCond;
  std::vector<cEdKeyCond> m_vKeyCond;
  std::vector<cEdCmd> m_vCmd;

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  bool operator==(const cEdFlow& other) const;

  // Nothing in it at all, not even a memo or a mark: its owner drops it.
  bool IsEmpty() const;
  void CheckFlow();

 protected:
  void Register(uint32_t version) override;
};

// The owner's clean-up of its flow list.
void DropEmptyFlows(std::vector<cEdFlow>& flows);

}  // namespace velmora
