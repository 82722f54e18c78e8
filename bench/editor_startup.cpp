#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "sample/SampleProject.h"
#include "ui/app/EditorApp.h"
#include "ui/framework/DialogWindow.h"

// Start-up of the editor on the sample project up to the first painted
// stage window, and one repaint of a full view, without a display.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  const QString folder = QDir::temp().filePath(QStringLiteral("velmora-bench-startup-%1").arg(QCoreApplication::applicationPid()));
  std::string error;
  if (!velmora::sample::MakeSampleProject(folder.toStdString(), false, error)) {
    std::fprintf(stderr, "sample project: %s\n", error.c_str());
    return 1;
  }
  QDir::setCurrent(folder);
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
      // Rendering into an image runs the window's own paint, displayed or not.
      QImage target(client->size(), QImage::Format_RGB32);
      client->render(&target);
      std::printf("BENCH startup_ms %.1f ms target <= 500\n", clock.nsecsElapsed() / 1e6);
      constexpr int kRounds = 500;
      clock.restart();
      for (int i = 0; i < kRounds; ++i) client->render(&target);
      std::printf("BENCH repaint_ms %.3f ms target <= 2\n", clock.nsecsElapsed() / 1e6 / kRounds);
    }
  }
  QDir::setCurrent(QDir::tempPath());
  QDir(folder).removeRecursively();
  return result;
}
