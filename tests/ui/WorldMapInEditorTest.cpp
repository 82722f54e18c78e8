#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

#include "EditorOnSample.h"
#include "SampleDialog.h"
#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "objects/GValInfo.h"
#include "platform/TextCodec.h"
#include "project/WorldMap.h"
#include "ui/controls/EditVal.h"
#include "ui/framework/DialogManager.h"
#include "ui/worldmap/WorldEventDialog.h"
#include "ui/worldmap/WorldMapWindow.h"
#include "ui/worldmap/WorldSettingsDialog.h"

namespace velmora::testing {
namespace {

constexpr int kCmdWorldMap = 40064;
enum eWorldIds { kSave = 40301, kUndo = 40303, kChipMode = 40305, kEventMode = 40306, kSettings = 40309 };
constexpr int kPopupEdit = 40311;
using D = cWorldEventDialog;

// The editor on the sample with the world map window opened from the
// stage window's menu, as the author opens it.
class WorldMapInTheEditor : public cEditorOnSample {
 protected:
  void SetUp() override {
    WorldEdit() = cEdWorldEditState();
    EditorConfig() = EditConfig();
    cEditorOnSample::SetUp();
    original = WorldMap();
    Command(Stage(), kCmdWorldMap);
    map = FindWorldMap();
    ASSERT_NE(map, nullptr);
    map->ScrollTo(0, 0);
  }

  cWorldMapWindow* FindWorldMap() const {
    for (cDialog* dialog : app->Manager().Windows()) {
      if (auto* window = dynamic_cast<cWorldMapWindow*>(dialog); window && window->IsOpen()) return window;
    }
    return nullptr;
  }
  void ClickCell(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    Click(*map, QPoint(x * 32 + 16, y * 32 + 16), button);
  }
  bool ToolEnabled(int command) const {
    for (QAction* action : map->Window()->findChild<QToolBar*>()->actions()) {
      if (action->data().toInt() == command) return action->isEnabled();
    }
    return false;
  }
  // The dialog that a modal window belongs to.
  static cDialog& DialogOf(QWidget* modal) {
    return *reinterpret_cast<cDialog*>(modal->property("DLG_CLASS").value<quintptr>());
  }
  static void TypeInto(cDialog& dialog, int id, const QString& text) {
    auto* edit = qobject_cast<QLineEdit*>(dialog.Item(id));
    edit->selectAll();
    TypeText(edit, text);
  }
  // A row chosen as the author chooses it.
  static void Choose(cDialog& dialog, int id, int row) {
    auto* box = qobject_cast<QComboBox*>(dialog.Item(id));
    box->setCurrentIndex(row);
    emit box->activated(row);
  }

