#include "objects/Flow.h"

#include "objects/Upgrade.h"

namespace velmora {

void cEdFlow::Register(uint32_t version) {
  ClearLists();
  if (version >= 676) AddString(VSTRING(m_strMemo));
  Add1(VFIELD(m_nFlowId));
  Add1(VFIELD(m_nFlowGroup));
  Add1(VFIELD(m_bTestOnly));
  Add1(VFIELD(m_nCondJudge));
  Add1(VFIELD(m_bCondLatch));
  Add1(VFIELD(m_nTrigger));
  if (version >= 762) Add1(VFIELD(m_bTargetRelated));
  if (version >= 767) Add1(VFIELD(m_nTargetNo));
  Add1(VFIELD(m_nKeyEase));
  Add1(VFIELD(m_bKeyRepeat));
}

namespace {

// The trigger list grew rows in the middle over time.
void RaiseTriggerFrom(cEdFlow& f, int limit, int by) {
  if (f.m_nTrigger >= limit) f.m_nTrigger += by;
}

const cUpgradeStep<cEdFlow> kFlowUpgrades[] = {
    {132, [](cEdFlow& f) { RaiseTriggerFrom(f, 11, 1); }},
    {163, [](cEdFlow& f) { if (f.m_nTrigger != 0) f.m_nFlowGroup = 0; }},
    {164, [](cEdFlow& f) { RaiseTriggerFrom(f, 5, 2); }},
    {762, [](cEdFlow& f) { RaiseTriggerFrom(f, 18, 3); }},
    {900, [](cEdFlow& f) {
       RaiseTriggerFrom(f, 2, 1);
       RaiseTriggerFrom(f, 4, 1);
       RaiseTriggerFrom(f, 21, 1);
       RaiseTriggerFrom(f, 23, 1);
     }},
};

}  // namespace

void cEdFlow::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vCond, file);
  LoadVector(m_vKeyCond, file);
  LoadVector(m_vCmd, file);
  ApplyUpgrades<cEdFlow>(*this, kFlowUpgrades);
}

void cEdFlow::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vCond, file);
  SaveVector(m_vKeyCond, file);
  SaveVector(m_vCmd, file);
}

void cEdFlow::VisitNested(cNestedVisitor& visitor) const {
  VisitVector(visitor, "m_vCond", m_vCond);
  VisitVector(visitor, "m_vKeyCond", m_vKeyCond);
  VisitVector(visitor, "m_vCmd", m_vCmd);
}

bool cEdFlow::operator==(const cEdFlow& other) const {
  return IsSame(*this, other) && m_vCond == other.m_vCond && m_vKeyCond == other.m_vKeyCond &&
         m_vCmd == other.m_vCmd;
}

bool cEdFlow::IsEmpty() const {
  // A flow that carries anything the author set is kept, the test-play mark
  // included.
  return m_strMemo.empty() && m_nFlowId == 0 && m_nFlowGroup == 0 && m_nTrigger == 0 && m_bTestOnly == 0 &&
         m_vCond.empty() &&
         m_vKeyCond.empty() && m_vCmd.empty();
}

void cEdFlow::CheckFlow() {
  for (cEdCmd& cmd : m_vCmd) cmd.CheckCmd();
}

void DropEmptyFlows(std::vector<cEdFlow>& flows) {
  std::erase_if(flows, [](const cEdFlow& flow) { return flow.IsEmpty(); });
}

}  // namespace velmora
