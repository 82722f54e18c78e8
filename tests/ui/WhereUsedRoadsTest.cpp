#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <functional>

#include "EntryEditorDriver.h"
#include "WhenEditorOpens.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "core/ProjectPaths.h"
#include "project/WorldEditState.h"
#include "project/WorldMap.h"
#include "stage/Stage.h"
#include "ui/conditions/CondIds.h"
#include "ui/whereused/WhereUsedSearch.h"
#include "ui/worldmap/WorldMapWindow.h"

namespace velmora::testing {
namespace {

constexpr int kWhereUsedMenu = 40901;
constexpr int kSearchedVar = 7;
constexpr int kFlowPage = 3;    // 行動 of the character editor
constexpr int kEffectPage = 1;  // 効果 of the item editor

QWidget* TopLevelTitled(const char* utf8) { return ShownWindow(utf8); }

QPushButton* ButtonOf(QWidget* window, const char* utf8) {
  for (QPushButton* button : window->findChildren<QPushButton*>()) {
    if (button->text() == QString::fromUtf8(utf8)) return button;
  }
  return nullptr;
}

cEdCond VarCond(int var) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kCondCommonVar);
  cond.m_nLeftVar = static_cast<int16_t>(var);
  return cond;
}

cEdCmd CodeCmd(const char* text, bool itemCmd) {
  cEdCmd cmd;
  cmd.SetUpNew(itemCmd ? kCmdCode - kItemKindOffset : kCmdCode, itemCmd);
  cmd.m_strText = text;
  return cmd;
}

// The sample's slime (common character 2) and coin (common item 1) take
// uses of one common variable deep in their lists, each after rows that
// don't use it, so a start on the first rows can't pass.
void AddUsesToCommonPalette() {
  cEdChara& slime = CommonPalette().m_vecCharaPlt[2];
  const size_t firstFlow = slime.m_vFlow.size();
  slime.m_vFlow.resize(firstFlow + 2);
  cEdFlow& conditioned = slime.m_vFlow[firstFlow];
  conditioned.m_vCond = {VarCond(kSearchedVar - 1), VarCond(kSearchedVar)};
  cEdFlow& commanded = slime.m_vFlow[firstFlow + 1];
  commanded.m_vCmd = {CodeCmd("C1 = 0", false), CodeCmd("C2 = 0", false), CodeCmd("C7 = C7 + 1", false)};
  cEdItem& coin = CommonPalette().m_vecItemPlt[1];
  coin.m_vCond = {VarCond(1), VarCond(kSearchedVar)};
  coin.m_vCmd.push_back(CodeCmd("C1 = 0", true));
  coin.m_vCmd.push_back(CodeCmd("C7 = 1", true));
  ASSERT_TRUE(SaveCommonPalette());
}

class WhereUsedRoads : public cEntryEditorTest {
 protected:
  void SetUp() override {
    cEntryEditorTest::SetUp();
    AddUsesToCommonPalette();
  }
  void TearDown() override {
    WhereUsedSearch() = cWhereUsedSearch();
    cEntryEditorTest::TearDown();
  }

  // The search window of the project menu, searched for `target`, opens
  // the first use that `wanted` takes.
  cUse OpenUse(cUseTarget target, const std::function<bool(const cUse&)>& wanted) {
    Command(Stage(), kWhereUsedMenu);
    QWidget* window = TopLevelTitled("使用箇所の検索");
    if (!window) return ADD_FAILURE() << "no search window", cUse();
    // Typed in as the author does; the window may still show another search.
    window->findChild<QComboBox*>()->setCurrentIndex(static_cast<int>(target.kind));
    window->findChild<QLineEdit*>()->setText(QString::number(target.number));
    ButtonOf(window, "検索")->click();
    const std::vector<cFoundUse>& results = WhereUsedSearch().results;
    for (size_t row = 0; row < results.size(); ++row) {
      if (!wanted(results[row].use)) continue;
      const cUse use = results[row].use;
      window->findChild<QListWidget*>()->setCurrentRow(static_cast<int>(row));
      ButtonOf(window, "開く")->click();
      return use;
    }
    std::string listed;
    for (const cFoundUse& found : results) listed += UseLineText(found.file, found.use) + "\n";
    ADD_FAILURE() << "no such use of " << WhereUsedSearch().kind << " " << WhereUsedSearch().number << " among\n" << listed;
    return {};
  }
  static int SelectedRow(cDialog& page, int id) { return ListAt(page, id)->currentRow(); }
  static bool InCommon(const cUse& use) { return use.area == eUseArea::Palette; }
};

