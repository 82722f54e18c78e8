#include <gtest/gtest.h>

#include "objects/FlowRows.h"
#include "platform/TextCodec.h"

namespace velmora::testing {
namespace {

enum eKey { kDirN, kLeft, kRight, kUp, kDown, kZ = 11, kX = 12, kF = 18 };

cEdKeyCond Keys(std::initializer_list<int> pressed, int judge = 0) {
  cEdKeyCond key;
  key.m_nJudge = static_cast<uint8_t>(judge);
  for (int k : pressed) key.m_vKeyState[static_cast<size_t>(k)] = 1;
  return key;
}

std::string Row(const cEdKeyCond& key) { return ToUtf8(KeyRowText(key)); }

TEST(FlowRows, FlowRowCountsCommandsAndNamesGroupAndId) {
  cEdFlow flow;
  flow.m_vCmd.resize(3);
  EXPECT_EQ(ToUtf8(FlowRowText(flow)), "×3 - -");
  flow.m_vCmd.clear();
  flow.m_nFlowGroup = 2;
  flow.m_nFlowId = 26;
  EXPECT_EQ(ToUtf8(FlowRowText(flow)), "×0 b Z");
}

TEST(FlowRows, KeyRowJoinsPressedKeysInStoredOrder) {
  cEdKeyCond key = Keys({kX, kZ});
  key.m_nPressMax = 5;
  EXPECT_EQ(Row(key), "1～5 ： Z + X ");

  key = Keys({kF, kDirN, kLeft}, 1);
  key.m_bPressAny = 1;
  EXPECT_EQ(Row(key), "1～∞ ： 方n ･ ← ･ F ");
  EXPECT_EQ(Row(Keys({kUp, kDown}, 2)), "1～1 ： ↑ / ↓ ");
  EXPECT_EQ(Row(Keys({kRight})), "1～1 ： → ");
}

TEST(FlowRows, KeyRowWithoutPressedKeysIsThePressSpanAlone) {
  cEdKeyCond released = Keys({});
  released.m_vKeyState.assign(kKeyCount, 2);
  released.m_nPressMin = 3;
  released.m_nPressMax = 10;
  EXPECT_EQ(Row(released), "3～10 ： ");

  // A damaged record: a short key list and a judge beyond its table.
  cEdKeyCond damaged = Keys({kLeft}, 7);
  damaged.m_vKeyState.resize(2);
  EXPECT_EQ(Row(damaged), "1～1 ： ←");
  damaged.m_vKeyState.clear();
  EXPECT_EQ(Row(damaged), "1～1 ： ");
}

}  // namespace
}  // namespace velmora::testing
