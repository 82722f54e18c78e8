#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "EditorOnSample.h"
#include "SampleDialog.h"
#include "core/PrjOption.h"
#include "stage/TestPlay.h"
#include "platform/MessageChannel.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/Children.h"

namespace velmora::testing {
namespace {

constexpr int kTestPlayCommand = 40006;
constexpr int kUndoButton = 40052;
const char kStageHost[] = "data/stg4/Stage1.stg4_950";

// The editor's own test play host, with a clock of the test's and a game
// start that is only noted.
struct cClockedHost : cTestPlayHost {
  explicit cClockedHost(cTestPlayHost& editor) : editor(editor) {}
  uint32_t Now() override { return now; }
  bool StartGame(const std::string& program, const std::vector<std::string>& args) override {
    starts.push_back(args);
    return !program.empty();
  }
  void ClearHistory() override { editor.ClearHistory(); }
  void AllocHistory() override { editor.AllocHistory(); }
  void RedrawStageWindow() override { editor.RedrawStageWindow(); }
  void ActivateStageWindow() override { editor.ActivateStageWindow(); }
  void ClearActiveFlag() override { editor.ClearActiveFlag(); }
  void ShowTestPlayState() override { editor.ShowTestPlayState(); }

  cTestPlayHost& editor;
  uint32_t now = 100000;
  std::vector<std::vector<std::string>> starts;
};

class TestPlayInTheEditor : public cEditorOnSample {
 protected:
  void SetUp() override {
    cEditorOnSample::SetUp();
    if (HasFatalFailure()) return;
    ProjectOption().m_bAutoGame = 0;
    ProjectOption().m_strGamePath = "game";
    WriteText("game", "");
    ASSERT_TRUE(EditStage().HasPlayer());
    savedStage = ReadBytes(kStageHost);
    host = std::make_unique<cClockedHost>(TestPlayHost());
    SetTestPlayHost(host.get());
  }
  // The boxes shown since the start, without the stage save's progress.
  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (size_t i = 1; i < prompt.Shown().size(); ++i) {
      if (prompt.Shown()[i].caption != "ステージの保存") texts.push_back(prompt.Shown()[i].text);
    }
    return texts;
  }
  bool UndoButtonEnabled() {
    for (const QAction* action : Stage().Window()->findChild<QToolBar*>()->actions()) {
      if (action->data().toInt() == kUndoButton) return action->isEnabled();
    }
    return false;
  }
  bool StageSaved() const { return ReadBytes(kStageHost) != savedStage; }
  static bool HistoryBuilt() {
    return StageEdit().m_vecUndoMask.size() == static_cast<size_t>(EditStage().m_iUndoCount);
  }

  std::unique_ptr<cClockedHost> host;
  std::vector<uint8_t> savedStage;
};

TEST_F(TestPlayInTheEditor, AStageWithoutPlayerOrPathIsRefusedWithItsMessage) {
  EditStage().m_vecCharaCell.assign(EditStage().m_vecCharaCell.size(), cEdChara());
  EditStage().m_vecBlockCell.at(3).m_nGraphicNo = 1;
  StageEdit().m_bStageChanged = 1;
  Command(Stage(), kTestPlayCommand);
  EXPECT_EQ((std::vector<std::string>{"プレイヤーが配置されていません！"}), Boxes());
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_FALSE(StageSaved());
  EXPECT_TRUE(StageEdit().m_bStageChanged);

  StageEdit().m_strPath.clear();
  Command(Stage(), kTestPlayCommand);
  ASSERT_EQ(2u, Boxes().size());
  EXPECT_EQ("ステージファイルのパスが無効です！\n1度はステージを保存しないと、テストプレイは実行できません！", Boxes()[1]);
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_TRUE(host->starts.empty());
}

TEST_F(TestPlayInTheEditor, F5TwiceWithinASecondIsOneStartAndAgainLaterIsADoubleStart) {
  const std::string path = StageEdit().m_strPath;
  // F5 in a palette window goes to the stage window.
  Activate(Palettes().Palette({0, 0}).Window());
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus ? focus : QApplication::activeWindow(), Qt::Key_F5);
  ASSERT_EQ(1u, host->starts.size());
  EXPECT_EQ(std::vector<std::string>{path}, host->starts[0]);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(1, StageEdit().m_bTestPlay);
  EXPECT_TRUE(StageEdit().m_vecUndoMask.empty()) << "the undo history is cleared";

