#include "objects/FlowRules.h"

#include <algorithm>
#include <array>

#include "core/SystemText.h"
#include "objects/FlowTables.h"

namespace velmora {
namespace {

constexpr int kTriggerAlways = 0;
// The triggers that another character causes.
constexpr std::array<int, 9> kTriggersWithCauser = {1, 3, 6, 9, 18, 19, 20, 22, 24};

}  // namespace

const char* TriggerNote(int trigger) {
  if (trigger == kTriggerDeath) return SysText("※実行時間0の並列実行コマンド（P-0）のみ実行可");
  if (trigger == kTriggerBeforeStage) return SysText("※移動・アクション系以外の並列実行コマンド（P-）のみ実行可");
  return "";
}

bool GroupAllowed(int trigger) { return trigger == kTriggerAlways; }

bool TargetRelatedAllowed(int trigger) {
  return std::find(kTriggersWithCauser.begin(), kTriggersWithCauser.end(), trigger) != kTriggersWithCauser.end();
}

void FollowTrigger(cEdFlow& flow) {
  if (!GroupAllowed(flow.m_nTrigger)) flow.m_nFlowGroup = 0;
  if (!TargetRelatedAllowed(flow.m_nTrigger)) flow.m_bTargetRelated = 0;
}

}  // namespace velmora
