#include <gtest/gtest.h>

#include "objects/GValInfo.h"
#include "platform/TextCodec.h"
#include "support/TempProject.h"

namespace velmora::testing {
namespace {

TEST(CommonVars, AShortFileIsFilledToExactlyAThousand) {
  cTempProject project;
  MakeDirs("data");
  cBytes bytes;
  bytes.U32(900).I32(3);
  for (const char* name : {"", "life", "coin"}) bytes.I32(0).I32(1).Str(name);
  WriteBytes("data/GValInfo.dat", bytes.Data());

  ASSERT_TRUE(LoadCommonVars());
  ASSERT_EQ(g_vecCommonVar.size(), 1000u);
  EXPECT_EQ(VarName(kScopeCommon, 2), "coin");
  EXPECT_EQ(VarName(kScopeCommon, 999), "");
  EXPECT_EQ(VarName(kScopeCommon, 1000), "");
  EXPECT_EQ(VarName(kScopeStage, 1), "");  // no stage names installed

  g_vecCommonVar[999].m_strName = ToCp932("最後");
  ASSERT_TRUE(SaveCommonVars());
  g_vecCommonVar.clear();
  ASSERT_TRUE(LoadCommonVars());
  EXPECT_EQ(ToUtf8(VarName(kScopeCommon, 999)), "最後");
  g_vecCommonVar.clear();
}

TEST(CommonVars, AMissingOrDamagedFileLeavesTheNamesAsTheyWere) {
  cTempProject project;
  g_vecCommonVar.assign(1000, cStageVar());
  g_vecCommonVar[1].m_strName = "kept";
  EXPECT_FALSE(LoadCommonVars());
  EXPECT_EQ(VarName(kScopeCommon, 1), "kept");

  cBytes huge;
  huge.U32(950).I32(2000000000);
  WriteBytes("bad.dat", huge.Data());
  EXPECT_FALSE(LoadCommonVars("bad.dat"));
  EXPECT_EQ(VarName(kScopeCommon, 1), "kept");
  g_vecCommonVar.clear();
}

}  // namespace
}  // namespace velmora::testing
