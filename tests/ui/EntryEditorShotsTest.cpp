#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <cstdlib>

#include "EntryEditorDriver.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"

namespace velmora::testing {
namespace {

constexpr cPaletteSide kCommonBlocks{0, kKindBlock};
constexpr cPaletteSide kCommonCharas{0, kKindChara};
constexpr cPaletteSide kStageItems{1, kKindItem};

// Pictures of the entry editors as a real desktop shows them, to look at:
// runs only when VELMORA_SHOTS names a folder for the PNGs, on the display
// in use (QT_QPA_PLATFORM=xcb under a window manager).
class EntryEditorShots : public cEntryEditorTest {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("VELMORA_SHOTS");
    if (!folder) GTEST_SKIP() << "VELMORA_SHOTS names no folder";
    m_folder = QString::fromLocal8Bit(folder);
    cEntryEditorTest::SetUp();
  }

  void Shoot(const char* name) {
    QTest::qWait(600);
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    EXPECT_TRUE(screen.save(m_folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png")));
  }
  void ShootPages(const char* editor) {
    for (int page = 0; page < Editor().PageCount(); ++page) {
      ShowPage(page);
      Shoot((std::string(editor) + "-page" + std::to_string(page + 1)).c_str());
    }
  }

 private:
  QString m_folder;
};

// A few flows of the kinds an author writes first, so that every list of
// the flow page shows its summary lines.
std::vector<cEdFlow> SomeFlows() {
  std::vector<cEdFlow> flows(3);
  const int kinds[] = {kCmdLine, kCmdWait, kCmdShot};
  for (size_t i = 0; i < flows.size(); ++i) {
    cEdFlow& flow = flows[i];
    flow.m_nTrigger = static_cast<uint8_t>(i == 1 ? kTriggerDeath : 0);
    flow.m_nFlowGroup = static_cast<uint8_t>(i == 0 ? 1 : 0);
    for (int kind : kinds) {
      flow.m_vCmd.emplace_back();
      flow.m_vCmd.back().SetUpNew(kind, false);
    }
    flow.m_vCond.emplace_back();
    flow.m_vCond.back().m_nKind = kCondCommonVar;
    cEdKeyCond key;
    key.m_nPressMin = 1;
    key.m_nPressMax = 5;
    key.m_vKeyState[11] = key.m_vKeyState[12] = 1;
    flow.m_vKeyCond.push_back(key);
  }
  return flows;
}

TEST_F(EntryEditorShots, EveryPageOfTheThreeEditors) {
  OpenFromPalette(kCommonBlocks, 1);
  ShootPages("137-block");
  InModal([this](cDialog& d) {
    Shoot("137-graphic-list");
    Click(d, kIdCancel);
  });
  Click(Page(0), kIdGraphicPick);
  PressCancel();

  CommonPalette().m_vecCharaPlt.at(2).m_vFlow = SomeFlows();
  OpenFromPalette(kCommonCharas, 2);
  ShootPages("chara");
  ListAt(Front(), kIdFlowList)->setCurrentRow(1);  // 死亡した時, with its note
  Shoot("201-flow-death");
  ShowPage(1);
  InModal([this](cDialog& d) {
    Shoot("200-animeset-list");
    Click(d, kIdCancel);
  });
  Click(Page(1), kIdAnimeSetPick);
  PressCancel();

  // A stage entry that takes its name and its flows from the common one.
  cEdChara& inheriting = EditStage().m_vecCharaPlt.at(1);
  inheriting.m_nInheritSrc = kInheritCommon;
  inheriting.m_nInheritNo = 2;
  inheriting.m_bbInherit.assign(kCharaInheritGroups, 0);
  inheriting.m_bbInherit[0] = inheriting.m_bbInherit[36] = 1;
  inheriting.ApplyInherit();
  OpenFromPalette({1, kKindChara}, 1);
  ShowPage(0);
  Shoot("140-stage-inheriting");
  ShowPage(3);
  Shoot("201-stage-inheriting");
  PressCancel();

  OpenFromPalette(kStageItems, 1);
  ShootPages("item");
  PressCancel();
}

}  // namespace
}  // namespace velmora::testing
