#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "SampleFolder.h"
#include "ThreadClock.h"
#include "WidgetPaint.h"
#include "core/ProjectPaths.h"
#include "project/Database.h"
#include "ui/app/EditorApp.h"
#include "ui/database/DatabaseSheet.h"
#include "ui/database/DbListPage.h"
#include "ui/framework/Commands.h"

namespace {

constexpr int kMostEntries = 9999;
constexpr int kScrollRounds = 200;
constexpr int kPictureTab = 7;
constexpr int kCmdDatabase = 40063;

// The sample's picture and sound lists filled to their limit, written as
// the project's files.
bool FillLists() {
  velmora::cDbList<velmora::cEdPicture> pictures;
  velmora::cDbList<velmora::cEdSound> sounds;
  pictures.Resize(kMostEntries + 1);
  sounds.Resize(kMostEntries + 1);
  char name[16];
  for (int i = 1; i <= kMostEntries; ++i) {
    std::snprintf(name, sizeof name, "entry%04d", i);
    pictures.At(i).m_strName = sounds.At(i).m_strName = name;
    pictures.At(i).m_strPath = std::string("bmp\\picture\\") + name + ".bmp";
    sounds.At(i).m_strPath = std::string("wave\\") + name + ".wav";
  }
  return pictures.SaveFile(velmora::PathOf(velmora::ePath::Picture)) &&
         sounds.SaveFile(velmora::PathOf(velmora::ePath::Sound));
}

}  // namespace

// The database window opened on a project whose picture and sound lists
// are full, up to its first painted page, and the picture list scrolled a
// page at a time, without a display.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  const velmora::bench::cSampleFolder folder("database");
  if (!folder.Made()) return 1;
  int result = 0;
  {
    velmora::cEditorApp editor;
    if (!FillLists() || !editor.Start()) {
      std::fprintf(stderr, "the editor did not start\n");
      result = 1;
    } else {
      QElapsedTimer clock;
      clock.start();
      editor.StageWindow()->SendCommand(velmora::MakeCommand(kCmdDatabase, velmora::kNoticeClicked), 0);
      velmora::cDatabaseSheet* sheet = velmora::OpenDatabaseSheet();
      velmora::bench::Paint(sheet->Window());
      std::printf("BENCH database_open_ms %.1f ms target <= 300\n", clock.nsecsElapsed() / 1e6);

      sheet->Window()->findChild<QTabWidget*>()->setCurrentIndex(kPictureTab);
      auto* list = qobject_cast<QListWidget*>(sheet->Page(kPictureTab)->Item(velmora::kIdDbList));
      QScrollBar* bar = list->verticalScrollBar();
      velmora::bench::Paint(list);
      const double start = velmora::bench::ThreadMs();
      for (int i = 0; i < kScrollRounds; ++i) {
        bar->setValue((i * bar->pageStep()) % (bar->maximum() + 1));
        velmora::bench::Paint(list);
      }
      std::printf("BENCH database_scroll_ms %.3f ms target <= 16.7\n",
                  (velmora::bench::ThreadMs() - start) / kScrollRounds);
      sheet->Close(0);
    }
  }
  return result;
}
