#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

#include <cstdlib>

#include "SampleDialog.h"
#include "ui/framework/DialogManager.h"
#include "ui/stagesettings/StageOptionsDialog.h"

namespace velmora::testing {
namespace {

// Dialog 194 has no menu entry to open it on the desktop by hand: a
// picture of it as a real desktop shows it, when VELMORA_SHOTS names a
// folder for the PNG and the display is a real one.
TEST(EditOptionsShot, OnTheDesktop) {
  const char* folder = std::getenv("VELMORA_SHOTS");
  if (!folder) GTEST_SKIP() << "VELMORA_SHOTS names no folder";
  cDialogManager manager;
  cEditOptionsDialog dialog(manager, nullptr);
  ASSERT_TRUE(dialog.Create(0, true));
  Activate(dialog.Window());
  QTest::qWait(800);
  const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
  EXPECT_TRUE(screen.save(QString::fromLocal8Bit(folder) + QStringLiteral("/edit-options.png")));
  dialog.Close(0);
}

}  // namespace
}  // namespace velmora::testing
