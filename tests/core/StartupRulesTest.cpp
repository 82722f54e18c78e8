#include <gtest/gtest.h>

#include "core/Log.h"
#include "core/SheetRate.h"
#include "core/StartupReport.h"
#include "core/TimedBackup.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

TEST(TimedBackupTest, DueOutsideTheIntervalAndAfterARestart) {
  for (int now = 100; now < 160; ++now) EXPECT_FALSE(IsBackupDue(now, 100, 1)) << now;
  EXPECT_TRUE(IsBackupDue(160, 100, 1));
  EXPECT_TRUE(IsBackupDue(99, 100, 1));
  EXPECT_TRUE(IsBackupDue(100, 100, 0));  // an interval of 0 backs up at every start
}

TEST(SheetRateTest, StoredRateNeedsTheSameSystemFontAndVersion874) {
  SheetSize stored;
  stored.m_nSystemMajor = 6;
  stored.m_nSystemMinor = 1;
  stored.m_strFontFace = "IPAGothic";
  stored.m_nFontWidth = 0;
  stored.m_nFontHeight = -12;
  cUiFont font{"IPAGothic", 0, -12, 128};
  EXPECT_TRUE(StoredSheetRateFits(stored, 874, 6, 1, font));
  EXPECT_FALSE(StoredSheetRateFits(stored, 873, 6, 1, font));
  EXPECT_FALSE(StoredSheetRateFits(stored, 950, 6, 2, font));
  font.height = -13;
  EXPECT_FALSE(StoredSheetRateFits(stored, 950, 6, 1, font));

  cSheetRate rate = SheetRateFromClient(393 * 2, 0);
  EXPECT_DOUBLE_EQ(0.5, rate.x);
  EXPECT_DOUBLE_EQ(1.0, rate.y);
}

TEST(StartupReportTest, OpensWithTheVersionAndOneLinePerFact) {
  testing::cTempProject project;
  ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
  WriteStartupReport({"IPAGothic", 6, 12, 128});
  const std::string log = testing::ReadText("Report_Editor.txt");
  EXPECT_EQ(0u, log.find("App : ver 950\nOS : Linux "));
  EXPECT_NE(std::string::npos, log.find("\nSystem Font : IPAGothic (12,6) 128\n"));
  EXPECT_NE(std::string::npos, log.find("\nDisplay : (1920,1080)\n"));
}

}  // namespace
}  // namespace velmora
