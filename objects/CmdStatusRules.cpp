#include "objects/CmdStatusRules.h"

#include <algorithm>
#include <limits>

#include "objects/ObjectList.h"

namespace velmora {
namespace {

// Indices of ステータスの操作's parameters.
enum eStatusOpParam : int {
  kLeftType, kLeftScope, kLeftVar, kLeftObject, kLeftStatus, kOperator, kRightType, kConstant, kRandMin, kRandMax,
  kRightScope, kRightVar, kRightObject, kRightStatus, kPercent, kPercentKind, kBar, kInvincible, kLeftCoord,
  kRightCoord, kLeftGiant, kRightGiant,
};
// ステータスの操作2's.
enum eStatusOp2Param : int { kFlagObject, kFlag, kFlagValue };

template <class N>
N Narrow(int32_t value) {
  return static_cast<N>(std::clamp<int32_t>(value, std::numeric_limits<N>::min(), std::numeric_limits<N>::max()));
}

bool IsSystem(int object) { return object == kObjectSystem; }

}  // namespace

cEdCond StatusOpAsCond(const cCmdWork& w) {
  cEdCond c;
  c.m_nLeftType = Narrow<uint8_t>(w.P(kLeftType));
  c.m_nLeftScope = Narrow<uint8_t>(w.P(kLeftScope));
  c.m_nLeftVar = Narrow<int16_t>(w.P(kLeftVar));
  c.m_nLeftObject = Narrow<uint8_t>(w.P(kLeftObject));
  c.m_nLeftStatus = Narrow<uint8_t>(w.P(kLeftStatus));
  c.m_nLeftCoord = Narrow<uint8_t>(w.P(kLeftCoord));
  c.m_nLeftGiantPos = Narrow<uint8_t>(w.P(kLeftGiant));
  c.m_nRightType = Narrow<uint8_t>(w.P(kRightType));
  c.m_nRightScope = Narrow<uint8_t>(w.P(kRightScope));
  c.m_nRightVar = Narrow<int16_t>(w.P(kRightVar));
  c.m_nRightObject = Narrow<uint8_t>(w.P(kRightObject));
  c.m_nRightStatus = Narrow<uint8_t>(w.P(kRightStatus));
  c.m_nRightCoord = Narrow<uint8_t>(w.P(kRightCoord));
  c.m_nRightGiantPos = Narrow<uint8_t>(w.P(kRightGiant));
  return c;
}

cValueRange StatusOpOperandRange(const cCmdWork& w) { return OperandRange(StatusOpAsCond(w)); }

bool StatusOpPercentAllowed(const cCmdWork& w) {
  if (w.P(kLeftType) != 0) return false;
  const std::span<const cStatusInfo> table = StatusListOf(w.P(kLeftObject));
  const int status = w.P(kLeftStatus);
  return status >= 0 && status < static_cast<int>(table.size()) && table[static_cast<size_t>(status)].cmdPercent;
}

const cFlagInfo* StatusOp2Flag(const cCmdWork& w) { return FlagAt(FlagListOf(w.P(kFlagObject)), w.P(kFlag)); }

void FollowStatusOp2(cCmdWork& w, const cCmdWork& before) {
  const bool otherList = IsSystem(w.P(kFlagObject)) != IsSystem(before.P(kFlagObject));
  if (otherList) w.P(kFlag) = 0;
  const cFlagInfo* flag = StatusOp2Flag(w);
  if (!flag) return;
  const int value = w.P(kFlagValue);
  if (otherList || w.P(kFlag) != before.P(kFlag) || value < flag->min || value > flag->max) w.P(kFlagValue) = flag->def;
}

}  // namespace velmora
