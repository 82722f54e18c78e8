#include "ui/controls/ComboMap.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ComboMap, OffsetShiftsAndAdjustForcesIntoRange) {
  cComboMap map(1, nullptr, 3, 4);
  EXPECT_EQ(map.DataToPos(2), 1);
  EXPECT_EQ(map.PosToData(2), 3);
  int value = 7;
  EXPECT_TRUE(map.Adjust(value));
  EXPECT_EQ(value, 3);
  value = 0;
  map.Adjust(value);
  EXPECT_EQ(value, 1);
}

TEST(ComboMap, ConversionTableShowsASubset) {
  const std::vector<int> inherit = {0, 2};
  cComboMap wide(0, &inherit, 2, 4);
  EXPECT_EQ(wide.DataToPos(2), 1);
  EXPECT_EQ(wide.DataToPos(1), -1);
  EXPECT_EQ(wide.PosToData(1), 2);
  EXPECT_EQ(wide.PosToData(5), -1);
  cComboMap narrow(0, &inherit, 2, 1);
  EXPECT_EQ(narrow.PosToData(5), 255);
  int value = 9;
  EXPECT_FALSE(narrow.Adjust(value));
  EXPECT_EQ(value, 9);
  EXPECT_FALSE(narrow.SetMin(3));
}

}  // namespace
}  // namespace velmora
