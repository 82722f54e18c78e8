#include <gtest/gtest.h>

#include "inspect/Inspector.h"
#include "inspect/JsonWriter.h"
#include "platform/TextCodec.h"
#include "support/TempProject.h"
#include "support/TestRecords.h"

namespace velmora {
namespace {

using testing::cSampleHolder;

TEST(InspectorTest, JsonNamesMembersInFileOrderWithNestedVectors) {
  cSampleHolder holder;
  holder.m_nCount = 2;
  holder.m_vItem.resize(1);
  holder.m_vItem[0].m_sSpeed = -3;
  holder.m_vItem[0].m_dRate = 0.25;
  holder.m_vItem[0].m_strName = ToCp932("名前\"");
  const std::string json = inspect::RecordJson(holder);
  EXPECT_EQ(
      "{\n"
      "  \"m_nCount\": 2,\n"
      "  \"m_vItem\": [\n"
      "    {\n"
      "      \"m_nLife\": 10,\n"
      "      \"m_sSpeed\": -3,\n"
      "      \"m_bFlag\": 0,\n"
      "      \"m_dRate\": 0.25,\n"
      "      \"m_anParam\": [0, 0, 0],\n"
      "      \"m_nAdded\": 42,\n"
      "      \"m_strName\": \"名前\\\"\",\n"
      "      \"m_strNote\": \"note\"\n"
      "    }\n"
      "  ]\n"
      "}",
      json);
}

TEST(InspectorTest, CommandsExplainBadUse) {
  testing::cTempProject project;
  std::string out, err;
  EXPECT_EQ(2, inspect::RunInspector({"dump"}, out, err));
  EXPECT_NE(std::string::npos, err.find("usage: velmora-inspect dump FILE"));
  err.clear();
  EXPECT_EQ(1, inspect::RunInspector({"dump", "unknown.xyz"}, out, err));
  EXPECT_NE(std::string::npos, err.find("no known file kind"));
  EXPECT_TRUE(out.empty());
}

}  // namespace
}  // namespace velmora

#include "objects/Palette.h"

namespace velmora {
namespace {

TEST(InspectorTest, ResaveWritesAPaletteByteForByteAndDumpNamesItsLists) {
  testing::cTempProject project;
  cPalette palette;
  palette.m_vecCharaPlt.resize(3);
  palette.m_vecCharaPlt[2].m_strName = "hero";
  ASSERT_EQ(1, palette.SaveFile("p.cplt4"));
  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"resave", "p.cplt4", "q.cplt4"}, out, err)) << err;
  EXPECT_EQ(testing::ReadBytes("p.cplt4"), testing::ReadBytes("q.cplt4"));
  ASSERT_EQ(0, inspect::RunInspector({"dump", "q.cplt4"}, out, err)) << err;
  EXPECT_NE(std::string::npos, out.find("\"kind\": \"CommonPalette\""));
  EXPECT_NE(std::string::npos, out.find("\"m_vecCharaPlt\": ["));
  EXPECT_NE(std::string::npos, out.find("\"m_strName\": \"hero\""));
}

}  // namespace
}  // namespace velmora
