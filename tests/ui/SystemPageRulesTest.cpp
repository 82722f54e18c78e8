#include "SystemSheetFixture.h"

namespace velmora::testing {
namespace {

using SystemPageRules = cSystemSheetTest;

TEST_F(SystemPageRules, ModesPageDisablesWhatItsChecksLeaveWithoutMeaning) {
  Run([&](cSystemSheet&) {
    EXPECT_FALSE(Enabled(1, kIdLives)) << "∞ leaves no count to set";
    Click(1, kIdInfinite);
    EXPECT_TRUE(Enabled(1, kIdLives));
    EXPECT_TRUE(Enabled(1, kIdRankingColumn + 5 + 2));
    Click(1, kIdRankingOn + 1);
    EXPECT_FALSE(Enabled(1, kIdRankingColumn + 5 + 2));
    EXPECT_TRUE(Enabled(1, kIdRankingColumn + 2)) << "the other modes keep their columns";

    Click(1, kIdShareLives);
    for (int id : {kIdMapOnDeath, kIdMapShowLives}) {
      EXPECT_FALSE(Enabled(1, id));
      EXPECT_FALSE(Checked(1, id)) << "cleared";
    }
    Click(1, kIdShareLives);
    EXPECT_TRUE(Enabled(1, kIdMapOnDeath));
    EXPECT_FALSE(Checked(1, kIdMapOnDeath)) << "turning sharing on again checks nothing";
    Click(1, kIdShareLives);
  }, true);
  const cEdSystem& saved = SystemRecord();
  EXPECT_EQ(0, saved.m_bShareLives);
  EXPECT_EQ(0, saved.m_bMapOnDeath + saved.m_bMapShowLives);
  EXPECT_EQ(0, saved.m_abInfinite[0]);
  EXPECT_EQ(5, saved.m_aiLives[0]);
  EXPECT_EQ(0, saved.m_vecRanking[1].m_bEnabled);
  EXPECT_EQ(1, saved.m_vecRanking[1].m_abColumns[2]) << "a disabled column keeps its value";
}

}  // namespace
}  // namespace velmora::testing
