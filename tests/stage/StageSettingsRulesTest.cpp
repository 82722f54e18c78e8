#include <gtest/gtest.h>

#include "core/SystemText.h"
#include "stage/StageParts.h"
#include "stage/StageSettings.h"

namespace velmora::testing {
namespace {

struct cHiddenCase {
  eScrollEdge edge;
  int limit;
  int width;
  int height;
  int hidden;
};

// The limits as the page may hold them while the author types: beyond the
// size of the stage they count as the stage will store them.
TEST(StageSettingsRules, HiddenWidthCountsTheLimitAsTheStageWillStoreIt) {
  const cHiddenCase cases[] = {
      {kEdgeLeft, 492, 20, 15, 0},    {kEdgeLeft, 5, 40, 15, 5},     {kEdgeLeft, 30, 40, 15, 20},
      {kEdgeRight, 19, 20, 15, 0},    {kEdgeRight, 30, 40, 15, 9},   {kEdgeRight, 511, 40, 15, 0},
      {kEdgeTop, 497, 20, 15, 0},     {kEdgeTop, 3, 20, 30, 3},      {kEdgeBottom, 14, 20, 15, 0},
      {kEdgeBottom, 20, 20, 30, 9},   {kEdgeBottom, 511, 20, 512, 0},
  };
  for (const cHiddenCase& c : cases) {
    EXPECT_EQ(c.hidden, HiddenWidth(c.edge, c.limit, c.width, c.height))
        << "edge " << c.edge << " limit " << c.limit << " on " << c.width << "x" << c.height;
  }
}

TEST(StageSettingsRules, BackgroundRowNamesItsStartAndItsColourOrPicture) {
  cStageBack back;
  back.m_strPath = "bmp\\back\\sky.bmp";
  EXPECT_EQ(std::string(SysText("○")) + " bmp\\back\\sky.bmp", BackRowText(back));
  back.m_bFromStart = 0;
  back.m_bUseColor = 1;
  back.m_iColor = 207;
  EXPECT_EQ(std::string(SysText("‐ 色番号207")), BackRowText(back));
}

}  // namespace
}  // namespace velmora::testing
