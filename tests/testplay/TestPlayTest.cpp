#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/PrjOption.h"
#include "stage/TestPlay.h"
#include "core/SaveData.h"
#include "platform/MessageChannel.h"
#include "platform/TextCodec.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/Children.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;
using testing::ReadBytes;
using testing::WaitReadable;

const char* kStored = ".\\data\\stg4\\a.stg4_950";
const char* kStageHost = "data/stg4/a.stg4_950";
const char* kCommonHost = "data/CommonPalette.cplt4";

// Everything a test play asks of the windows, counted; the clock is ours.
struct cFakeHost : cTestPlayHost {
  uint32_t now = 50000;
  bool startWorks = true;
  std::vector<std::vector<std::string>> starts;  // program, then its arguments
  int cleared = 0, allocated = 0, redrawn = 0, activated = 0, deactivated = 0;

  uint32_t Now() override { return now; }
  bool StartGame(const std::string& program, const std::vector<std::string>& args) override {
    starts.push_back({program});
    starts.back().insert(starts.back().end(), args.begin(), args.end());
    return startWorks;
  }
  void ClearHistory() override { ++cleared; }
  void AllocHistory() override { ++allocated; }
  void RedrawStageWindow() override { ++redrawn; }
  void ActivateStageWindow() override { ++activated; }
  void ClearActiveFlag() override { ++deactivated; }
  void ShowTestPlayState() override { shownStates.push_back(StageEdit().m_bTestPlay); }
  std::vector<int> shownStates;  // whether a test play ran, at each showing
};

void PlacePlayer(int x, int y) {
  cStage& stage = EditStage();
  cEdChara& chara = stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(x, y))];
  chara.m_nGraphicNo = 1;
  chara.m_nControl = 0;
}

// A project with a game program named by the project option and an open
// stage with a player, saved once and then changed.
class cTestPlayTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeDirs("data/stg4");
    testing::MakeDirs("data/work");
    testing::WriteText("game", "");
    ProjectOption().m_bAutoGame = 0;
    ProjectOption().m_strGamePath = "game";
    StageEdit() = cStageEdit();
    EditStage().InitDefault();
    EditStage().SetSize(20, 15, 0, 0);
    PlacePlayer(2, 3);
    ASSERT_TRUE(EditStage().SaveFile(kStored));
    StageEdit().m_bHasStage = 1;
    StageEdit().m_strPath = kStored;
    EditStage().m_vecBlockCell[5].m_nGraphicNo = 1;
    StageEdit().m_bStageChanged = 1;
    StageEdit().m_bCommonChanged = 1;
    m_savedStage = ReadBytes(kStageHost);
    SetTestPlayHost(&m_host);
  }
  void TearDown() override {
    SetTestPlayHost(nullptr);
    ProjectOption().SetUp();
    StageEdit() = cStageEdit();
    g_bNoSave = 0;
  }
  // The boxes shown, without the progress window of the stage save.
  std::vector<cScriptedPrompt::cShown> Boxes() const {
    std::vector<cScriptedPrompt::cShown> boxes;
    for (const cScriptedPrompt::cShown& shown : m_prompt.Shown()) {
      if (shown.caption != "ステージの保存") boxes.push_back(shown);
    }
    return boxes;
  }
  bool NothingSaved() const { return ReadBytes(kStageHost) == m_savedStage && !std::filesystem::exists(kCommonHost); }

  cTempProject m_project;
  cScriptedPrompt m_prompt;
  cFakeHost m_host;
  std::vector<uint8_t> m_savedStage;
};

TEST_F(cTestPlayTest, StagePlaySavesWhatTheGameReadsAndHandsItThePath) {
  ASSERT_EQ(1, TestPlay(0));
  EXPECT_TRUE(Boxes().empty());
  ASSERT_EQ(1u, m_host.starts.size());
  EXPECT_EQ((std::vector<std::string>{"game", kStored}), m_host.starts[0]);
  EXPECT_NE(m_savedStage, ReadBytes(kStageHost));
  EXPECT_TRUE(std::filesystem::exists(kCommonHost));
  EXPECT_EQ(0, StageEdit().m_bStageChanged);
  EXPECT_EQ(0, StageEdit().m_bCommonChanged);
  EXPECT_EQ(1, StageEdit().m_bTestPlay);
  EXPECT_EQ(1, m_host.cleared);
  EXPECT_EQ(1, m_host.redrawn);
  EXPECT_EQ(1, m_host.deactivated);

  OnTestPlayEnd();
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(1, m_host.allocated);
  EXPECT_EQ(1, m_host.activated);
}

TEST_F(cTestPlayTest, WholeGameWithNoStageOpenSavesNothingAndTakesNoArgument) {
  StageEdit().m_bHasStage = 0;
  StageEdit().m_strPath.clear();
  ASSERT_EQ(1, TestPlay(1));
  EXPECT_EQ((std::vector<std::string>{"game"}), m_host.starts.back());
  EXPECT_TRUE(NothingSaved());
  EXPECT_EQ(0, m_host.cleared);
  // With no stage path the end has no history to build.
  OnTestPlayEnd();
  EXPECT_EQ(0, m_host.allocated);
}

struct cRefusal {
  const char* name;
  void (*prepare)(cFakeHost&);
  const char* message;
  bool saves;
};

