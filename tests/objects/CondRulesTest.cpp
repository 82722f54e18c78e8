#include <gtest/gtest.h>

#include "objects/CondRules.h"
#include "objects/CondTables.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

cEdCond Status(int leftType, int object, int status, int coord = 0) {
  cEdCond c = NewCondition(kCondStatus);
  c.m_nLeftType = static_cast<uint8_t>(leftType);
  c.m_nLeftObject = static_cast<uint8_t>(object);
  c.m_nLeftStatus = static_cast<uint8_t>(status);
  c.m_nLeftCoord = static_cast<uint8_t>(coord);
  return c;
}

// object, coord, giant, scope, var, rename
std::vector<bool> Flags(const cEdCond& c, eCondSide side) {
  const cSideEnables e = SideEnables(c, side);
  return {e.object, e.coord, e.giant, e.scope, e.var, e.rename};
}

TEST(CondRules, ASideEnablesWhatItsTypeNames) {
  using V = std::vector<bool>;
  const eCondSide left = eCondSide::Left;
  EXPECT_EQ(Flags(Status(0, 0, kStatusCharaVar), left), (V{1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(Flags(Status(0, kObjectSystem, kStatusCharaVar), left), (V{1, 0, 0, 0, 0, 0})) << "the system's 時間";
  EXPECT_EQ(Flags(Status(0, 3, kStatusX, 2), left), (V{1, 1, 0, 0, 0, 0})) << "only Y has a giant position";
  EXPECT_EQ(Flags(Status(0, 3, kStatusY), left), (V{1, 1, 0, 0, 0, 0})) << "nor has a relative one";
  EXPECT_EQ(Flags(Status(0, 3, kStatusY, 1), left), (V{1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(Flags(Status(1, 0, kStatusX), left), (V{0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(Flags(Status(7, 0, 0), left), (V{0, 0, 0, 0, 0, 0})) << "a type beyond the table";

  cEdCond c = Status(0, 0, 0);
  for (int type : {0, 1}) {
    c.m_nRightType = static_cast<uint8_t>(type);
    EXPECT_EQ(Flags(c, eCondSide::Right), (V{0, 0, 0, 0, 0, 0})) << "a constant or a random value";
  }
  c.m_nRightType = 2;
  c.m_nRightStatus = kStatusY;
  c.m_nRightCoord = 2;
  EXPECT_EQ(Flags(c, eCondSide::Right), (V{1, 1, 1, 0, 0, 0}));
  c.m_nRightType = 3;
  c.m_nRightScope = 9;
  EXPECT_EQ(Flags(c, eCondSide::Right), (V{0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(SideVarScope(c, eCondSide::Right), 1) << "a scope beyond the table lists the last";
  EXPECT_EQ(SideVarScope(c, left), -1);
}

TEST(CondRules, ValuesFollowTheCharacterRowOfTheLeftStatusNumber) {
  EXPECT_EQ(OperandRange(Status(0, 1, 9)), (cValueRange{-121, 119}));
  EXPECT_TRUE(PercentAllowed(Status(0, 2, 2)));
  // The system's 横スクロール速度 is row 1, and row 1 of the characters is HP.
  EXPECT_EQ(OperandRange(Status(0, kObjectSystem, 1)), (cValueRange{-999999, 999999}));
  EXPECT_TRUE(PercentAllowed(Status(0, kObjectSystem, 1)));
  EXPECT_EQ(OperandRange(Status(0, 0, 200)), (cValueRange{-999999, 999999})) << "past the table: its last row";
  EXPECT_EQ(OperandRange(Status(1, 0, 8)), (cValueRange{-999999, 999999})) << "a variable takes any value";
  EXPECT_FALSE(PercentAllowed(Status(1, 0, 1)));
}

TEST(CondRules, ADistanceConditionIsNoPasteForBlocksAndItems) {
  std::vector<cEdCond> clipboard = {NewCondition(kCondCommonVar), NewCondition(kCondStatus3)};
  EXPECT_EQ(DistancePasteRefusal(clipboard), "");
  clipboard.push_back(NewCondition(kCondDistance));
  EXPECT_EQ(ToUtf8(DistancePasteRefusal(clipboard)), "「距離条件」の貼り付けはできません！");
}

}  // namespace
}  // namespace velmora
