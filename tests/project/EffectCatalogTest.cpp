#include <gtest/gtest.h>

#include "platform/TextCodec.h"
#include "project/EffectCatalog.h"

namespace velmora {
namespace {

TEST(EffectCatalogTest, KindsLabelsLimitsAndDefaults) {
  const cEffectCatalog& chara = CharaEffectCatalog();
  const cEffectCatalog& screen = ScrEffectCatalog();
  EXPECT_EQ(17, chara.KindCount());
  EXPECT_EQ(14, screen.KindCount());
  EXPECT_EQ(16u, chara.ChoiceNames().size());
  EXPECT_EQ(ToCp932("破裂"), chara.ChoiceNames()[0]);
  EXPECT_EQ(ToCp932("Direct3D有効時：やや遅い\nDirect3D無効時：画面が16bit色以上でのみ有効。遅い"), chara.Note(16));
  const cEffectParamDef& colour = chara.Param(13, 3);
  EXPECT_EQ(ToCp932("色"), colour.m_strLabel);
  EXPECT_EQ(16, colour.m_sMin);
  EXPECT_EQ(207, colour.m_sMax);
  EXPECT_EQ(6400, screen.Param(11, 2).m_sMax);
  EXPECT_EQ(1500, screen.Param(12, 1).m_sDefault);
  EXPECT_EQ(-320, screen.Param(12, 3).m_sMin);
  EXPECT_EQ(ToCp932("実行時間(1/10s)"), screen.Param(13, 0).m_strLabel);
  // Kind 0 and kinds no table knows have empty slots.
  EXPECT_TRUE(chara.Param(0, 0).m_strLabel.empty());
  EXPECT_TRUE(chara.Param(17, 0).m_strLabel.empty());
  EXPECT_TRUE(chara.Name(-1).empty());

  int32_t params[5] = {9, 9, 9, 9, 9};
  chara.FillDefaults(6, params);
  EXPECT_EQ((std::vector<int32_t>{10, 2, 0, 0, 0}), std::vector<int32_t>(params, params + 5));
}

}  // namespace
}  // namespace velmora
