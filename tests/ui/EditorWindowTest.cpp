#include <QApplication>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "platform/FileSystem.h"
#include "sample/SampleProject.h"
#include "stage/StageEdit.h"
#include "ui/app/EditorApp.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"

namespace velmora::testing {
namespace {

constexpr char kStage1[] = "data\\stg4\\Stage1.stg4_950";

// The editor started in a fresh copy of the sample project, driven the way
// the author drives it.
class EditorWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    app = std::make_unique<cEditorApp>(&prompt);
    ASSERT_TRUE(app->Start());
    ASSERT_NE(Stage(), nullptr);
  }
  void TearDown() override {
    app.reset();
    g_bNoSave = 0;
  }

  cStageWindow* Stage() const { return app->StageWindow(); }
  QWidget* Client() const { return static_cast<cDialogWindow*>(Stage()->Window())->Client(); }
  void Command(int id) { Stage()->SendCommand(MakeCommand(id, kNoticeClicked), 0); }
  QString StatusText() const {
    return Stage()->Window()->findChild<QStatusBar*>()->findChild<QLabel*>()->text();
  }
  void Wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointF at(100, 100);
    QWheelEvent event(at, Client()->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Stage()->Window(), &event);
  }
  // Runs the event loop until the stage window shows `title`, as it does
  // once it was built anew.
  bool WaitForTitle(const QString& title) {
    for (int i = 0; i < 50; ++i) {
      if (Stage() && Stage()->Window() && Stage()->Window()->windowTitle() == title) return true;
      QTest::qWait(20);
    }
    return false;
  }

  cTempProject project;
  cScriptedPrompt prompt;
  std::unique_ptr<cEditorApp> app;
};

TEST_F(EditorWindow, StartsOnTheStageEditedLastWithItsNameInTheTitle) {
  EXPECT_TRUE(app->Started());
  EXPECT_TRUE(StageEdit().m_bHasStage);
  EXPECT_TRUE(Stage()->Window()->windowTitle().endsWith(QString::fromLatin1("  ") + FromCp932(kStage1)));
  EXPECT_TRUE(FileExists("e_data\\SheetSize.dat"));
  EXPECT_NE(ReadText("Report_Editor.txt").find("App : ver 950"), std::string::npos);
  EXPECT_NE(ReadText("Report_Editor.txt").find("Sheet Rate = ("), std::string::npos);
  EXPECT_TRUE(prompt.Shown().empty());
}

TEST_F(EditorWindow, SecondStartTakesTheStoredSheetRate) {
  const cSheetRate first = app->SheetRate();
  app.reset();
  app = std::make_unique<cEditorApp>(&prompt);
  ASSERT_TRUE(app->Start());
  EXPECT_DOUBLE_EQ(app->SheetRate().x, first.x);
  EXPECT_NE(ReadText("Report_Editor.txt").find("Sheet Rate : OK"), std::string::npos);
}

TEST_F(EditorWindow, WheelScrollsAndTheStatusBarNamesTheCell) {
  Stage()->ScrollTo(0, 0);
  Wheel(-120);
  EXPECT_EQ(Stage()->ScrollX(), 1);
  Wheel(240);
  EXPECT_EQ(Stage()->ScrollX(), 0);  // two cells back, held at the edge
  Wheel(-120, Qt::ControlModifier);
  EXPECT_EQ(Stage()->ScrollY(), std::min(1, EditStage().m_nHeight - 15));
  Stage()->ScrollTo(1, 0);
  QTest::mouseMove(Client(), QPoint(100, 40));
  Client()->repaint();
  EXPECT_EQ(Stage()->Cursor().x, 4);
  EXPECT_EQ(Stage()->Cursor().y, 1);
  EXPECT_EQ(StatusText(), QString::fromUtf8("座標 (4,1)"));
}

TEST_F(EditorWindow, ClosingTheStageRebuildsAnEmptyWindow) {
  Command(40130);
  ASSERT_TRUE(WaitForTitle(QString::fromUtf8("ヴェルモラ")));
  EXPECT_FALSE(StageEdit().m_bHasStage);
  // Without a stage the view stays black and the stage commands are off.
  Stage()->RenderView();
  EXPECT_EQ(Stage()->View().Image().ColourAt(0, 0), 0u);
  EXPECT_FALSE(Stage()->HasHandler(eStageAction::Database));
}

TEST_F(EditorWindow, CloseBoxAsksAboutChangesAndCancelKeepsTheWindow) {
  StageEdit().m_bStageChanged = 1;
  prompt.QueueAnswer(eAnswer::Cancel);
  Stage()->Window()->close();
  ASSERT_FALSE(prompt.Shown().empty());
  EXPECT_EQ(prompt.Shown().back().caption, "保存確認");
  EXPECT_TRUE(Stage()->Window()->isVisible());
}

TEST_F(EditorWindow, SaveWritesTheChangedStageInPlace) {
  EditStage().m_strName = "renamed";
  StageEdit().m_bStageChanged = 1;
  Command(40005);
  EXPECT_FALSE(StageEdit().m_bStageChanged);
  cStage reread;
  ASSERT_TRUE(reread.LoadFile(kStage1));
  EXPECT_EQ(reread.m_strName, "renamed");
}

}  // namespace
}  // namespace velmora::testing
