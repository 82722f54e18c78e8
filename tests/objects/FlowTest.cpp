#include <gtest/gtest.h>

#include "objects/Flow.h"
#include "objects/FlowTables.h"
#include "OldFile.h"

namespace velmora::testing {
namespace {

cEdFlow Trigger(int trigger, int group = 0) {
  cEdFlow f;
  f.m_nTrigger = static_cast<uint8_t>(trigger);
  f.m_nFlowGroup = static_cast<uint8_t>(group);
  return f;
}

TEST(FlowUpgrade, TriggersFollowEveryRowAddedToTheTable) {
  cEdFlow loaded = ReadAsVersion(131, Trigger(11, 3));
  EXPECT_EQ(loaded.m_nTrigger, 16);  // 132, 164, then 2 and 4 at 900
  EXPECT_EQ(loaded.m_nFlowGroup, 0);
  EXPECT_EQ(ReadAsVersion(162, Trigger(0, 3)).m_nFlowGroup, 3);
  EXPECT_EQ(ReadAsVersion(163, Trigger(1, 3)).m_nFlowGroup, 3);
  EXPECT_EQ(ReadAsVersion(761, Trigger(18)).m_nTrigger, 25);
  EXPECT_EQ(ReadAsVersion(899, Trigger(22)).m_nTrigger, 26);
  EXPECT_EQ(ReadAsVersion(899, Trigger(3)).m_nTrigger, 5);
  EXPECT_EQ(ReadAsVersion(899, Trigger(1)).m_nTrigger, 1);
  EXPECT_EQ(ReadAsVersion(900, Trigger(22)).m_nTrigger, 22);
}

TEST(FlowRecord, GatedFieldsAndNestedListsRoundTrip) {
  cEdFlow flow = Trigger(kTriggerBeforeStage);
  flow.m_strMemo = "memo";
  flow.m_bTargetRelated = 1;
  flow.m_nTargetNo = 2;
  flow.m_vCond.resize(2);
  flow.m_vCond[0].m_nKind = 3;
  flow.m_vKeyCond.resize(1);
  flow.m_vCmd.resize(1);
  flow.m_vCmd[0].m_nKind = 1;
  EXPECT_EQ(ReadAsVersion(950, flow), flow);

  cEdFlow old = ReadAsVersion(675, flow);
  EXPECT_TRUE(old.m_strMemo.empty());
  EXPECT_EQ(old.m_bTargetRelated, 0);
  EXPECT_EQ(old.m_vCond, flow.m_vCond);
  EXPECT_EQ(ReadAsVersion(766, flow).m_nTargetNo, 0);
}

TEST(FlowRecord, CopiesAreDeep) {
  cEdFlow flow;
  flow.m_vCmd.resize(1);
  flow.m_vCmd[0].m_pShot.Make().m_nCount = 3;
  cEdFlow copy = flow;
  copy.m_vCmd[0].m_pShot->m_nCount = 4;
  EXPECT_EQ(flow.m_vCmd[0].m_pShot->m_nCount, 3);
  EXPECT_FALSE(copy == flow);
}

TEST(FlowList, EmptyFlowsAreDroppedAndAMemoKeepsOne) {
  std::vector<cEdFlow> flows(6);
  flows[1].m_strMemo = "note";
  flows[2].m_vKeyCond.resize(1);
  flows[3].m_nFlowId = 1;
  flows[5].m_bTestOnly = 1;
  DropEmptyFlows(flows);
  ASSERT_EQ(flows.size(), 4u);
  EXPECT_EQ(flows[0].m_strMemo, "note");
  EXPECT_EQ(flows[1].m_vKeyCond.size(), 1u);
  EXPECT_EQ(flows[2].m_nFlowId, 1);
  EXPECT_EQ(flows[3].m_bTestOnly, 1);
}

TEST(FlowCheck, EveryCommandGetsItsParameterCount) {
  cEdFlow flow;
  flow.m_vCmd.resize(2);
  flow.m_vCmd[0].m_nKind = 10;
  flow.m_vCmd[1].m_nKind = 21;
  flow.CheckFlow();
  EXPECT_EQ(flow.m_vCmd[0].m_vParam.size(), 5u);
  EXPECT_EQ(flow.m_vCmd[1].m_vParam.size(), 16u);
}

}  // namespace
}  // namespace velmora::testing

namespace velmora::testing {
namespace {

// Writes down what the inspector would be shown, in order.
class cNestedNames : public cNestedVisitor {
 public:
  void BeginArray(const char* name) override { names += std::string(name) + "["; }
  void Element(const cSaveData& record) override {
    names += "{";
    record.VisitNested(*this);
    names += "}";
  }
  void EndArray() override { names += "] "; }
  void Child(const char* name, const cSaveData* record) override {
    names += std::string(name) + (record ? "+ " : "- ");
  }
  void Numbers(const char* name, const std::vector<int64_t>& values) override {
    names += std::string(name) + "#" + std::to_string(values.size()) + " ";
  }
  std::string names;
};

TEST(FlowInspection, NestedPartsAreShownInFileOrder) {
  cEdFlow flow;
  flow.m_vKeyCond.resize(1);
  flow.m_vCmd.resize(1);
  flow.m_vCmd[0].m_pShot.Make();
  flow.m_vCmd[0].m_vParam = {1, 2, 3};
  cNestedNames visitor;
  flow.VisitNested(visitor);
  EXPECT_EQ(visitor.names,
            "m_vCond[] m_vKeyCond[{m_vKeyState#19 }] "
            "m_vCmd[{m_pMove- m_pShot+ m_pCondList- m_vSubFlow[] m_vParam#3 }] ");
}

}  // namespace
}  // namespace velmora::testing