TEST_F(WhereUsedRoads, AUseInAFlowOpensTheFlowPageOnItsFlowAndCommandOrCondition) {
  Save();
  const std::vector<uint8_t> before = Files();
  const cUse inCommand = OpenUse({eUseKind::VarCommon, kSearchedVar}, [](const cUse& use) { return InCommon(use) && use.cmd > 0; });
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(&Page(kFlowPage), &Front());
  EXPECT_EQ(inCommand.flow - 1, SelectedRow(Front(), kIdFlowList));
  EXPECT_EQ(3, inCommand.cmd);
  EXPECT_EQ(inCommand.cmd - 1, SelectedRow(Front(), kIdCmdList));
  EXPECT_TRUE(ListRows(Front(), kIdCmdList).at(2).contains(QStringLiteral("C7")));
  PressCancel();
  Save();
  EXPECT_EQ(before, Files()) << "Cancel keeps the files as they were";

  const cUse inCondition = OpenUse({eUseKind::VarCommon, kSearchedVar},
                                   [](const cUse& use) { return InCommon(use) && use.flow > 0 && use.cmd == 0; });
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(&Page(kFlowPage), &Front());
  EXPECT_EQ(inCondition.flow - 1, SelectedRow(Front(), kIdFlowList));
  EXPECT_EQ(1, SelectedRow(Front(), kIdFlowCondList));
  // OK stores what the author did where the editor opened: the condition
  // goes, and the flow keeps the other.
  Click(Front(), kIdFlowCondDelete);
  PressOk();
  Save();
  cPalette saved;
  ASSERT_TRUE(saved.LoadWholeFile("data\\CommonPalette.cplt4"));
  const cEdFlow& flow = saved.m_vecCharaPlt[2].m_vFlow[static_cast<size_t>(inCondition.flow - 1)];
  ASSERT_EQ(1u, flow.m_vCond.size());
  EXPECT_EQ(kSearchedVar - 1, flow.m_vCond[0].m_nLeftVar);
}

TEST_F(WhereUsedRoads, AnItemsUsesOpenItsCommandOrItsOwnConditionOrItsField) {
  OpenUse({eUseKind::VarCommon, kSearchedVar}, [](const cUse& use) { return InCommon(use) && use.list == ePaletteList::Item && use.cmd > 0; });
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(&Page(kEffectPage), &Front());
  EXPECT_EQ(static_cast<int>(CommonPalette().m_vecItemPlt[1].m_vCmd.size()) - 1, SelectedRow(Front(), kIdCmdList));
  PressCancel();

  OpenUse({eUseKind::VarCommon, kSearchedVar}, [](const cUse& use) { return InCommon(use) && use.list == ePaletteList::Item && use.cmd == 0; });
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(&Page(0), &Front());
  EXPECT_EQ(1, SelectedRow(Front(), kIdAppearList));
  PressCancel();

  // A field use: the page with the field in front, whatever page the
  // author had in front last.
  OpenFromPalette({0, kKindChara}, 1);
  ShowPage(kFlowPage);
  PressCancel();
  OpenUse({eUseKind::AnimeSet, 0}, [](const cUse& use) { return InCommon(use) && use.list == ePaletteList::Chara; });
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(1, Editor().Window()->findChild<QTabWidget*>()->currentIndex()) << "アニメセット stands on 表示";
  EXPECT_EQ(Front().Item(kIdAnimeSet), Editor().Window()->focusWidget());
  PressCancel();
}

// A placed character's editor is modal: it is read from the event loop it
// runs. Its field 継承元 stands on 基本.
TEST_F(WhereUsedRoads, AUseInACellOpensItsModalEditorAtTheUse) {
  bool checked = false;
  WhenEditorOpens([&](cEntryEditorBase& editor) {
    checked = true;
    EXPECT_EQ(0, editor.Window()->findChild<QTabWidget*>()->currentIndex());
    EXPECT_EQ(editor.CurrentPage()->Item(kIdInheritNo), editor.Window()->focusWidget());
    PressCancel();
  });
  Save();
  const std::vector<uint8_t> before = Files();
  const cUse use = OpenUse({eUseKind::Chara, 2}, [](const cUse& use) { return use.area == eUseArea::Cell; });
  EXPECT_TRUE(checked);
  EXPECT_EQ(use.x, Stage().Cursor().x);
  Save();
  EXPECT_EQ(before, Files());
}

