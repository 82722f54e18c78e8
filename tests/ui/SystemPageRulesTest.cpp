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

TEST_F(SystemPageRules, AStatThatIsNotKeptHasNothingToReset) {
  Run([&](cSystemSheet&) {
    EXPECT_TRUE(Enabled(2, kIdStockReset + 0));
    EXPECT_FALSE(Enabled(2, kIdStockReset + 11)) << "remaining HP isn't kept in the sample";
    EXPECT_TRUE(Checked(2, kIdStockReset + 11));
    Click(2, kIdStock + 0);
    EXPECT_FALSE(Enabled(2, kIdStockReset + 0));
  }, false);
}

TEST_F(SystemPageRules, StatusItemsFollowShowAndSymbolAndMenuEntriesTheirChecks) {
  Run([&](cSystemSheet&) {
    // The sample shows every item with its symbol.
    EXPECT_TRUE(Enabled(3, kIdGaugeSymbol));
    EXPECT_FALSE(Enabled(3, kIdGaugeText)) << "the symbol stands in its place";
    EXPECT_EQ(Text(3, kIdGaugeText), QString::fromUtf8("スコア")) << "and its text is kept";
    EXPECT_TRUE(Enabled(3, kIdGaugeDigits));
    Click(3, kIdGaugeSymbol);
    EXPECT_TRUE(Enabled(3, kIdGaugeText));
    Click(3, kIdGaugeShow);
    for (int id : {kIdGaugeSymbol, kIdGaugeText, kIdGaugeDigits}) EXPECT_FALSE(Enabled(3, id)) << id;

    EXPECT_TRUE(Enabled(3, kIdGaugeShowValue + 2));
    Click(3, kIdGaugeShow + 2);
    EXPECT_FALSE(Enabled(3, kIdGaugeShowValue + 2)) << "a bar has no count of digits";
    EXPECT_TRUE(Enabled(3, kIdGaugeThreshold + 2));

    Click(3, kIdOptionMenuOn + 8);
    EXPECT_FALSE(Enabled(3, kIdOptionMenuText + 8));
    EXPECT_TRUE(Enabled(3, kIdOptionMenuText + 7));
  }, true);
  const cEdSystem& saved = SystemRecord();
  EXPECT_EQ(0, saved.m_vecGauges[0].m_bShow);
  EXPECT_EQ(0, saved.m_vecGauges[0].m_bSymbol);
  EXPECT_EQ(0, saved.m_vecOptionMenu[8].m_bEnabled);
  EXPECT_EQ(saved.m_vecOptionMenu[8].m_strText, cEdSystem().m_vecOptionMenu[8].m_strText);
}

}  // namespace
}  // namespace velmora::testing
