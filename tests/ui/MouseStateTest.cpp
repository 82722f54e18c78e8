#include "ui/framework/MouseState.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(MouseState, PressIsSeenByTheFirstReadingOnly) {
  ResetMouseMemory();
  cMouseState first, second;
  UpdateMouseButtons(first, true, false);
  UpdateMouseButtons(second, true, false);
  EXPECT_TRUE(first.leftPressed);
  EXPECT_FALSE(second.leftPressed);  // another window reads the same press
  EXPECT_TRUE(second.leftHeld);
  UpdateMouseButtons(first, false, false);
  EXPECT_TRUE(first.leftReleased);
  UpdateMouseButtons(first, false, false);
  EXPECT_FALSE(first.leftReleased);
  UpdateMouseButtons(first, true, true);
  EXPECT_TRUE(first.leftPressed);
  EXPECT_TRUE(first.rightPressed);
}

TEST(MouseState, EdgeScrollFarEveryEventNearEveryEighth) {
  cEdgeScroll edge;
  EXPECT_EQ(edge.Step(-40, 10, 100, 100).dx, -1);
  EXPECT_EQ(edge.Step(150, 10, 100, 100).dx, 1);
  int scrolled = 0;
  for (int i = 0; i < 16; ++i) scrolled += edge.Step(50, 110, 100, 100).dy;
  EXPECT_EQ(scrolled, 2);
  EXPECT_EQ(edge.Step(50, 50, 100, 100).dx, 0);
  EXPECT_EQ(edge.Step(50, 50, 100, 100).dy, 0);
}

}  // namespace
}  // namespace velmora