  cEdWorldMap original;
  cWorldMapWindow* map = nullptr;
};

TEST_F(WorldMapInTheEditor, OpensInPlaceOfTheStageWindowAndClosingAsksAfterAnyClick) {
  EXPECT_EQ(map->Window()->windowTitle(), QStringLiteral("ワールドマップ"));
  EXPECT_FALSE(Stage().Window()->isVisible());
  EXPECT_EQ(app->CurrentMode(), 1);
  ASSERT_NE(map->ChipPalette(), nullptr);
  EXPECT_TRUE(map->ChipPalette()->Window()->isVisible());
  EXPECT_FALSE(ToolEnabled(kUndo));

  ClickCell(2, 2);  // nothing chosen: nothing painted
  EXPECT_EQ(WorldMap().m_vecCells, original.m_vecCells);
  EXPECT_FALSE(map->AskClose()) << "Cancel keeps the window";
  EXPECT_EQ(prompt.Shown().back().caption, "保存確認");
  EXPECT_EQ(prompt.Shown().back().text, "ワールドマップが変更された可能性があります。\n保存しますか？");

  prompt.QueueAnswer(eAnswer::No);
  EXPECT_TRUE(map->AskClose());
  EXPECT_FALSE(map->IsOpen());
  EXPECT_TRUE(Stage().Window()->isVisible());
  EXPECT_EQ(app->CurrentMode(), 0);
}

TEST_F(WorldMapInTheEditor, PaintPlaceAndEditAnEventThenTheSavedFileHoldsExactlyThat) {
  Click(*map->ChipPalette(), QPoint(2 * 32 + 16, 16));  // the forest
  ClickCell(4, 3);
  EXPECT_EQ(WorldMap().Cell(4, 3), 2);
  EXPECT_TRUE(ToolEnabled(kUndo));

  Command(*map, kEventMode);
  EXPECT_EQ(map->ChipPalette(), nullptr);
  ASSERT_NE(map->EventPalette(), nullptr);
  EXPECT_EQ(WorldEdit().m_iCurrent, 0) << "the first template is chosen";
  WhenModal([](QWidget* modal) {
    cDialog& dialog = DialogOf(modal);
    TypeInto(dialog, D::kIdName, QStringLiteral("ほこら"));
    dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  ClickCell(6, 2);  // placing opens the dialog first
  ASSERT_TRUE(WorldMap().HasEventAt(6, 2));

  WhenModal([](QWidget* modal) {
    cDialog& dialog = DialogOf(modal);
    QTest::mouseClick(dialog.Item(D::kIdPageInsert), Qt::LeftButton);
    Choose(dialog, D::kIdType, 1);  // 道
    EXPECT_FALSE(dialog.Item(D::kIdWorldNo)->isEnabled());
    EXPECT_FALSE(dialog.Item(D::kIdStartStage)->isEnabled());
    EXPECT_FALSE(dialog.Item(D::kIdCondValue)->isEnabled()) << "no variable in the condition";
    Choose(dialog, D::kIdCondVar, 3);
    EXPECT_TRUE(dialog.Item(D::kIdCondValue)->isEnabled());
    TypeInto(dialog, D::kIdCondValue, QStringLiteral("25"));
    dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  Command(*map, kPopupEdit);  // the pop-up's 編集 on the cell just clicked
  Command(*map, kSave);

  cEdWorldMap expected = original;
  expected.SetCell(4, 3, 2);
  cEdWorldEvent event = expected.m_vecTemplates.at(0);
  event.m_strName = ToCp932("ほこら");
  expected.AssignWorldNos(event, nullptr);
  cEdWorldPage road;
  road.m_iType = cEdWorldPage::TypeRoad;
  road.m_iCondVar = 3;
  road.m_iCondValue = 25;
  event.m_vecPages.insert(event.m_vecPages.begin(), road);
  expected.PlaceEvent(event, 6, 2);
  ASSERT_TRUE(expected.SaveFile("expected.dat"));
  EXPECT_EQ(ReadBytes("data/WorldMap.dat"), ReadBytes("expected.dat"));
  EXPECT_EQ(expected.m_vecEvents.back().m_vecPages.at(1).m_iWorldNo, 4) << "numbered after the sample's three";
}

TEST_F(WorldMapInTheEditor, ANewSizeLeavesNothingToUndo) {
  Click(*map->ChipPalette(), QPoint(16, 16));
  ClickCell(1, 1);
  ASSERT_TRUE(ToolEnabled(kUndo));
  WhenModal([](QWidget* modal) {
    cDialog& dialog = DialogOf(modal);
    // Typed digit by digit, 4 would show as the least width first.
    dialog.FindControlOf<cEditVal>(cWorldSettingsDialog::kIdWidth)->SetValue(40);
    dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  Command(*map, kSettings);
  EXPECT_EQ(WorldMap().m_nWidth, 40);
  EXPECT_FALSE(ToolEnabled(kUndo));
  Command(*map, kUndo);
  EXPECT_EQ(WorldMap().m_nWidth, 40);
  EXPECT_EQ(map->HorzBar()->Bar()->maximum(), 40 - 640 / 32) << "the view scrolls over the wider map";
}

TEST_F(WorldMapInTheEditor, SpaceFlipsTheModesAndTheUnderscoreRenamesACommonVariableAtOnce) {
  map->Window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(map->Window()));
  map->Item(kIdPlaceholder)->setFocus();
  // The hook posts the key to the window; a loaded machine takes a while.
  const auto modeBecomes = [](int mode) { return QTest::qWaitFor([mode] { return WorldEdit().m_iMode == mode; }); };
  QTest::keyClick(map->Item(kIdPlaceholder), Qt::Key_Space);
  EXPECT_TRUE(modeBecomes(kWorldEventMode));
  QTest::qWait(20);  // the palette of the mode opens behind the change
  ASSERT_NE(map->EventPalette(), nullptr);
  QWidget* list = map->EventPalette()->Item(cEventPaletteWindow::kIdList);
  map->EventPalette()->Window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == map->EventPalette()->Window(); }));
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_TRUE(modeBecomes(kWorldChipMode)) << "Space in the palette, which goes with its mode";
  ASSERT_NE(map->ChipPalette(), nullptr);
  Command(*map, kEventMode);

  EditorConfig().m_bEditIfPlaced = 1;
  WhenModal([this](QWidget* modal) {
    cDialog& dialog = DialogOf(modal);
    QTest::mouseClick(dialog.Item(D::kIdCondVarName), Qt::LeftButton);  // none chosen: a beep only
    Choose(dialog, D::kIdCondVar, 5);
    WhenModal([](QWidget* input) {
      auto* edit = input->findChild<QLineEdit*>();
      edit->selectAll();
      TypeText(edit, QStringLiteral("難易度"));
      QTest::keyClick(edit, Qt::Key_Return);
    });
    QTest::mouseClick(dialog.Item(D::kIdCondVarName), Qt::LeftButton);
    const auto* combo = qobject_cast<QComboBox*>(dialog.Item(D::kIdVarVar));
    EXPECT_EQ(combo->itemText(4), QStringLiteral("005 難易度")) << "both lists show the new name";
    dialog.SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
  });
  const cEdWorldEvent& placed = WorldMap().m_vecEvents.at(0);
  ClickCell(placed.m_iX - map->ScrollX(), placed.m_iY - map->ScrollY());  // edits the event standing there
  LoadCommonVars();
  EXPECT_EQ(VarName(kScopeCommon, 5), ToCp932("難易度")) << "data\\GValInfo.dat was written at once";
  EXPECT_EQ(WorldMap().m_vecEvents.size(), original.m_vecEvents.size());
}

TEST_F(WorldMapInTheEditor, TheChipPaletteFitsItsChipsAndNamesTheChosenOne) {
  cChipPaletteWindow& chips = *map->ChipPalette();
  const int rows = (static_cast<int>(WorldMap().m_vecChips.size()) + 4) / 5;
  EXPECT_EQ(ClientOf(chips)->height(), rows * 32) << "no room below the last row of chips";
  Click(chips, QPoint(4 * 32 + 16, 16));
  EXPECT_EQ(WorldEdit().m_iCurrent, 4);
  EXPECT_EQ(WorldEdit().m_iBrushW, 1);
  const QString status = chips.Window()->findChild<QStatusBar*>()->findChild<QLabel*>()->text();
  EXPECT_EQ(status, QString::fromUtf8("5 : ") + QString::fromStdString(ToUtf8(WorldMap().m_vecChips[4].m_strName)));
  Click(chips, QPoint(4 * 32 + 16, rows * 32 - 1 + 32));  // below the chips
  EXPECT_EQ(WorldEdit().m_iCurrent, 4);

  WorldMap().m_vecChips.resize(3);  // as the database page may cut it
  chips.Refresh();
  EXPECT_TRUE(chips.Window()->findChild<QStatusBar*>()->findChild<QLabel*>()->text().isEmpty());
  ClickCell(5, 5);
  EXPECT_EQ(WorldMap().Cell(5, 5), original.Cell(5, 5)) << "a brush of a chip the list lost paints nothing";
}

TEST_F(WorldMapInTheEditor, TemplatesAreInsertedThroughTheEventDialogAndShareTheMapsClipboard) {
  Command(*map, kEventMode);
  cEventPaletteWindow& palette = *map->EventPalette();
  const size_t before = WorldMap().m_vecTemplates.size();
  WhenModal([](QWidget* modal) { DialogOf(modal).SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0); });
  QTest::mouseClick(palette.Item(cEventPaletteWindow::kIdInsert), Qt::LeftButton);
  EXPECT_EQ(WorldMap().m_vecTemplates.size(), before) << "Cancel takes the new template out again";
  WhenModal([](QWidget* modal) {
    cDialog& dialog = DialogOf(modal);
    TypeInto(dialog, D::kIdName, QStringLiteral("town"));
    dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  QTest::mouseClick(palette.Item(cEventPaletteWindow::kIdInsert), Qt::LeftButton);
  ASSERT_EQ(WorldMap().m_vecTemplates.size(), before + 1);
  EXPECT_EQ(WorldEdit().m_Template.m_strName, "town") << "the new template is the one placed";
  EXPECT_EQ(WorldEdit().m_bWorldDirty, 1);

  cWorldTemplateList& templates = palette.Templates();
  ASSERT_TRUE(templates.Copy());
  const std::vector<cMenuItem> menu = WorldPopupMenu(map->Editor(), 9, 9);
  ASSERT_EQ(menu.size(), 6u);
  EXPECT_FALSE(menu[0].enabled) << "編集 wants an event on the cell";
  EXPECT_TRUE(menu[3].enabled) << "貼り付け takes the template copied in the palette";
}

TEST_F(WorldMapInTheEditor, TheWorldMapSetGoesToTheTaskBarAndComesBackAsTheCurrentMode) {
  Command(*map, kEventMode);
  QWidget* palette = map->EventPalette()->Window();
  app->StageWindowMinimised();
  EXPECT_FALSE(palette->isVisible());
  app->StageWindowRestored();
  EXPECT_TRUE(palette->isVisible());
  EXPECT_TRUE(map->Window()->isVisible());
  EXPECT_FALSE(Stage().Window()->isVisible()) << "the stage editor's windows stay away in mode 1";
}

}  // namespace
}  // namespace velmora::testing
