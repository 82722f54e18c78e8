#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "objects/code/AskVarName.h"
#include "objects/code/VarCombo.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

struct cNameRecord {
  std::string m_strName;
};

std::vector<cNameRecord> Records(const std::vector<std::string>& utf8Names) {
  std::vector<cNameRecord> records;
  for (const std::string& name : utf8Names) records.push_back({ToCp932(name)});
  return records;
}

TEST(VarComboTest, RowsStartAtVariableOneWithAPaddedNumber) {
  std::vector<cNameRecord> records = Records({"never shown", "coin", "", "ボス撃破"});
  const cRecordVarNames<cNameRecord> list(records);
  const std::vector<std::string> rows = VarComboRows(list);
  ASSERT_EQ(3u, rows.size());
  EXPECT_EQ("001 coin", rows[0]);
  EXPECT_EQ("002 ", rows[1]);
  EXPECT_EQ("003 ボス撃破", ToUtf8(rows[2]));
  EXPECT_EQ("1000 key", VarComboRowText(1000, "key"));
}

TEST(VarComboTest, AStoredNumberSnapsToTheNearestRow) {
  std::vector<cNameRecord> records = Records({"", "a", "b", "c"});
  const cRecordVarNames<cNameRecord> list(records);
  EXPECT_EQ(0, VarComboRow(list, -5));
  EXPECT_EQ(0, VarComboRow(list, 0));
  EXPECT_EQ(1, VarComboRow(list, 2));
  EXPECT_EQ(2, VarComboRow(list, 3));
  EXPECT_EQ(2, VarComboRow(list, 999));
  EXPECT_EQ(3, VarNumberOfRow(VarComboRow(list, 3)));
  std::vector<cNameRecord> onlyElementZero = Records({"x"});
  EXPECT_EQ(-1, VarComboRow(cRecordVarNames<cNameRecord>(onlyElementZero), 1));
}

TEST(VarComboTest, AskVarNameKeepsTwelveBytesWithoutSplittingACharacter) {
  std::string asked;
  int limit = 0;
  std::string answer;
  bool ok = true;
  const cStringInput input = [&](OwnerWindow, std::string& text, int limitBytes, const char* caption) {
    asked = ToUtf8(caption);
    limit = limitBytes;
    if (ok) text = answer;
    return ok;
  };
  std::string name = ToCp932("残り時間");
  answer = ToCp932("あいうえおかきく");
  EXPECT_TRUE(AskVarName(nullptr, name, input));
  EXPECT_EQ("変数名の入力", asked);
  EXPECT_EQ(12, limit);
  EXPECT_EQ("あいうえおか", ToUtf8(name));
  answer = ToCp932("abcdefghijkあ");
  EXPECT_TRUE(AskVarName(nullptr, name, input));
  EXPECT_EQ("abcdefghijk", name);
  ok = false;
  EXPECT_FALSE(AskVarName(nullptr, name, input));
  EXPECT_EQ("abcdefghijk", name);
}

}  // namespace
}  // namespace velmora
