#include <gtest/gtest.h>

#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "objects/ObjectList.h"
#include "objects/StatusTables.h"
#include "platform/TextCodec.h"

namespace velmora::testing {
namespace {

TEST(CmdTables, ItemRowsAreTheSharedRowsFromStageClearOn) {
  ASSERT_EQ(CmdTable.size(), 40u);
  ASSERT_EQ(ItemCmdTable.size(), 25u);
  EXPECT_STREQ(ItemCmdTable[kItemCmdFlowChange].label, "フローの変更");
  EXPECT_EQ(ItemCmdTable[kItemCmdFlowChange].paramCount, 2);
  for (int kind = 2; kind < 25; ++kind) {
    const cCmdInfo& item = ItemCmdTable[static_cast<size_t>(kind)];
    const cCmdInfo& shared = CmdTable[static_cast<size_t>(kind + kItemKindOffset)];
    EXPECT_STREQ(item.label, shared.label);
    EXPECT_EQ(item.paramCount, shared.paramCount);
  }
  EXPECT_EQ(FindCmdInfo(true, 25), nullptr);
  EXPECT_EQ(CmdParamCount(false, 40), 0);
}

TEST(CmdTables, ArrangeRowsMatchTheCountsOfTheCommandTable) {
  for (int kind = 0; kind < static_cast<int>(CmdTable.size()); ++kind) {
    const std::span<const cParamDef> rows = ArrangeTable(kind);
    EXPECT_EQ(static_cast<int>(rows.size()), CmdTable[static_cast<size_t>(kind)].arrangeCount) << kind;
    for (const cParamDef& row : rows) EXPECT_LE(row.min, row.max) << kind << row.label;
  }
  EXPECT_TRUE(ArrangeTable(99).empty());
  EXPECT_STREQ(ArrangeTable(kCmdShot)[31].label, "取得アイテム");
}

TEST(LabelTables, StoredValuesAndLabelsInCp932) {
  EXPECT_EQ(ToUtf8(CondKindTable.Label(7)), "距離条件");
  EXPECT_STREQ(CondKindTable.Label(0), "");
  EXPECT_STREQ(CondKindTable.Label(8), "");
  EXPECT_EQ(ToUtf8(CharaVarTable.Label(1)), "1 キャラ変数-1");
  EXPECT_STREQ(CharaVarTable.Label(0), "");
  EXPECT_EQ(TriggerTable.Size(), 27);
  EXPECT_EQ(FlowIdTable.Size(), 27);
  EXPECT_STREQ(FlowLetterTable.Utf8(26), "Z");
  EXPECT_EQ(ToUtf8(CharaFlagTable[kFlagGiant].ValueLabel(10)), "×100");
  EXPECT_STREQ(CharaFlagTable[kFlagGiant].ValueLabel(0), "");
  EXPECT_EQ(CharaStatusTable.size(), 17u);
  EXPECT_TRUE(CharaStatusTable[1].condPercent);
  EXPECT_FALSE(CharaStatusTable[5].cmdPercent);
}

TEST(ObjectListRows, FirstRowByEditorAndSystemOnRequest) {
  EXPECT_EQ(ObjectList(eObjectContext::BlockEditor, false).size(), 5u);
  const std::vector<const char*> rows = ObjectList(eObjectContext::CharaEditor, true);
  ASSERT_EQ(rows.size(), 6u);
  EXPECT_EQ(ToUtf8(rows[0]), "自分");
  EXPECT_EQ(ToUtf8(rows[kObjectSystem]), "システム");
  EXPECT_EQ(ToUtf8(ObjectLabel(eObjectContext::ItemEditor, 0)), "主人公");
  EXPECT_STREQ(ObjectLabel(eObjectContext::ItemEditor, 6), "");
}

}  // namespace
}  // namespace velmora::testing