const cRefusal kRefusals[] = {
    {"NoGame", [](cFakeHost&) { ProjectOption().m_strGamePath = "missing.exe"; }, "ゲームプログラムが見つかりません！", false},
    {"NoPath", [](cFakeHost&) { StageEdit().m_strPath.clear(); },
     "ステージファイルのパスが無効です！\n1度はステージを保存しないと、テストプレイは実行できません！", false},
    {"NoPlayer", [](cFakeHost&) { EditStage().m_vecCharaCell.assign(EditStage().m_vecCharaCell.size(), cEdChara()); },
     "プレイヤーが配置されていません！", false},
    {"SaveFails", [](cFakeHost&) { g_bNoSave = 1; }, "ステージファイルのパスが無効です！\n1度ステージを保存する必要があります！",
     false},
    {"StartFails", [](cFakeHost& host) { host.startWorks = false; }, "ゲームプログラムが呼び出せません！", true},
};

void PrintTo(const cRefusal& refusal, std::ostream* out) { *out << refusal.name; }

class cTestPlayRefusal : public cTestPlayTest, public ::testing::WithParamInterface<cRefusal> {};

TEST_P(cTestPlayRefusal, SaysWhyStartsNothingAndLeavesTheFlagClear) {
  GetParam().prepare(m_host);
  EXPECT_EQ(0, TestPlay(0));
  ASSERT_FALSE(Boxes().empty());
  EXPECT_EQ("エラー", Boxes().back().caption);
  EXPECT_EQ(GetParam().message, Boxes().back().text);
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(GetParam().saves, !NothingSaved());
  EXPECT_EQ(0, m_host.deactivated);
}

INSTANTIATE_TEST_SUITE_P(Refusals, cTestPlayRefusal, ::testing::ValuesIn(kRefusals),
                         [](const ::testing::TestParamInfo<cRefusal>& info) { return std::string(info.param.name); });

TEST_F(cTestPlayTest, SecondStartIsIgnoredWhileTheKeyRepeatsAndRefusedAfterwards) {
  ASSERT_EQ(1, TestPlay(0));
  m_host.now += 1000;
  EXPECT_EQ(0, TestPlay(0));
  EXPECT_TRUE(Boxes().empty());
  m_host.now += 3000;
  EXPECT_EQ(0, TestPlay(1));
  ASSERT_EQ(1u, Boxes().size());
  EXPECT_EQ(0u, m_prompt.LastText().find("二重起動はできません！\n\n"));
  EXPECT_EQ(1u, m_host.starts.size());
  EXPECT_EQ(1, StageEdit().m_bTestPlay);

  // The time is measured from the start, not from the refused attempts,
  // and survives the clock's wrap.
  OnTestPlayEnd();
  m_host.now = 0xffffffffu - 500;
  ASSERT_EQ(1, TestPlay(0));
  m_host.now += 2999;
  EXPECT_EQ(0, TestPlay(0));
  EXPECT_EQ(1u, Boxes().size());
  m_host.now += 1;
  EXPECT_EQ(0, TestPlay(0));
  EXPECT_EQ(2u, Boxes().size());
}

// A channel of its own, so that no editor running beside the tests hears it.
std::string TestChannelName() { return "Velmora_Editor.test." + std::to_string(::getpid()); }

TEST_F(cTestPlayTest, OnlyTheEndMessageEndsTheTestPlay) {
  cMessageReceiver receiver;
  ASSERT_TRUE(receiver.Open(TestChannelName()));
  cMessageReceiver second;
  EXPECT_FALSE(second.Open(TestChannelName()));
  ASSERT_EQ(1, TestPlay(0));
  EXPECT_EQ(std::vector<int>{1}, m_host.shownStates);

  ASSERT_TRUE(SendChannelMessage(TestChannelName(), 7));
  TakeGameMessages(receiver);
  EXPECT_EQ(1, StageEdit().m_bTestPlay);
  EXPECT_EQ(0, m_host.allocated);
  EXPECT_EQ(std::vector<int>{1}, m_host.shownStates);

  ASSERT_TRUE(SendChannelMessage(TestChannelName(), kGameEndedMessage));
  TakeGameMessages(receiver);
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(1, m_host.allocated);
  EXPECT_EQ((std::vector<int>{1, 0}), m_host.shownStates);
  EXPECT_FALSE(WaitReadable(receiver.Fd(), 0));
  EXPECT_FALSE(SendChannelMessage("Velmora_Editor.nobody", 0));
}

TEST_F(cTestPlayTest, StandinGameReadsTheSavedStageAndReportsItsEnd) {
  SetTestPlayHost(nullptr);
  ProjectOption().m_bAutoGame = 1;
  std::filesystem::remove("game");
  std::filesystem::copy_file(VELMORA_STANDIN_GAME, "velmora-standin-game");
  EditStage().m_strName = ToCp932("草原");
  PlacePlayer(2, 3);
  ::setenv("VELMORA_EDITOR_CHANNEL", TestChannelName().c_str(), 1);
  cMessageReceiver receiver;
  ASSERT_TRUE(receiver.Open(TestChannelName()));

  ASSERT_EQ(1, TestPlay(0));
  ASSERT_TRUE(WaitReadable(receiver.Fd(), 20000));
  TakeGameMessages(receiver);
  ::unsetenv("VELMORA_EDITOR_CHANNEL");
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(static_cast<size_t>(EditStage().m_iUndoCount), StageEdit().m_vecUndoMask.size()) << "history built anew";
  EXPECT_EQ(std::string("stage ") + kStored + "\nname 草原\nsize 20 x 15\nblocks 1\ncharacters 1\nitems 0\nplayer 2 3\n",
            testing::ReadText("Report_StandinGame.txt"));
}

}  // namespace
}  // namespace velmora