  host->now += 1000;
  Command(Stage(), kTestPlayCommand);
  EXPECT_TRUE(Boxes().empty());
  host->now += 3000;
  Command(Stage(), kTestPlayCommand);
  ASSERT_EQ(1u, Boxes().size());
  EXPECT_EQ(0u, Boxes()[0].find("二重起動はできません！\n\n"));
  EXPECT_EQ(1u, host->starts.size());
  EXPECT_EQ(1, StageEdit().m_bTestPlay);

  OnTestPlayEnd();
  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_TRUE(HistoryBuilt());
}

// The texts of the stage window's status bar, part by part.
QStringList StatusTexts(cStageWindow& stage) {
  QStringList texts;
  for (const QLabel* label : stage.Window()->findChild<QStatusBar*>()->findChildren<QLabel*>()) texts << label->text();
  return texts;
}

bool FramedInPalette(cPaletteWindow& window, int index) {
  // The selection frame's left edge, in the middle of the cell's height.
  return window.Picture().pixel((index % cPaletteWindow::kColumns) * 32, (index / cPaletteWindow::kColumns) * 32 + 10) ==
         qRgb(255, 255, 255);
}

// The game runs beside the editor, whose status bar says so; a brush
// picked meanwhile shows in its palette at once, and when the game has
// gone it leaves no process behind and the editor takes up its history.
TEST_F(TestPlayInTheEditor, TheStandinGamePlaysTheSavedStageAndTheEditorComesBackCleanly) {
  // The editor comes up again with its own host and the game beside it.
  std::filesystem::copy_file(VELMORA_STANDIN_GAME, "velmora-standin-game");
  StartEditor();
  ProjectOption().m_bAutoGame = 1;
  // The game reports to a channel of the test's, so that no editor running
  // beside the tests hears it; the editor takes it as from its own.
  const std::string channel = "Velmora_Editor.test." + std::to_string(::getpid());
  ::setenv("VELMORA_EDITOR_CHANNEL", channel.c_str(), 1);
  cMessageReceiver receiver;
  ASSERT_TRUE(receiver.Open(channel));

  Stage().ScrollTo(0, 0);
  PickEntry({0, 0}, 1);
  Click(Stage(), QPoint(4 * 32 + 10, 2 * 32 + 10));
  // The application settles in its active state, which the play then
  // leaves alone: the stand-in game has no window to take the focus.
  QTest::qWait(50);
  Command(Stage(), kTestPlayCommand);
  ASSERT_EQ(1, StageEdit().m_bTestPlay);
  EXPECT_FALSE(StageEdit().m_bStageChanged);
  EXPECT_FALSE(app->IsActive()) << "the idle drawing stops while the game has the screen";
  EXPECT_FALSE(UndoButtonEnabled()) << "nothing to undo while the stage is locked";
  Stage().Repaint();
  QTest::qWait(20);
  EXPECT_EQ((QStringList{QString::fromUtf8("座標 (4,2)"), QString::fromUtf8("テストプレイ中です…")}), StatusTexts(Stage()));

  // A pick comes a while after the start, when the idle work has stopped.
  QTest::qWait(100);
  constexpr int kPicked = 3;
  cPaletteWindow& blocks = Palettes().Palette({0, 0});
  ASSERT_FALSE(FramedInPalette(blocks, kPicked));
  PickEntry({0, 0}, kPicked);
  EXPECT_TRUE(QTest::qWaitFor([&] { return FramedInPalette(blocks, kPicked); }, 2000))
      << "the pick shows while the application is inactive";

  // The game has sent its message; only the editor's own watch can have
  // collected it before the message is taken.
  ASSERT_TRUE(WaitReadable(receiver.Fd(), 20000));
  EXPECT_TRUE(QTest::qWaitFor([] { return ChildProcesses().empty(); }, 10000)) << "no defunct game is left";
  TakeGameMessages(receiver);
  ::unsetenv("VELMORA_EDITOR_CHANNEL");

  EXPECT_EQ(0, StageEdit().m_bTestPlay);
  EXPECT_EQ(QString(), StatusTexts(Stage()).value(1));
  EXPECT_EQ(kPicked, StageEdit().m_iPltIndex);
  EXPECT_TRUE(FramedInPalette(blocks, kPicked));
  EXPECT_TRUE(HistoryBuilt());
  EXPECT_GT(EditStage().m_iUndoCount, 0);
  EXPECT_FALSE(UndoButtonEnabled()) << "the new history has no step yet";
  const std::string report = ReadText("Report_StandinGame.txt");
  EXPECT_EQ(0u, report.find("stage " + StageEdit().m_strPath + "\n")) << report;
  const cStage& saved = EditStage();
  EXPECT_NE(std::string::npos, report.find("player " + std::to_string(saved.FindPlayer().x))) << report;
}

}  // namespace
}  // namespace velmora::testing
