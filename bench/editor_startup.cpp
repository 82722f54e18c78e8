#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "FullStage.h"
#include "SampleFolder.h"
#include "ThreadClock.h"
#include "stage/Stage.h"
#include "ui/app/EditorApp.h"
#include "ui/framework/DialogWindow.h"

namespace {

constexpr int kLargeWindowWidth = 1600;
constexpr int kLargeWindowHeight = 1200;
// More cells than the largest view holds.
constexpr int kLargeStageWidth = 64;
constexpr int kLargeStageHeight = 48;
constexpr int kRounds = 500;

// One full repaint of the stage view, on average, in processor time of
// this thread, which does all the painting. Rendering into an image runs
// the window's own paint, displayed or not.
double RepaintMs(QWidget* client) {
  QImage target(client->size(), QImage::Format_RGB32);
  client->render(&target);
  const double start = velmora::bench::ThreadMs();
  for (int i = 0; i < kRounds; ++i) client->render(&target);
  return (velmora::bench::ThreadMs() - start) / kRounds;
}

}  // namespace

// Start-up of the editor on the sample project up to the first painted
// stage window, and repaints of a full view, of the first window and of a
// large one, without a display.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  const velmora::bench::cSampleFolder folder("startup");
  if (!folder.Made()) return 1;
  int result = 0;
  {
    QElapsedTimer clock;
    clock.start();
    velmora::cEditorApp editor;
    if (!editor.Start()) {
      std::fprintf(stderr, "the editor did not start\n");
      result = 1;
    } else {
      QWidget* client = static_cast<velmora::cDialogWindow*>(editor.StageWindow()->Window())->Client();
      QImage first(client->size(), QImage::Format_RGB32);
      client->render(&first);
      std::printf("BENCH startup_ms %.1f ms target <= 500\n", clock.nsecsElapsed() / 1e6);
      std::printf("BENCH repaint_ms %.3f ms target <= 2\n", RepaintMs(client));

      // A window of 1600 x 1200 on a stage that fills its view, every layer
      // in every cell.
      velmora::cStage& stage = velmora::EditStage();
      stage.SetSize(kLargeStageWidth, kLargeStageHeight, 0, 0);
      velmora::bench::FillLayers(stage);
      editor.StageWindow()->Window()->resize(kLargeWindowWidth, kLargeWindowHeight);
      QCoreApplication::processEvents();
      std::printf("BENCH repaint_large_ms %.3f ms target <= 4\n", RepaintMs(client));
    }
  }
  return result;
}
