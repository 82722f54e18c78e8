#include <gtest/gtest.h>

#include "core/ProjectPaths.h"
#include "platform/TextCodec.h"
#include "project/Database.h"
#include "project/SystemGaugeRules.h"
#include "project/SystemIniDefaults.h"
#include "project/SystemLabels.h"
#include "project/SystemRecord.h"
#include "project/SystemSave.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;

class SystemSettings : public ::testing::Test {
 protected:
  void SetUp() override {
    SystemRecord() = cEdSystem();
    Database().m_Bgm.Resize(3);
  }
  void TearDown() override {
    SystemRecord() = cEdSystem();
    Database().m_Bgm.Resize(0);
    ReadProjectSystemIni();
  }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(SystemSettings, SavingMakesTheCopyTheRecordAndTheIniDefaultsFollowIt) {
  testing::MakeDirs("data");
  testing::WriteText("System.ini", "VSync=1\nExit\n");
  cEdSystem edited;
  edited.m_strGameTitle = "new";
  edited.m_aiBgm = {1, 2, 5, 0, 0, 0};  // the music list has three rows
  edited.m_vecOptions[10].m_iDefault = 0;

  ASSERT_TRUE(SaveSystemSettings(edited));
  EXPECT_EQ("new", SystemRecord().m_strGameTitle);
  EXPECT_EQ((std::vector<int32_t>{1, 2, 0, 0, 0, 0}), SystemRecord().m_aiBgm);
  cEdSystem saved;
  ASSERT_EQ(1, saved.LoadFile(PathOf(ePath::System)));
  EXPECT_EQ("new", saved.m_strGameTitle);
  EXPECT_EQ(SystemRecord().m_aiBgm, saved.m_aiBgm);
  // A key the file lacks takes the new default; the file still rules the rest.
  EXPECT_EQ(0, ProjectSystemIni().nMidiDirectMusic);
  EXPECT_EQ(1, ProjectSystemIni().nVSync);
  EXPECT_TRUE(prompt.Shown().empty());
}

TEST_F(SystemSettings, AFileThatCantBeWrittenIsReportedAndTheRecordStays) {
  testing::WriteText("data", "a file where the folder should be");
  cEdSystem edited;
  edited.m_strGameTitle = "lost";
  EXPECT_FALSE(SaveSystemSettings(edited));
  EXPECT_TRUE(SystemRecord().m_strGameTitle.empty());
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ("data\\System.dat の保存に失敗しました！", prompt.LastText());
}

// The pages refuse nothing that a new project holds: each default text
// fits the limit of its term.
TEST(SystemLabels, DefaultTermsFitTheirLimitsAndTheFontTableRecommendsItsDefault) {
  const cEdSystem defaults;
  for (int term = 0; term < cEdSystem::kTermCount; ++term) {
    const std::string& text = defaults.m_vecTerms[static_cast<size_t>(term)];
    EXPECT_LE(Cp932CharCount(text), TermCharLimit(term)) << term;
  }
  EXPECT_EQ(24, TermCharLimit(16));
  EXPECT_EQ(10, TermCharLimit(38));
  EXPECT_EQ(122, SystemFontTable.Size());
  EXPECT_STREQ("ＭＳ Ｐゴシック", SystemFontTable.Utf8(kDefaultSystemFont));
}

TEST(SystemGaugeRules, TheTextStandsInForTheSymbolAndEverythingFollowsShow) {
  const auto use = [](bool show, bool symbol) {
    const cGaugeUse u = GaugeUse(show, symbol);
    return std::vector<bool>{u.symbol, u.text, u.detail};
  };
  EXPECT_EQ((std::vector<bool>{false, false, false}), use(false, true));
  EXPECT_EQ((std::vector<bool>{false, false, false}), use(false, false));
  EXPECT_EQ((std::vector<bool>{true, false, true}), use(true, true));
  EXPECT_EQ((std::vector<bool>{true, true, true}), use(true, false));
  EXPECT_EQ(2, GaugeDigitsMax(4));
  EXPECT_TRUE(IsBarGauge(2) && IsBarGauge(3) && !IsBarGauge(4));
}

}  // namespace
}  // namespace velmora
