#include <gtest/gtest.h>

#include <filesystem>

#include "core/CheckedAccess.h"
#include "core/Log.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "platform/TextCodec.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "support/TestRecords.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;
using testing::ReadText;

class LogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_bNoSave = 0;
    ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
    SetDebugLog("EC_Editor.txt", false);
  }
  void TearDown() override { g_bNoSave = 0; }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(LogTest, ReportLinesAreAppendedInCp932WithLineFeeds) {
  ReportLine("first %d", 1);
  ReportFormat(SysText("%s の読み込みに失敗しました！"), "a.dat");
  ReportText("third\n");
  const std::string log = ReadText("Report_Editor.txt");
  EXPECT_EQ(ToCp932("first 1\na.dat の読み込みに失敗しました！\nthird\n"), log);
  // Reopening for each line means a new start empties the log.
  ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
  EXPECT_EQ("", ReadText("Report_Editor.txt"));
}

TEST_F(LogTest, DebugLogAndDebugBoxAreSilentWithTheSwitchOff) {
  DebugText("x");
  DebugFormat("%d", 2);
  DebugBox("box");
  ReportFormat("both");
  EXPECT_FALSE(std::filesystem::exists("EC_Editor.txt"));
  EXPECT_TRUE(prompt.Shown().empty());

  SetDebugLog("EC_Editor.txt", true);
  DebugText("one");
  DebugText("two");
  EXPECT_EQ("one\ntwo\n", ReadText("EC_Editor.txt"));
  SetDebugLog("EC_Editor.txt", true);  // a new run truncates
  DebugText("three");
  EXPECT_EQ("three\n", ReadText("EC_Editor.txt"));
}

TEST_F(LogTest, ErrorBoxesCarryTheCaptionAndAreCutAt1024Bytes) {
  ErrorBox("value %d", 5);
  ReportBoxFormat("logged %s", "too");
  ErrorBoxText(std::string(3000, 'x').c_str());
  ErrorBox("%s", std::string(3000, 'y').c_str());
  ASSERT_EQ(4u, prompt.Shown().size());
  EXPECT_EQ("エラー", prompt.Shown()[0].caption);
  EXPECT_EQ("value 5", prompt.Shown()[0].text);
  EXPECT_EQ("logged too", prompt.Shown()[1].text);
  EXPECT_EQ(3000u, prompt.Shown()[2].text.size());
  EXPECT_EQ(1023u, prompt.Shown()[3].text.size());
  EXPECT_EQ(ToCp932("logged too\n"), ReadText("Report_Editor.txt"));
}

TEST_F(LogTest, StopsForbidSavingAndAskTheWindowToClose) {
  const int closes = CloseRequestCount();
  StopOutOfMemory();
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ("メモリが不足しています！", prompt.Shown()[0].text);
  EXPECT_EQ(1, g_bNoSave);
  EXPECT_EQ(closes + 1, CloseRequestCount());
  testing::cSampleRecord record;
  EXPECT_EQ(0, record.SaveFile("r.dat"));

  g_bNoSave = 0;
  StopNoResources();  // its box is a debug box: nothing shows with the switch off
  EXPECT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ(1, g_bNoSave);
  EXPECT_EQ(closes + 2, CloseRequestCount());
}

TEST_F(LogTest, CheckedAccessReportsBadIndexesAndGivesElementZero) {
  std::vector<int32_t> values = {7, 8};
  const int destroys = DestroyRequestCount();
  EXPECT_EQ(8, VecAt(values, 1));
  EXPECT_EQ(0, g_bNoSave);
  EXPECT_EQ(7, VecAt(values, -1));
  EXPECT_EQ(7, VecAt(values, 2));
  std::list<int16_t> list = {3};
  EXPECT_EQ(3, ListAt(list, 1, eBadIndexClose::PostRequest));
  EXPECT_EQ("err V[-1] ( 2 , 4 )\nerr V[2] ( 2 , 4 )\nerr L[1] ( 1 , 2 )\n", ReadText("Report_Editor.txt"));
  EXPECT_EQ(1, g_bNoSave);
  EXPECT_EQ(destroys + 2, DestroyRequestCount());
}

TEST(LogDeathTest, BadIndexIntoAnEmptyVectorEndsTheProcess) {
  std::vector<int32_t> empty;
  EXPECT_EXIT(VecAt(empty, 0), ::testing::ExitedWithCode(3), "");
}

}  // namespace
}  // namespace velmora
