#include <gtest/gtest.h>

#include "inspect/Inspector.h"
#include "inspect/PaletteFiles.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "platform/TextCodec.h"
#include "support/TempProject.h"

namespace velmora::testing {
namespace {

cEdCond CharaVarCond(int var, int value) {
  cEdCond cond;
  cond.m_nKind = kCondCharaVar;
  cond.m_nLeftVar = static_cast<uint8_t>(var);
  cond.m_nValue = value;
  return cond;
}

cEdCmd NewCmd(int kind, bool itemCmd = false) {
  cEdCmd cmd;
  cmd.SetUpNew(kind, itemCmd);
  return cmd;
}

// One character with a flow that uses every list, one item with a command.
void FillPalette(cPalette& palette) {
  palette.m_vecCharaPlt.resize(2);
  cEdChara& slime = palette.m_vecCharaPlt[1];
  slime.m_strName = ToCp932("スライム");
  cEdFlow flow;
  flow.m_nFlowGroup = 1;
  flow.m_nFlowId = 1;
  flow.m_strMemo = ToCp932("歩く");
  flow.m_vCond.push_back(CharaVarCond(2, 5));
  cEdKeyCond key;
  key.m_vKeyState[11] = 1;
  flow.m_vKeyCond.push_back(key);
  flow.m_vCmd.push_back(NewCmd(kCmdWait));
  cEdCmd flowOp = NewCmd(kCmdFlowOp);
  flowOp.m_pCondList->m_bEnabled = 1;
  flowOp.m_pCondList->m_vCond.push_back(CharaVarCond(1, 0));
  flow.m_vCmd.push_back(flowOp);
  cEdCmd summon = NewCmd(kCmdSummonItem);
  summon.m_pShot->m_nSummonSrc = 0;
  summon.m_pShot->m_nSummonNo = 1;
  flow.m_vCmd.push_back(summon);
  slime.m_vFlow.push_back(flow);

  palette.m_vecItemPlt.resize(2);
  cEdItem& coin = palette.m_vecItemPlt[1];
  coin.m_strName = ToCp932("コイン");
  cEdCmd loop = NewCmd(kCmdLoop - kItemKindOffset, true);
  loop.m_vParam = {2, 3};
  coin.m_vCmd.push_back(loop);
}

constexpr const char* kCharaText =
    "chara 001 スライム\n"
    "  flow 1 ×3 a A\n"
    "    trigger 常時\n"
    "    memo 歩く\n"
    "    cond キャラ変数条件 ： キャラ変数 「2 キャラ変数-2」が 5 である\n"
    "    key 1～1 ： Z \n"
    "    cmd 1 ◆ ウエイト ◆\n"
    "    cmd P-0 ◆ フローの操作 ◆ 自分 の このフロー を 開始  ★条件あり★\n"
    "      cond キャラ変数条件 ： キャラ変数 「1 キャラ変数-1」が 0 である\n"
    "    cmd 1 ◆ アイテム召喚 ◆ 「001 コイン」\n";
constexpr const char* kItemText =
    "item 001 コイン\n"
    "  cmd P-0 ◆ ループ ◆ 後続 3 個のコマンドを 2 回繰り返す\n";

class BehaviourInspect : public ::testing::Test {
 protected:
  int Run(std::vector<std::string> args) {
    m_out.clear();
    m_err.clear();
    return inspect::RunInspector(args, m_out, m_err);
  }
  cTempProject m_project;
  std::string m_out, m_err;
};

TEST_F(BehaviourInspect, CommonPaletteShowsEveryCharacterAndItem) {
  cPalette palette;
  FillPalette(palette);
  ASSERT_TRUE(palette.SaveFile("pal.cplt4"));
  ASSERT_EQ(Run({"behaviour", "pal.cplt4"}), 0) << m_err;
  EXPECT_EQ(m_out, std::string(kCharaText) + kItemText);

  ASSERT_EQ(Run({"behaviour", "pal.cplt4", "item:1"}), 0) << m_err;
  EXPECT_EQ(m_out, kItemText);
  ASSERT_EQ(Run({"behaviour", "pal.cplt4", "chara:7"}), 0) << m_err;
  EXPECT_EQ(m_out, "");

  ASSERT_EQ(Run({"dump", "pal.cplt4"}), 0) << m_err;
  EXPECT_NE(m_out.find("\"kind\": \"CommonPalette\""), std::string::npos);
}

// A stage palette's own entries are the stage's: a reference to the common
// palette finds no name when the project has none.
TEST_F(BehaviourInspect, StagePaletteFileReadsItsListsWithoutATopRecord) {
  inspect::cStagePaletteFile file;
  FillPalette(file);
  ASSERT_TRUE(file.SaveFile("pal.plt4"));
  ASSERT_EQ(Run({"behaviour", "pal.plt4", "chara:1"}), 0) << m_err;
  std::string expected = kCharaText;
  expected.replace(expected.find("「001 コイン」"), std::string("「001 コイン」").size(), "「001 」");
  EXPECT_EQ(m_out, expected);

  ASSERT_EQ(Run({"dump", "pal.plt4"}), 0) << m_err;
  EXPECT_NE(m_out.find("\"kind\": \"StagePalette\""), std::string::npos);
  EXPECT_NE(m_out.find("スライム"), std::string::npos);
}

TEST_F(BehaviourInspect, BadArgumentsAreExplained) {
  EXPECT_EQ(Run({"behaviour", "pal.cplt4", "chara:x"}), 2);
  EXPECT_NE(m_err.find("chara:N or item:N"), std::string::npos);
  EXPECT_EQ(Run({"behaviour", "pal.cplt4", "block:1"}), 2);
  EXPECT_EQ(Run({"behaviour", "pal.cplt4", "item:0"}), 2);
  EXPECT_EQ(Run({"behaviour", "GValInfo.dat"}), 1);
  EXPECT_NE(m_err.find("no characters or items"), std::string::npos);
  EXPECT_EQ(Run({"behaviour", "missing.cplt4"}), 1);
  EXPECT_NE(m_err.find("cannot read"), std::string::npos);
  EXPECT_TRUE(m_out.empty());
}

}  // namespace
}  // namespace velmora::testing
