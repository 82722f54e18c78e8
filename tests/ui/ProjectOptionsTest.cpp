#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QTabWidget>

#include "CondDialogDriver.h"
#include "EditorOnSample.h"
#include "RecordDump.h"
#include "core/PrjOption.h"
#include "ui/entries/EntryIds.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/entries/EntryEditor.h"
#include "ui/options/OptionIds.h"
#include "ui/options/ProjectOptionSheet.h"
#include "ui/stage/StageWindow.h"

namespace velmora::testing {
namespace {

constexpr const char* kOptionFile = "data\\PrjOption.dat";
constexpr int kProjectOptionsCommand = 40062;
constexpr int kFlagRows = 61;
constexpr int kCharaFirstRow = 11;
constexpr int kItemFirstRow = 48;

// Presses the button of a sheet's button box that has `role`.
void PressSheetButton(QWidget* window, QDialogButtonBox::ButtonRole role) {
  auto* box = window->findChild<QDialogButtonBox*>();
  for (QAbstractButton* button : box->buttons()) {
    if (box->buttonRole(button) == role) return button->click();
  }
  ADD_FAILURE() << "no such button";
}

// The project options on the running editor, driven as the author drives
// them, page by page.
class ProjectOptionsTest : public cEditorOnSample {
 protected:
  void TearDown() override {
    cEditorOnSample::TearDown();
    ProjectOption() = PrjOption();
  }
  // Opens the sheet, lets `edit` work on it, and leaves it by OK or Cancel.
  void Run(const std::function<void(cProjectOptionSheet&)>& edit, bool ok) {
    cProjectOptionSheet sheet(Stage().Manager(), Stage().Window());
    WhenModal([&](QWidget*) {
      edit(sheet);
      PressSheetButton(sheet.Window(), ok ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
    });
    sheet.Start();
  }
  static cDialog& ShowPage(cProjectOptionSheet& sheet, int page) {
    sheet.Window()->findChild<QTabWidget*>()->setCurrentIndex(page);
    return *sheet.Page(page);
  }
  using cEditorOnSample::Click;
  static void Click(cDialog& dialog, int id) { testing::Click(dialog, id); }
  static bool Enabled(cDialog& page, int id) { return page.Item(id)->isEnabled(); }
};

TEST_F(ProjectOptionsTest, OkWritesExactlyWhatThePagesChanged) {
  const std::vector<std::string> before = DumpRecordFile(kOptionFile);
  std::vector<uint8_t> changed;
  Run(
      [&](cProjectOptionSheet& sheet) {
        cDialog& general = ShowPage(sheet, 0);
        Click(general, kIdAutoGame);
        prompt.QueuePath("Game.exe");
        Click(general, kIdGameBrowse);
        Choose(general, kIdOldStage, 0);
        Type(general, kIdBackupHours, "12");
        Click(general, kIdBackup);
        cDialog& inherit = ShowPage(sheet, 1);
        Click(inherit, kIdDefFlag + 0 * kFlagRows + 2);                   // stage, block グラフィック
        Click(inherit, kIdDefFlag + 1 * kFlagRows + kCharaFirstRow + 4);  // common → placed, character 出現条件
        Click(inherit, kIdDefFlag + 2 * kFlagRows + kItemFirstRow + 12);  // stage → placed, item 効果
      },
      true);
  EXPECT_EQ(ChangedMembers(before, DumpRecordFile(kOptionFile)),
            (std::vector<std::string>{"m_bAutoGame", "m_nOldStage", "m_bBackup", "m_nBackupHours",
                                      "m_strGamePath", "m_vDefFlagsStageBlock", "m_vDefFlagsCommonPlacedChara",
                                      "m_vDefFlagsStagePlacedItem"}));
  const PrjOption& option = ProjectOption();
  EXPECT_EQ(option.m_strGamePath, ".\\Game.exe");
  EXPECT_EQ(option.m_nBackupHours, 12);
  EXPECT_EQ(option.m_vDefFlags[kMomentStage][kKindBlock][2], 1);
  EXPECT_EQ(option.m_vDefFlags[kMomentCommonPlaced][kKindChara][4], 1);
  EXPECT_EQ(option.m_vDefFlags[kMomentStagePlaced][kKindItem][12], 0);
}

TEST_F(ProjectOptionsTest, CancelWritesNothingAndKeepsTheOptionsInForce) {
  const std::vector<uint8_t> before = ReadBytes("data/PrjOption.dat");
  const PrjOption inForce = ProjectOption();
  Run(
      [&](cProjectOptionSheet& sheet) {
        cDialog& general = ShowPage(sheet, 0);
        Click(general, kIdAutoGame);
        Type(general, kIdGamePath, "x.exe");
        WhenModal([](QWidget*) {
          Type(*OpenEntryEditor()->CurrentPage(), kIdEntryName, "changed");
          PressSheetButton(OpenEntryEditor()->Window(), QDialogButtonBox::AcceptRole);
        });
        Click(general, kIdDefChara);
        Choose(ShowPage(sheet, 1), kIdDefSource + 2 * 3 + kKindItem, 0);
        EXPECT_EQ(sheet.Work().m_DefChara.m_strName, "changed");
      },
      false);
  EXPECT_EQ(ReadBytes("data/PrjOption.dat"), before);
  EXPECT_TRUE(IsSame(ProjectOption(), inForce));
}

TEST_F(ProjectOptionsTest, ADefaultEntryEditedOnTheSheetIsSavedWithIt) {
  Run(
      [&](cProjectOptionSheet& sheet) {
        WhenModal([](QWidget*) {
          Type(*OpenEntryEditor()->CurrentPage(), kIdEntryName, "new block");
          PressSheetButton(OpenEntryEditor()->Window(), QDialogButtonBox::AcceptRole);
        });
        Click(ShowPage(sheet, 0), kIdDefBlock);
        // Until OK the options in force keep their entry.
        EXPECT_NE(ProjectOption().m_DefBlock.m_strName, "new block");
      },
      true);
  PrjOption reloaded;
  ASSERT_TRUE(reloaded.LoadFile(kOptionFile));
  EXPECT_EQ(reloaded.m_DefBlock.m_strName, "new block");
}

TEST_F(ProjectOptionsTest, TheGeneralPageKeepsItsRules) {
  ProjectOption().m_bAutoGame = 1;
  ProjectOption().m_strGamePath = ".\\kept.exe";
  ProjectOption().m_nBackupHours = 5000;  // as a damaged file may hold
  Run(
      [&](cProjectOptionSheet& sheet) {
        cDialog& general = ShowPage(sheet, 0);
        EXPECT_FALSE(Enabled(general, kIdGamePath));
        EXPECT_FALSE(Enabled(general, kIdGameBrowse));
        Click(general, kIdAutoGame);
        EXPECT_TRUE(Enabled(general, kIdGamePath));
        // Outside the project, or cancelled: the path stays.
        prompt.QueuePath("\\opt\\game\\Game.exe");
        Click(general, kIdGameBrowse);
        Click(general, kIdGameBrowse);
        EXPECT_EQ(Shown(general, kIdGamePath), ".¥kept.exe");  // a backslash shows as the yen sign

        EXPECT_TRUE(Enabled(general, kIdBackupHours));
        Click(general, kIdBackup);
        EXPECT_FALSE(Enabled(general, kIdBackupHours));
        EXPECT_FALSE(Enabled(general, kIdBackupSpin));
      },
      true);
  EXPECT_EQ(ProjectOption().m_strGamePath, ".\\kept.exe");
  EXPECT_EQ(ProjectOption().m_nBackupHours, 999);
}

TEST_F(ProjectOptionsTest, TheMenuOpensTheSheetUnlessItsDefaultsAreDamaged) {
  QString title;
  WhenModal([&](QWidget* modal) {
    title = modal->windowTitle();
    PressSheetButton(modal, QDialogButtonBox::RejectRole);
  });
  Command(Stage(), kProjectOptionsCommand);
  EXPECT_EQ(title, QString::fromUtf8("プロジェクトオプション"));

  ProjectOption().m_vDefFlags[kMomentStage][kKindItem].resize(3);
  bool opened = false;
  WhenModal([&](QWidget* modal) { opened = modal != nullptr; });
  Command(Stage(), kProjectOptionsCommand);
  QApplication::processEvents();
  EXPECT_FALSE(opened);
  EXPECT_EQ(prompt.LastText(), "継承データの数が一致しません！(バグかデータファイルが破損しているかどちらか)");
  EXPECT_EQ(g_bNoSave, 1);
}

}  // namespace
}  // namespace velmora::testing
