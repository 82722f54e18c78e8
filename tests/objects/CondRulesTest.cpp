#include <gtest/gtest.h>

#include "objects/CondRules.h"
#include "objects/CondTables.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

cEdCond Status(int leftType, int object, int status) {
  cEdCond c;
  c.m_nKind = kCondStatus;
  c.m_nLeftType = static_cast<uint8_t>(leftType);
  c.m_nLeftObject = static_cast<uint8_t>(object);
  c.m_nLeftStatus = static_cast<uint8_t>(status);
  return c;
}

std::vector<bool> Flags(const cSideEnables& e) { return {e.object, e.coord, e.giant, e.scope, e.var, e.rename}; }

TEST(CondRules, ASideEnablesWhatItsTypeNames) {
  using V = std::vector<bool>;  // object, coord, giant, scope, var, rename
  EXPECT_EQ(Flags(SideEnables(Status(0, 0, kStatusCharaVar), eCondSide::Left)), (V{1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(Flags(SideEnables(Status(0, kObjectSystem, kStatusCharaVar), eCondSide::Left)), (V{1, 0, 0, 0, 0, 0}))
      << "the system's row 0 is 時間, no character variable";
  EXPECT_EQ(Flags(SideEnables(Status(0, 3, kStatusX), eCondSide::Left)), (V{1, 1, 0, 0, 0, 0}));
  cEdCond y = Status(0, 3, kStatusY);
  EXPECT_EQ(Flags(SideEnables(y, eCondSide::Left)), (V{1, 1, 0, 0, 0, 0})) << "relative: no giant position";
  y.m_nLeftCoord = 1;
  EXPECT_EQ(Flags(SideEnables(y, eCondSide::Left)), (V{1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(Flags(SideEnables(Status(0, kObjectSystem, kStatusY), eCondSide::Left)), (V{1, 0, 0, 0, 0, 0}));
  EXPECT_EQ(Flags(SideEnables(Status(1, 0, kStatusX), eCondSide::Left)), (V{0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(Flags(SideEnables(Status(7, 0, 0), eCondSide::Left)), (V{0, 0, 0, 0, 0, 0})) << "a type beyond the table";

  cEdCond right = Status(0, 0, 0);
  for (int type : {0, 1}) {
    right.m_nRightType = static_cast<uint8_t>(type);
    EXPECT_EQ(Flags(SideEnables(right, eCondSide::Right)), (V{0, 0, 0, 0, 0, 0})) << "a constant or random value";
  }
  right.m_nRightType = 2;
  right.m_nRightStatus = kStatusY;
  right.m_nRightCoord = 2;
  EXPECT_EQ(Flags(SideEnables(right, eCondSide::Right)), (V{1, 1, 1, 0, 0, 0}));
  right.m_nRightType = 3;
  right.m_nRightScope = 1;
  EXPECT_EQ(Flags(SideEnables(right, eCondSide::Right)), (V{0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(SideVarScope(right, eCondSide::Right), 1);
  EXPECT_EQ(SideVarScope(right, eCondSide::Left), -1) << "the left side names a status";
}

TEST(CondRules, ValuesFollowTheCharacterRowOfTheLeftStatus) {
  EXPECT_EQ(OperandRange(Status(0, 0, 8)), (cValueRange{-8, 8}));
  EXPECT_FALSE(PercentAllowed(Status(0, 0, 8)));
  EXPECT_EQ(OperandRange(Status(0, 1, 9)), (cValueRange{-121, 119}));
  EXPECT_TRUE(PercentAllowed(Status(0, 2, 2)));
  // The system's 横スクロール速度 is row 1, and row 1 of the characters is HP.
  EXPECT_EQ(OperandRange(Status(0, kObjectSystem, 1)), (cValueRange{-999999, 999999}));
  EXPECT_TRUE(PercentAllowed(Status(0, kObjectSystem, 1)));
  EXPECT_EQ(OperandRange(Status(0, 0, 200)), (cValueRange{-999999, 999999})) << "past the table: its last row";
  // A variable on the left is compared with anything a variable holds.
  EXPECT_EQ(OperandRange(Status(1, 0, 8)), (cValueRange{-999999, 999999}));
  EXPECT_FALSE(PercentAllowed(Status(1, 0, 1)));
}

TEST(CondRules, TheFlagListStartsOverWhenTheObjectPassesToOrFromTheSystem) {
  cEdCond before;
  before.m_nKind = kCondStatus2;
  before.m_nLeftStatus = 3;  // 飛行
  before.m_nLeftVar = 2;

  cEdCond c = before;
  c.m_nLeftObject = 4;
  FollowFlagChoice(c, before);
  cEdCond same = before;
  same.m_nLeftObject = 4;
  EXPECT_EQ(c, same) << "still a character";

  c = before;
  c.m_nLeftObject = kObjectSystem;
  FollowFlagChoice(c, before);
  EXPECT_EQ(c.m_nLeftStatus, 0);
  EXPECT_EQ(c.m_nLeftVar, 0);

  const cEdCond system = c;
  c.m_nLeftObject = 0;
  FollowFlagChoice(c, system);
  EXPECT_EQ(c.m_nLeftStatus, 1) << "消滅 is not in the list";
  EXPECT_EQ(c.m_nLeftVar, 0);

  c = before;
  c.m_nLeftStatus = 4;  // 無敵 holds the 2
  FollowFlagChoice(c, before);
  EXPECT_EQ(c.m_nLeftVar, 2);
  c = before;
  c.m_nLeftStatus = 5;  // 巨大化 starts at 1 and holds the 2 too
  FollowFlagChoice(c, before);
  EXPECT_EQ(c.m_nLeftVar, 2);
  c = before;
  c.m_nLeftVar = 3;
  c.m_nLeftStatus = 1;  // 透明 doesn't hold the 3
  FollowFlagChoice(c, before);
  EXPECT_EQ(c.m_nLeftVar, 0);
}

TEST(CondRules, ADistanceConditionIsNoPasteForBlocksAndItems) {
  std::vector<cEdCond> clipboard = {NewCondition(kCondCommonVar), NewCondition(kCondStatus3)};
  EXPECT_EQ(DistancePasteRefusal(clipboard), "");
  clipboard.push_back(NewCondition(kCondDistance));
  EXPECT_EQ(ToUtf8(DistancePasteRefusal(clipboard)), "「距離条件」の貼り付けはできません！");
  EXPECT_EQ(DistancePasteRefusal({}), "");
}

TEST(CondRules, NewConditionsAndKeyTimes) {
  EXPECT_EQ(NewCondition(kCondStatus).m_nRightVar, 1);
  const cEdCond distance = NewCondition(kCondDistance);
  EXPECT_EQ(distance.m_nValue, 10);
  EXPECT_EQ(distance.m_nRightType + distance.m_nRightObject, 2);
  cEdCond unknown;
  unknown.m_nKind = 9;
  EXPECT_EQ(NewCondition(9), unknown);

  cEdKeyCond key;
  key.m_nPressMin = -4;
  EXPECT_EQ(PressMaxRange(key), (cValueRange{1, 999}));
  key.m_nPressMin = 500;
  EXPECT_EQ(PressMaxRange(key), (cValueRange{500, 999}));
}

}  // namespace
}  // namespace velmora