// The coin's second condition names the variable: "_" beside it in the
// condition's dialog lists the variable's uses, right-clicked.
TEST_F(WhereUsedRoads, TheRenameButtonsMenuListsTheUsesOfTheVariableItStandsBeside) {
  Save();
  const std::vector<uint8_t> before = Files();
  OpenFromPalette({0, kKindItem}, 1);
  ShowPage(0);
  ListAt(Front(), kIdAppearList)->setCurrentRow(1);
  bool offered = false;
  int listed = -1;
  InModal([&](cDialog& condition) {
    QWidget* rename = condition.Item(kIdCondLeftVarName);
    ASSERT_NE(rename, nullptr);
    WhenPopupShows([&](QWidget& popup) {
      auto* menu = qobject_cast<QMenu*>(&popup);
      offered = menu && menu->actions().size() == 1 && menu->actions()[0]->text() == QString::fromUtf8("使用箇所の検索");
      WhenModalShows("使用箇所の検索", [&](QWidget& window) {
        listed = window.findChild<QListWidget*>()->count();
        QTest::keyClick(&window, Qt::Key_Escape);
      });
      if (!offered) {
        popup.close();
        return;
      }
      menu->setActiveAction(menu->actions()[0]);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    emit rename->customContextMenuRequested(QPoint(2, 2));
    QTest::keyClick(condition.Window(), Qt::Key_Escape);
  });
  Click(Front(), kIdAppearEdit);
  EXPECT_TRUE(offered);
  EXPECT_EQ(static_cast<int>(eUseKind::VarCommon), WhereUsedSearch().kind);
  EXPECT_EQ(kSearchedVar, WhereUsedSearch().number);
  EXPECT_EQ(static_cast<int>(WhereUsedSearch().results.size()), listed);
  EXPECT_GE(listed, 4) << "at least the slime's two and the coin's two";
  PressCancel();
  Save();
  EXPECT_EQ(before, Files());
}

// A world map event's condition opens the world map on the event; the
// sample's title music, a field of the system settings, opens them on the
// page of that field, and the stage's music and backgrounds the stage
// settings on theirs.
TEST_F(WhereUsedRoads, UsesOutsideTheEntriesOpenTheirWindowsAtThePlace) {
  cEdWorldEvent& event = WorldMap().m_vecEvents.back();
  event.m_vecPages[0].m_iCondVar = kSearchedVar;
  ASSERT_TRUE(WorldMap().SaveFile(PathOf(ePath::WorldMap)));
  OpenUse({eUseKind::VarCommon, kSearchedVar}, [](const cUse& use) { return use.area == eUseArea::WorldMap; });
  cWorldMapWindow* map = nullptr;
  for (cDialog* dialog : app->Manager().Windows()) {
    if (auto* window = dynamic_cast<cWorldMapWindow*>(dialog); window && window->IsOpen()) map = window;
  }
  ASSERT_NE(map, nullptr);
  EXPECT_EQ(kWorldEventMode, WorldEdit().m_iMode);
  EXPECT_EQ(event.m_iX, map->Cursor().x);
  EXPECT_EQ(event.m_iY, map->Cursor().y);
  map->AskClose();

  int shownPage = -1;
  bool onMusic = false;
  WhenModalShows("システムの設定", [&](QWidget& sheet) {
    shownPage = sheet.findChild<QTabWidget*>()->currentIndex();
    onMusic = qobject_cast<QComboBox*>(sheet.focusWidget()) != nullptr;
    QTest::keyClick(&sheet, Qt::Key_Escape);
  });
  const std::vector<uint8_t> system = ReadBytes("data/System.dat");
  OpenUse({eUseKind::Bgm, 1}, [](const cUse& use) { return use.area == eUseArea::System; });
  EXPECT_EQ(2, shownPage) << "the music stands on page 3";
  EXPECT_TRUE(onMusic);
  EXPECT_EQ(system, ReadBytes("data/System.dat"));

  EditStage().m_iBgm = 1;
  StageEdit().m_bStageChanged = 1;
  Save();
  shownPage = -1;
  WhenModalShows("ステージの設定", [&](QWidget& sheet) {
    shownPage = sheet.findChild<QTabWidget*>()->currentIndex();
    onMusic = qobject_cast<QComboBox*>(sheet.focusWidget()) != nullptr;
    QTest::keyClick(&sheet, Qt::Key_Escape);
  });
  onMusic = false;
  OpenUse({eUseKind::Bgm, 1}, [](const cUse& use) { return use.area == eUseArea::StageSettings; });
  EXPECT_EQ(0, shownPage);
  EXPECT_TRUE(onMusic);

  // The sample's picture 1 shown by the stage's second background layer:
  // the settings open with that layer selected in their list.
  EditStage().m_vecBack.resize(2);
  EditStage().m_vecBack[1].m_strPath = "bmp\\WorldBack.bmp";
  StageEdit().m_bStageChanged = 1;
  Save();
  int backRow = -1;
  WhenModalShows("ステージの設定", [&](QWidget& sheet) {
    for (QListWidget* list : sheet.findChildren<QListWidget*>()) {
      if (list->hasFocus() || list == sheet.focusWidget()) backRow = list->currentRow();
    }
    QTest::keyClick(&sheet, Qt::Key_Escape);
  });
  const cUse back = OpenUse({eUseKind::Picture, 1}, [](const cUse& use) { return use.area == eUseArea::Background; });
  EXPECT_EQ(2, back.entry);
  EXPECT_EQ(1, backRow);
}

}  // namespace
}  // namespace velmora::testing
