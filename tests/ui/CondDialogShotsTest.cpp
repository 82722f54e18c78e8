#include <QScreen>
#include <cstdlib>

#include "CondDialogDriver.h"
#include "ui/conditions/CondDialog.h"
#include "ui/conditions/CondIds.h"
#include "ui/conditions/CondKindSelector.h"
#include "ui/conditions/KeyCondDialog.h"

namespace velmora::testing {
namespace {

// Pictures of the condition dialogs as a real desktop shows them, to look
// at: runs only when VELMORA_SHOTS names a folder for the PNGs, on the
// display in use (QT_QPA_PLATFORM=xcb under a window manager).
class CondDialogShots : public cCondDialogFixture {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMORA_SHOTS");
    if (!folder) GTEST_SKIP() << "VELMORA_SHOTS names no folder";
    m_folder = QString::fromLocal8Bit(folder);
    cCondDialogFixture::SetUp();
  }

  // `then` acts in the dialog once it is on the screen.
  void Shoot(cDialog& dialog, const char* name, void (*then)(cDialog&) = nullptr) {
    ASSERT_TRUE(dialog.Create(0, true));
    Activate(dialog.Window());
    if (then) then(dialog);
    QTest::qWait(800);
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    EXPECT_TRUE(screen.save(m_folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png")));
    dialog.Close(0);
  }

  void ShootKind(int kind, const char* name, void (*set)(cEdCond&) = nullptr, void (*then)(cDialog&) = nullptr) {
    cEdCond record = NewCondition(kind);
    if (set) set(record);
    cCondDialog dialog(manager, nullptr, record, *CondKindForm(kind), false);
    Shoot(dialog, name, then);
  }

 private:
  QString m_folder;
};

TEST_F(CondDialogShots, EveryDialogOnTheDesktop) {
  cEdKeyCond key;
  key.m_vKeyState[2] = 1;
  key.m_vKeyState[11] = 2;
  cKeyCondDialog keys(manager, nullptr, key);
  Shoot(keys, "204-key-condition");

  cEdCond none;
  cCondKindSelector selector(manager, nullptr, none, true);
  Shoot(selector, "170-kind-selector");
  ShootKind(kCondStatus, "269-status");
  ShootKind(kCondStatus, "269-status-coordinates", [](cEdCond& c) {
    c.m_nLeftStatus = kStatusY;
    c.m_nLeftCoord = 1;
    c.m_nRightType = 3;
    c.m_nRightVar = 2;
  });
  ShootKind(kCondCommonVar, "196-common-variable");
  ShootKind(kCondCharaVar, "218-character-variable");
  ShootKind(kCondStatus2, "274-status2");
  ShootKind(kCondStatus2, "274-status2-flying", nullptr, [](cDialog& d) {
    Choose(d, kIdCondLeftStatus, 2);
    Choose(d, kIdCondLeftVar, 3);
  });
  ShootKind(kCondStatus3, "275-status3");
  ShootKind(kCondDistance, "219-distance");
}

}  // namespace
}  // namespace velmora::testing
