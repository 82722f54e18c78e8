#include <gtest/gtest.h>

#include "objects/FlowRules.h"
#include "objects/FlowTables.h"
#include "objects/GraphicRule.h"
#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

TEST(FlowRules, OnlyDeathAndTheStageStartCarryANote) {
  EXPECT_EQ(ToUtf8(TriggerNote(kTriggerDeath)), "※実行時間0の並列実行コマンド（P-0）のみ実行可");
  EXPECT_EQ(ToUtf8(TriggerNote(kTriggerBeforeStage)), "※移動・アクション系以外の並列実行コマンド（P-）のみ実行可");
  for (int trigger = 0; trigger < TriggerTable.Size(); ++trigger) {
    if (trigger == kTriggerDeath || trigger == kTriggerBeforeStage) continue;
    EXPECT_STREQ(TriggerNote(trigger), "") << trigger;
  }
}

TEST(FlowRules, AnotherTriggerTakesTheGroupAndATargetItDoesNotAllow) {
  int allowed = 0;
  for (int trigger = 0; trigger < TriggerTable.Size(); ++trigger) allowed += TargetRelatedAllowed(trigger) ? 1 : 0;
  EXPECT_EQ(allowed, 9);
  EXPECT_TRUE(TargetRelatedAllowed(24));
  EXPECT_FALSE(TargetRelatedAllowed(0));

  cEdFlow flow;
  flow.m_nFlowGroup = 3;
  flow.m_bTargetRelated = 1;
  FollowTrigger(flow);
  EXPECT_EQ(flow.m_nFlowGroup, 3) << "常時 keeps its group";
  EXPECT_EQ(flow.m_bTargetRelated, 0);

  flow.m_nTrigger = 6;  // キャラに当たった時
  flow.m_bTargetRelated = 1;
  FollowTrigger(flow);
  EXPECT_EQ(flow.m_nFlowGroup, 0);
  EXPECT_EQ(flow.m_bTargetRelated, 1);
  EXPECT_FALSE(GroupAllowed(6));
}

// Own bitmaps as the database counts them.
class cOwnBitmaps : public cRefSizes {
 public:
  int DbListSize(eDbList list) const override { return list == eDbList::BmpCharaExc ? 6 : 1; }
};

TEST(GraphicRule, TheKindDecidesNumberFrameAndPicker) {
  const cOwnBitmaps sizes;
  InstallRefSizes(&sizes);
  EXPECT_EQ(GraphicNumberRange(kGraphicKindBlock), (cValueRange{1, 119}));
  EXPECT_EQ(GraphicNumberRange(kGraphicKindOwnBmp), (cValueRange{1, 5})) << "row 0 of the list is reserved";
  EXPECT_EQ(GraphicFrameRange(kGraphicKindChara), (cValueRange{0, 39}));
  EXPECT_EQ(GraphicFrameRange(kGraphicKindOwnBmp), (cValueRange{0, 239}));
  for (const int kind : {kGraphicKindBlock, kGraphicKindItem, kGraphicKindShot}) {
    EXPECT_FALSE(HasFrame(kind)) << kind;
    EXPECT_TRUE(CanPickGraphic(kind)) << kind;
  }
  EXPECT_TRUE(HasFrame(kGraphicKindChara));
  EXPECT_FALSE(CanPickGraphic(kGraphicKindOwnBmp));
  InstallRefSizes(nullptr);
}

}  // namespace
}  // namespace velmora
