#include <QCloseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

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

// Pokes the editor the way the window system and an impatient author do
// while a load runs: each poke comes as a posted event, which the
// user-interface thread takes between its waits for the worker.
class cPoker final : public QObject {
 public:
  explicit cPoker(std::function<void()> poke)
      : m_poke(std::move(poke)), m_thread([this] {
          while (m_bOn) {
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
          }
        }) {}
  ~cPoker() override {
    m_bOn = false;
    m_thread.join();
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    if (StageLoader().Running()) m_poke();
    return true;
  }

 private:
  std::function<void()> m_poke;
  std::atomic<bool> m_bOn{true};
  std::thread m_thread;
};

class StageLoadInTheEditor : public cEditorOnSample {
 protected:
  // Slow builds take their time over what follows a load.
  static bool WaitFor(const std::function<bool()>& done) {
    for (int waited = 0; waited < 10000 && !done(); waited += 10) QTest::qWait(10);
    return done();
  }
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
  auto poker = std::make_unique<cPoker>([client] {
    for (QWidget* window : QApplication::topLevelWidgets()) window->update();
    const QPoint at(40, 40);
    QMouseEvent press(QEvent::MouseButtonPress, at, client->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(client, &press);
  });

  progress.QueuePath(kBigStored);
  Command(Stage(), kOpenButton);
  poker.reset();
  qApp->removeEventFilter(&watcher);
  EXPECT_GT(watcher.paints, 0) << "the progress window painted during the load";
  EXPECT_EQ(0, watcher.pressesReceived);
  EXPECT_EQ(512, EditStage().m_nWidth);
  EXPECT_EQ(".\\data\\stg4\\Big.stg4_950", StageEdit().m_strPath);
  const QPointer<QWidget> loadedFrom = Stage().Window();
  ASSERT_TRUE(WaitFor([&] { return !loadedFrom && app->StageWindow(); })) << "the window built for the new stage";

  // Closing a window while the stage loads ends the load and the editor,
  // and the stage being edited stays as it was.
  EditStage().m_vecBlockCell[7].m_nGraphicNo = 99;
  QWidget* stageWindow = Stage().Window();
  bool closed = false;
  poker = std::make_unique<cPoker>([stageWindow, &closed] {
    QCloseEvent close;
    if (!closed) QApplication::sendEvent(stageWindow, &close);
    closed = true;
  });
  progress.QueuePath(kBigStored);
  Command(Stage(), kOpenButton);
  poker.reset();
  EXPECT_TRUE(closed);
  EXPECT_FALSE(StageLoader().Running());
  EXPECT_EQ(99, EditStage().m_vecBlockCell[7].m_nGraphicNo);
  EXPECT_TRUE(WaitFor([&] { return app->StageWindow() == nullptr; })) << "the editor ended";
  SetPrompt(&prompt);
}

}  // namespace
}  // namespace velmora::testing
