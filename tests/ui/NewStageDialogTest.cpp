#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "core/EditConfig.h"
#include "core/SaveData.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogManager.h"
#include "ui/stage/NewStageDialog.h"

namespace velmora::testing {
namespace {

// The dialog's OK over an open stage: the question decides whether the
// dialog stays, and a missing file closes it as cancelled.
class NewStageDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    EditStage().InitDefault();
    StageEdit() = cStageEdit();
    StageEdit().m_bHasStage = 1;
    StageEdit().m_strPath = "data\\stg4\\kept.stg4_950";
    EditorConfig().m_strTemplateStage = "data\\stg4\\gone.stg4_950";
    EditorConfig().m_nStagePaletteChoice = kNewPaletteEmpty;
    dialog.Create(0, true);
  }
  void TearDown() override {
    dialog.Close(0);
    ClearHistory();
    StageEdit() = cStageEdit();
    EditorConfig() = EditConfig();
    g_bNoSave = 0;
  }
  void PressOk() { dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0); }

  cTempProject project;
  cScriptedPrompt prompt;
  cDialogManager manager;
  cNewStageDialog dialog{manager, nullptr};
};

TEST_F(NewStageDialogTest, NoKeepsTheDialogOpenAndTheStageUntouched) {
  prompt.QueueAnswer(eAnswer::No);
  PressOk();
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(prompt.LastText(), "現在のステージは破棄されます。\n新規作成しますか？\n");
  EXPECT_EQ(StageEdit().m_strPath, "data\\stg4\\kept.stg4_950");
}

TEST_F(NewStageDialogTest, MissingTemplateClosesTheDialogAsCancelled) {
  prompt.QueueAnswer(eAnswer::Yes);
  PressOk();
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Result(), 0);
  EXPECT_EQ(prompt.LastText(), "ステージファイル data\\stg4\\gone.stg4_950 が見つかりません！");
}

TEST_F(NewStageDialogTest, EmptyTemplateMakesADefaultStageAndClosesWithOk) {
  EditorConfig().m_strTemplateStage.clear();
  dialog.RefreshAll();
  prompt.QueueAnswer(eAnswer::Yes);
  PressOk();
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_TRUE(StageEdit().m_strPath.empty());
}

// Whether the edit shows `text` whole: with the caret behind its end, the
// text isn't scrolled.
bool ShowsWhole(QLineEdit* edit, const QString& text) {
  edit->setText(text);
  edit->end(false);
  const QRect caret = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  return caret.center().x() >= edit->fontMetrics().horizontalAdvance(text);
}

TEST_F(NewStageDialogTest, PathFieldsShowWholePathsAndTheLongLabelWrapsWithinTheDialog) {
  QWidget* window = dialog.Window();
  QApplication::processEvents();
  const QList<QLineEdit*> paths = window->findChildren<QLineEdit*>();
  ASSERT_EQ(2, paths.size());
  for (QLineEdit* path : paths) {
    EXPECT_TRUE(ShowsWhole(path, QStringLiteral(".\\data\\stg4\\Default.stg4_950")));
    EXPECT_TRUE(ShowsWhole(path, QString::fromUtf8(".\\data\\plt4\\森の奥の古城と地下水路.plt4")));
    EXPECT_TRUE(ShowsWhole(path, QStringLiteral(".\\data\\stg4\\World3_Castle_Underground_B.stg4_950")));
  }
  const QString note = QString::fromUtf8(
      "※実際に読み込まれるファイルは、最も新しいバージョン（同名ファイルの中で拡張子の最後の番号が最も大きいもの）になります。");
  QLabel* label = nullptr;
  for (QLabel* candidate : window->findChildren<QLabel*>()) {
    if (candidate->text().endsWith(note)) label = candidate;
  }
  ASSERT_NE(nullptr, label);
  EXPECT_LT(window->width(), label->fontMetrics().horizontalAdvance(note)) << "the label doesn't widen the dialog";
  EXPECT_GE(label->height(), label->heightForWidth(label->width())) << "every line of it shows";
  EXPECT_LE(label->geometry().right(), window->width());
}

}  // namespace
}  // namespace velmora::testing
