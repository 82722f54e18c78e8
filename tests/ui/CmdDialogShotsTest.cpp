#include <QScreen>
#include <cstdlib>

#include "CmdDialogDriver.h"
#include "objects/CmdTable.h"
#include "ui/commands/CmdDialog.h"

namespace velmora::testing {
namespace {

// Pictures of the command dialogs as a real desktop shows them, to look
// at: runs only when VELMORA_SHOTS names a folder for the PNGs, on the
// display in use (QT_QPA_PLATFORM=xcb under a window manager).
class CmdDialogShots : public cCmdDialogFixture {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMORA_SHOTS");
    if (!folder) GTEST_SKIP() << "VELMORA_SHOTS names no folder";
    m_folder = QString::fromLocal8Bit(folder);
    cCmdDialogFixture::SetUp();
  }

  // A new command of `kind`, changed by `set`, in its dialog on the screen.
  void ShootKind(int kind, const char* name, void (*set)(cEdCmd&) = nullptr) {
    cEdCmd cmd;
    cmd.SetUpNew(kind, false);
    if (set) set(cmd);
    cCmdWork work = CmdWorkOf(cmd);
    cCmdDialog dialog(manager, nullptr, work, *CmdKindForm(false, kind));
    ASSERT_TRUE(dialog.Create(0, true));
    Activate(dialog.Window());
    QTest::qWait(800);
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    EXPECT_TRUE(screen.save(m_folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png")));
    dialog.Close(0);
  }

 private:
  QString m_folder;
};

TEST_F(CmdDialogShots, TheLargestDialogsOnTheDesktop) {
  ShootKind(kCmdLine, "208-line-move", [](cEdCmd& c) {
    c.m_pMove->m_nSetType = 2;
    c.m_pMove->m_nDist = 4;
  });
  ShootKind(kCmdShot, "209-shot", [](cEdCmd& c) { c.m_pShot->m_nFormation = 3; });
  ShootKind(kCmdStatusOp, "215-status");
}

TEST_F(CmdDialogShots, EveryKindOnTheDesktop) {
  if (!std::getenv("VELMORA_SHOTS_ALL")) GTEST_SKIP() << "VELMORA_SHOTS_ALL asks for every kind";
  for (int kind = 1; kind <= kCmdLoop; ++kind) {
    ShootKind(kind, (std::to_string(CmdTable[static_cast<size_t>(kind)].dialogId) + "-kind" + std::to_string(kind)).c_str());
  }
}

}  // namespace
}  // namespace velmora::testing
