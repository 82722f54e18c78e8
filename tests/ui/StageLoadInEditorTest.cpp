#include <QCloseEvent>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "EditorOnSample.h"
#include "bench/FullStage.h"
#include "core/Prompt.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageLoader.h"
#include "ui/framework/StockDialogs.h"

namespace velmora::testing {
namespace {

constexpr int kOpenButton = 40074;
const char kBigStored[] = "data\\stg4\\Big.stg4_950";

// The scripted answers, with the editor's own progress window on screen,
// so that it can be seen painting while the stage loads.
class cPromptWithProgress final : public cScriptedPrompt {
 public:
  explicit cPromptWithProgress(cDialogManager& manager) : m_manager(manager) {}
  void ShowMessageWindow(OwnerWindow owner, const std::string& caption, const std::string& text) override {
    cScriptedPrompt::ShowMessageWindow(owner, caption, text);
    velmora::ShowMessageWindow(nullptr, m_manager, text, caption, true);
  }
  void CloseMessageWindow() override {
    cScriptedPrompt::CloseMessageWindow();
    velmora::CloseMessageWindow();
  }

 private:
  cDialogManager& m_manager;
};

// Counts, while the worker reads, the paints of the progress window and
// the presses that reach the stage window.
class cLoadWatcher final : public QObject {
 public:
  explicit cLoadWatcher(QWidget* stageClient) : m_stageClient(stageClient) {}
  int paints = 0;
  int pressesReceived = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!StageLoader().Running()) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget && widget->window()->windowTitle() == QStringLiteral("ステージの読み込み")) {
      ++paints;
    }
    if (event->type() == QEvent::MouseButtonPress && watched == m_stageClient) ++pressesReceived;
    return false;
  }

 private:
  QWidget* m_stageClient;
};

class StageLoadInTheEditor : public cEditorOnSample {
 protected:
  // Every tick while the load runs asks for a repaint of every window and
  // presses the mouse on the stage, as an impatient author would.
  void PokeWhileLoading(const std::function<void()>& poke) {
    m_poker = new QTimer(app->StageWindow()->Window());
    QObject::connect(m_poker, &QTimer::timeout, [poke] {
      if (StageLoader().Running()) poke();
    });
    m_poker->start(20);
  }
  QTimer* m_poker = nullptr;
};

TEST_F(StageLoadInTheEditor, TheLargestStageLoadsWhileItsWindowPaintsAndInputIsDropped) {
  {
    cStage big;
    bench::FillWithBehaviour(big, 512);
    ASSERT_TRUE(big.SaveFile(kBigStored));
  }
  cPromptWithProgress progress(app->Manager());
  SetPrompt(&progress);
  QWidget* client = ClientOf(Stage());
  cLoadWatcher watcher(client);
  qApp->installEventFilter(&watcher);
  PokeWhileLoading([client] {
    for (QWidget* window : QApplication::topLevelWidgets()) window->update();
    const QPoint at(40, 40);
    QCoreApplication::postEvent(client, new QMouseEvent(QEvent::MouseButtonPress, at, client->mapToGlobal(at),
                                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
  });

  progress.QueuePath(kBigStored);
  Command(Stage(), kOpenButton);
  m_poker->stop();
  qApp->removeEventFilter(&watcher);
  EXPECT_GT(watcher.paints, 0) << "the progress window painted during the load";
  EXPECT_EQ(0, watcher.pressesReceived);
  EXPECT_EQ(512, EditStage().m_nWidth);
  EXPECT_EQ(".\\data\\stg4\\Big.stg4_950", StageEdit().m_strPath);
  QTest::qWait(250);

  // Closing a window while the stage loads ends the load and the editor,
  // and the stage being edited stays as it was.
  EditStage().m_vecBlockCell[7].m_nGraphicNo = 99;
  QWidget* stageWindow = Stage().Window();
  bool closed = false;
  PokeWhileLoading([stageWindow, &closed] {
    if (!closed) QCoreApplication::postEvent(stageWindow, new QCloseEvent);
    closed = true;
  });
  progress.QueuePath(kBigStored);
  Command(Stage(), kOpenButton);
  EXPECT_TRUE(closed);
  EXPECT_FALSE(StageLoader().Running());
  EXPECT_EQ(99, EditStage().m_vecBlockCell[7].m_nGraphicNo);
  QTest::qWait(50);
  EXPECT_EQ(nullptr, app->StageWindow()) << "the editor ended";
  SetPrompt(&prompt);
}

}  // namespace
}  // namespace velmora::testing
