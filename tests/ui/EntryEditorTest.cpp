#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <gtest/gtest.h>

#include "EntryEditorDriver.h"
#include "core/EditConfig.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "project/Database.h"
#include "stage/Stage.h"
#include "ui/controls/ThumbnailGrid.h"
#include "ui/database/ObjectListDialog.h"
#include "ui/entries/AnimeSetListDialog.h"

namespace velmora::testing {
namespace {

constexpr cPaletteSide kCommonBlocks{0, kKindBlock};
constexpr cPaletteSide kCommonCharas{0, kKindChara};
constexpr cPaletteSide kCommonItems{0, kKindItem};
constexpr cPaletteSide kStageCharas{1, kKindChara};
constexpr int kFlowPage = 3;

using EntryEditors = cEntryEditorTest;

cPalette LoadedCommonPalette() {
  cPalette palette;
  EXPECT_TRUE(palette.LoadFile(kCommonPaletteFile));
  return palette;
}

TEST_F(EntryEditors, APlayerGivenAFlowIsSavedWithThatFlowAndNothingElseChanged) {
  Save();
  const cPalette before = LoadedCommonPalette();
  OpenFromPalette(kCommonCharas, 1);
  EXPECT_EQ(Editor().Window()->windowTitle().toStdString(), "キャラデータ");
  EXPECT_FALSE(Stage().Window()->isEnabled()) << "the stage stays as it is while the editor is open";
  ShowPage(kFlowPage);
  Click(Front(), kIdFlowInsert);
  Choose(Front(), kIdFlowTrigger, 0);
  InsertCommand(kCmdLine, [](cDialog& d) {
    Type(d, kIdMoveSpeed, "7");
    Click(d, kIdOk);
  });
  InsertCommand(kCmdWait, [](cDialog& d) { Click(d, kIdOk); });
  EXPECT_EQ(ListRows(Front(), kIdFlowList).size(), 1);
  EXPECT_TRUE(ListRows(Front(), kIdFlowList).front().startsWith(QString::fromUtf8("×2 ")));
  // The desktop's close box of the stage window asks nothing and ends
  // nothing while the editor is open.
  StageEdit().m_bStageChanged = 1;  // what would ask to save first
  const size_t asked = prompt.Shown().size();
  QCloseEvent close;
  QApplication::sendEvent(Stage().Window(), &close);
  EXPECT_EQ(prompt.Shown().size(), asked);
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_TRUE(Stage().IsOpen());
  PressOk();
  EXPECT_EQ(OpenEntryEditor(), nullptr);
  EXPECT_TRUE(Stage().Window()->isEnabled());
  Save();

  cPalette after = LoadedCommonPalette();
  const cEdChara& player = after.m_vecCharaPlt.at(1);
  ASSERT_EQ(player.m_vFlow.size(), 1u);
  const cEdFlow& flow = player.m_vFlow[0];
  EXPECT_EQ(flow.m_nTrigger, 0);
  ASSERT_EQ(flow.m_vCmd.size(), 2u);
  EXPECT_EQ(flow.m_vCmd[0].m_nKind, kCmdWait) << "each insert stands in front of the selected row";
  EXPECT_EQ(flow.m_vCmd[1].m_nKind, kCmdLine);
  EXPECT_EQ(flow.m_vCmd[1].m_pMove->m_nSpeed, 7);
  cEdCmd line;
  line.SetUpNew(kCmdLine, false);
  EXPECT_EQ(flow.m_vCmd[1].m_nTime, line.m_nTime);

  // Every other byte as it was: the palette before, with this flow, saves
  // to the same file.
  cPalette expected = before;
  expected.m_vecCharaPlt[1].m_vFlow = player.m_vFlow;
  ASSERT_TRUE(expected.SaveFile("expected.cplt4"));
  EXPECT_EQ(ReadBytes("expected.cplt4"), ReadBytes(kCommonPaletteFile));
}

TEST_F(EntryEditors, CancelOnAnyEditorLeavesTheFilesAsTheyWere) {
  Save();
  const std::vector<uint8_t> saved = Files();
  const cPaletteSide sides[] = {kCommonBlocks, kCommonCharas, kCommonItems, kStageCharas};
  for (const cPaletteSide side : sides) {
    OpenFromPalette(side, 1);
    for (int page = 0; page < Editor().PageCount(); ++page) {
      ShowPage(page);
      if (Front().Item(kIdEntryName)) Type(Front(), kIdEntryName, "x");
    }
    PressCancel();
    EXPECT_EQ(OpenEntryEditor(), nullptr);
  }
  Save();
  EXPECT_EQ(Files(), saved);
}

TEST_F(EntryEditors, ACellOpenedByARightDoubleClickIsTheOnlyThingItsOkChanges) {
  cStage& stage = EditStage();
  const std::vector<cEdBlock> cells = stage.m_vecBlockCell;
  const std::vector<cEdBlock> entries = stage.m_vecBlockPlt;
  const int y = stage.m_nHeight - 1;
  const size_t index = static_cast<size_t>(stage.CellIndex(3, y));
  ASSERT_NE(cells.at(index).m_nGraphicNo, 0);
  Stage().ScrollTo(0, y);
  const QPoint at((3 - Stage().ScrollX()) * 32 + 16, (y - Stage().ScrollY()) * 32 + 16);

  bool opened = false;
  WhenModal([&opened](QWidget*) {
    opened = OpenEntryEditor() != nullptr;
    if (!opened) return;
    EXPECT_FALSE(Page(0).Item(kIdEntryPrev)->isEnabled()) << "a cell has no palette to go along";
    EXPECT_FALSE(Page(0).Item(kIdEntryNext)->isEnabled());
    // A placed block takes its name from its palette entry until the box
    // is cleared.
    EXPECT_FALSE(Enabled(Page(0), kIdEntryName));
    Click(Page(0), 1024);
    Type(Page(0), kIdEntryName, "一つだけ");
    PressOk();
  });
  QWidget* client = ClientOf(Stage());
  QMouseEvent dbl(QEvent::MouseButtonDblClick, at, client->mapToGlobal(at), Qt::RightButton, Qt::RightButton,
                  Qt::NoModifier);
  QApplication::sendEvent(client, &dbl);
  ASSERT_TRUE(opened);
  for (size_t i = 0; i < cells.size(); ++i) {
    if (i == index) EXPECT_EQ(ToUtf8(stage.m_vecBlockCell[i].m_strName), "一つだけ");
    else EXPECT_TRUE(stage.m_vecBlockCell[i] == cells[i]) << i;
  }
  EXPECT_TRUE(stage.m_vecBlockPlt == entries);
  EXPECT_EQ(StageEdit().m_iUndoNum, 1);
}

TEST_F(EntryEditors, CellsAndStageEntriesFollowTheCommonEntryTheyInheritFrom) {
  cStage& stage = EditStage();
  cEdChara& stageEntry = stage.m_vecCharaPlt.at(1);
  stageEntry.m_nInheritSrc = kInheritCommon;
  stageEntry.m_nInheritNo = 2;
  stageEntry.m_bbInherit.assign(kCharaInheritGroups, 0);
  stageEntry.m_bbInherit[23] = 1;  // HP
  stageEntry.m_nGraphicNo = 1;
  const size_t cell = static_cast<size_t>(stage.CellIndex(5, 5));
  stage.m_vecCharaCell.at(cell) = stageEntry;
  stage.m_vecCharaCell[cell].m_nInheritSrc = kInheritStage;
  stage.m_vecCharaCell[cell].m_nInheritNo = 1;

  OpenFromPalette(kCommonCharas, 2);
  ShowPage(2);
  Type(Front(), kIdHp, "321");
  PressOk();
  EXPECT_EQ(CommonPalette().m_vecCharaPlt.at(2).m_nHp, 321);
  EXPECT_EQ(stage.m_vecCharaPlt[1].m_nHp, 321);
  EXPECT_EQ(stage.m_vecCharaCell[cell].m_nHp, 321);
}

TEST_F(EntryEditors, ABoxTakesItsGroupFromTheSourceAndTakesItsControlsOutOfReach) {
  OpenFromPalette(kStageCharas, 1);
  ShowPage(0);
  cDialog& basic = Page(0);
  EXPECT_EQ(Rows(basic, kIdInheritSrc).size(), 2) << "a stage entry inherits from the common palette only";
  EXPECT_FALSE(Enabled(basic, 1024)) << "no source, no boxes";
  Choose(basic, kIdInheritSrc, kInheritCommon);
  EXPECT_TRUE(Enabled(basic, kIdInheritNo));
  EXPECT_EQ(Rows(basic, kIdInheritNo).size(), 2);
  Choose(basic, kIdInheritNo, 1);  // the slime, entry 2
  Click(basic, 1024);  // キャラ名
  EXPECT_EQ(Shown(basic, kIdEntryName), "スライム");
  EXPECT_FALSE(Enabled(basic, kIdEntryName));
  Click(Page(3), 1024);  // 行動, on another page
  EXPECT_EQ(ListRows(Page(3), kIdFlowList).size(), 1) << "the slime's flow came in";
  EXPECT_FALSE(Enabled(Page(3), kIdFlowInsert));

  Choose(basic, kIdInheritSrc, kInheritNone);
  EXPECT_FALSE(Enabled(basic, 1024));
  EXPECT_TRUE(Enabled(basic, kIdEntryName));
  EXPECT_EQ(Shown(basic, kIdEntryName), "スライム") << "the fields keep what they hold";
  PressOk();
  const cEdChara& entry = EditStage().m_vecCharaPlt.at(1);
  EXPECT_EQ(entry.m_nInheritSrc, kInheritNone);
  EXPECT_EQ(entry.m_bbInherit, std::vector<uint8_t>(kCharaInheritGroups, 0));
  EXPECT_EQ(entry.m_vFlow.size(), 1u);
}

TEST_F(EntryEditors, ArrowsGoAlongThePaletteKeepingWhatWasChangedAndThePageIsRemembered) {
  OpenFromPalette(kCommonBlocks, 1);
  EXPECT_EQ(Editor().Window()->findChild<QTabWidget*>()->tabBar()->isVisible(), false);
  EXPECT_FALSE(Enabled(Page(0), kIdEntryPrev));
  EXPECT_EQ(qobject_cast<QLabel*>(Page(0).Item(kIdEntryNumber))->text().toStdString(), "No.1");
  Type(Page(0), kIdEntryName, "床");
  Click(Page(0), kIdEntryNext);
  EXPECT_EQ(qobject_cast<QLabel*>(Page(0).Item(kIdEntryNumber))->text().toStdString(), "No.2");
  EXPECT_EQ(Shown(Page(0), kIdEntryName), "レンガ");
  EXPECT_EQ(ToUtf8(CommonPalette().m_vecBlockPlt[1].m_strName), "床");
  EXPECT_EQ(StageEdit().m_iPltIndex, 2) << "the palette follows";
  Click(Page(0), kIdEntryNext);
  EXPECT_FALSE(Enabled(Page(0), kIdEntryNext)) << "the last entry";
  PressCancel();

  OpenFromPalette(kCommonItems, 1);
  ShowPage(1);
  PressCancel();
  EXPECT_EQ(EditorConfig().m_anEditPage[kKindItem], 1);
  OpenFromPalette(kCommonItems, 1);
  EXPECT_EQ(Editor().Window()->findChild<QTabWidget*>()->currentIndex(), 1);
  PressCancel();
}

TEST_F(EntryEditors, TheFlowPageKeepsItsTriggerRulesAndItsListsTheirOwnClipboards) {
  OpenFromPalette(kCommonCharas, 2);
  ShowPage(kFlowPage);
  cDialog& page = Front();
  ASSERT_EQ(ListRows(page, kIdFlowList).size(), 1);
  Choose(page, kIdFlowGroup, 2);
  EXPECT_TRUE(Enabled(page, kIdFlowGroup));
  Choose(page, kIdFlowTrigger, kTriggerDeath);
  EXPECT_FALSE(Enabled(page, kIdFlowGroup));
  EXPECT_EQ(Shown(page, kIdFlowGroup), "-");
  EXPECT_EQ(qobject_cast<QLabel*>(page.Item(kIdFlowTriggerNote))->text().toStdString(),
            "※実行時間0の並列実行コマンド（P-0）のみ実行可");
  EXPECT_FALSE(Enabled(page, kIdFlowTargetRelated));
  Choose(page, kIdFlowTrigger, 6);
  EXPECT_TRUE(Enabled(page, kIdFlowTargetRelated));

  // A command copied in one flow goes into another: the clipboard is the
  // command list's.
  const QStringList commands = ListRows(page, kIdCmdList);
  ASSERT_FALSE(commands.isEmpty());
  ListKey(page, kIdCmdList, 0, Qt::Key_C);
  Click(page, kIdFlowInsert);
  EXPECT_EQ(ListRows(page, kIdCmdList).size(), 0) << "the new flow is selected";
  InsertCommand(kCmdWait, [](cDialog& d) { Click(d, kIdOk); });
  ListKey(page, kIdCmdList, 0, Qt::Key_V);
  ASSERT_EQ(ListRows(page, kIdCmdList).size(), 2);
  EXPECT_EQ(ListRows(page, kIdCmdList).front(), commands.front());
  EXPECT_TRUE(ListRows(page, kIdFlowList).front().startsWith(QString::fromUtf8("×2 "))) << "its row counts it at once";
  PressOk();
  const std::vector<cEdFlow>& flows = CommonPalette().m_vecCharaPlt.at(2).m_vFlow;
  ASSERT_EQ(flows.size(), 2u);
  EXPECT_EQ(flows[0].m_vCmd.size(), 2u);
  EXPECT_EQ(flows[1].m_nTrigger, 6);
  EXPECT_EQ(flows[1].m_nFlowGroup, 0);
}

TEST_F(EntryEditors, ABlockRefusesAPasteOfADistanceConditionAsAWhole) {
  cEdCond distance;
  distance.m_nKind = kCondDistance;
  cEdCond variable;
  variable.m_nKind = kCondCommonVar;
  CommonPalette().m_vecBlockPlt.at(1).m_vCond = {variable, distance};
  OpenFromPalette(kCommonBlocks, 1);
  cDialog& page = Page(0);
  const QStringList rows = ListRows(page, kIdAppearList);
  ASSERT_EQ(rows.size(), 2);
  ListKey(page, kIdAppearList, 1, Qt::Key_C);
  ListKey(page, kIdAppearList, 0, Qt::Key_V);
  EXPECT_EQ(prompt.LastText(), "「距離条件」の貼り付けはできません！");
  EXPECT_EQ(ListRows(page, kIdAppearList), rows);
  ListKey(page, kIdAppearList, 0, Qt::Key_C);
  ListKey(page, kIdAppearList, 0, Qt::Key_V);
  EXPECT_EQ(ListRows(page, kIdAppearList).size(), 3);
  PressCancel();
}

TEST_F(EntryEditors, ADamagedEntryOpensClampedAndOkWritesWhatLoadingWouldAccept) {
  cEdChara& damaged = CommonPalette().m_vecCharaPlt.at(2);
  damaged.m_bbInherit.assign(3, 1);
  damaged.m_nHp = 5000000;
  damaged.m_nAnimeSet = 900;
  damaged.m_nBodyHitRange = 77;
  damaged.m_vFlow.assign(2, cEdFlow());
  damaged.m_vFlow[0].m_nTrigger = 1;
  damaged.m_vFlow[1].m_nTrigger = 200;
  damaged.m_vFlow[1].m_vCmd.resize(999);
  for (cEdCmd& cmd : damaged.m_vFlow[1].m_vCmd) cmd.SetUpNew(kCmdWait, false);
  OpenFromPalette(kCommonCharas, 2);
  ShowPage(2);
  EXPECT_EQ(Shown(Front(), kIdHp), "999999");
  ShowPage(kFlowPage);
  ListAt(Front(), kIdFlowList)->setCurrentRow(1);
  EXPECT_EQ(ListRows(Front(), kIdCmdList).size(), 999);
  PressOk();

  const cEdChara& stored = CommonPalette().m_vecCharaPlt.at(2);
  EXPECT_EQ(stored.m_bbInherit.size(), static_cast<size_t>(kCharaInheritGroups));
  EXPECT_EQ(stored.m_nHp, 999999);
  EXPECT_LT(stored.m_nBodyHitRange, BodyHitTable.Size());
  EXPECT_LT(stored.m_vFlow.at(1).m_nTrigger, TriggerTable.Size());
  Save();
  cEdChara expected = stored;
  expected.m_bbInherit.assign(kCharaInheritGroups, 0);  // a common entry inherits nothing
  EXPECT_TRUE(LoadedCommonPalette().m_vecCharaPlt.at(2) == expected) << "loading changes nothing else of it";
}

TEST_F(EntryEditors, TheRightButtonOfAPaletteAndTheParameterToolOnTheStageOpenTheEditors) {
  constexpr int kParameterTool = 40087;
  cPaletteWindow& palette = Palettes().Palette(kCommonBlocks);
  Command(palette, kCmdRightEdits);
  Click(palette, QPoint(16, 16), Qt::RightButton);
  EXPECT_EQ(OpenEntryEditor(), nullptr) << "entry 0 is never opened";
  Click(palette, QPoint(32 + 16, 16), Qt::RightButton);
  ASSERT_NE(OpenEntryEditor(), nullptr);
  EXPECT_EQ(qobject_cast<QLabel*>(Page(0).Item(kIdEntryNumber))->text().toStdString(), "No.1");
  PressCancel();

  // An item under the block layer: the tool looks through the layers,
  // opens the item's own editor and comes back to the blocks.
  cStage& stage = EditStage();
  const size_t index = static_cast<size_t>(stage.CellIndex(2, 2));
  stage.m_vecItemCell.at(index) = CommonPalette().m_vecItemPlt.at(1);
  ASSERT_TRUE(IsOccupied(stage.m_vecItemCell[index]));
  const std::vector<cEdItem> cells = stage.m_vecItemCell;
  ASSERT_EQ(StageEdit().m_iLayer, kKindBlock);
  Command(palette, kParameterTool);
  Stage().ScrollTo(0, 0);
  bool opened = false;
  WhenModal([&opened](QWidget*) {
    opened = OpenEntryEditor() != nullptr;
    if (!opened) return;
    EXPECT_EQ(Editor().Window()->windowTitle().toStdString(), "アイテムデータ");
    Click(Page(0), 1024);  // the name stays its own once the box is cleared
    Type(Page(0), kIdEntryName, "宝");
    PressOk();
  });
  Click(Stage(), QPoint(2 * 32 + 16, 2 * 32 + 16));
  ASSERT_TRUE(opened);
  EXPECT_EQ(StageEdit().m_iLayer, kKindBlock);
  for (size_t i = 0; i < cells.size(); ++i) {
    if (i == index) EXPECT_EQ(ToUtf8(stage.m_vecItemCell[i].m_strName), "宝");
    else EXPECT_TRUE(stage.m_vecItemCell[i] == cells[i]) << i;
  }
}

TEST_F(EntryEditors, TheIdleStepDrawsTheEntrysPictureAnewAfterItsGraphicChanged) {
  OpenFromPalette(kCommonBlocks, 1);
  QWidget* picture = Page(0).Item(kIdGraphicPreview);
  const std::string number = Shown(Page(0), kIdGraphicNo);
  app->IdleStep();
  const QImage first = picture->grab().toImage();
  Type(Page(0), kIdGraphicNo, number == "5" ? "6" : "5");
  app->IdleStep();
  EXPECT_NE(picture->grab().toImage(), first);
  Type(Page(0), kIdGraphicNo, number.c_str());
  app->IdleStep();
  EXPECT_EQ(picture->grab().toImage(), first) << "the same graphic draws the same picture";
  PressCancel();
}

TEST_F(EntryEditors, AnItemsCommandsComeFromTheItemSelectorAndCancellingAnInsertLeavesNoRow) {
  constexpr int kItemWait = kCmdGameWait - kItemKindOffset;
  OpenFromPalette(kCommonItems, 1);
  ShowPage(1);
  const int before = ListRows(Front(), kIdCmdList).size();
  InsertCommand(kItemWait, [](cDialog& d) { Click(d, kIdCancel); });
  EXPECT_EQ(ListRows(Front(), kIdCmdList).size(), before) << "the new row goes again";
  InsertCommand(kItemWait, [](cDialog& d) { Click(d, kIdOk); });
  ASSERT_EQ(ListRows(Front(), kIdCmdList).size(), before + 1);
  PressOk();
  const cEdCmd& stored = CommonPalette().m_vecItemPlt.at(1).m_vCmd.at(0);
  EXPECT_EQ(stored.m_bItemCmd, 1);
  EXPECT_EQ(stored.m_nKind, kItemWait);
}

TEST_F(EntryEditors, ADefaultEntryIsEditedAloneWithNoPaletteToGoAlong) {
  Save();
  const std::vector<uint8_t> saved = Files();
  const std::vector<cEdBlock> brush = StageEdit().m_vecBrushBlock;
  bool opened = false;
  WhenModal([&opened](QWidget*) {
    opened = OpenEntryEditor() != nullptr;
    if (!opened) return;
    EXPECT_FALSE(Enabled(Page(0), kIdEntryPrev));
    EXPECT_FALSE(Enabled(Page(0), kIdEntryNext));
    EXPECT_EQ(Rows(Page(0), kIdInheritSrc).size(), 1) << "a default entry inherits from nothing";
    Type(Page(0), kIdEntryName, "新キャラ");
    PressOk();
  });
  EXPECT_TRUE(EditDefaultEntry(app->Manager(), Stage().Window(), kKindChara));
  ASSERT_TRUE(opened);
  EXPECT_EQ(ToUtf8(ProjectOption().m_DefChara.m_strName), "新キャラ");
  EXPECT_TRUE(StageEdit().m_vecBrushBlock == brush) << "the brush stays as it was";
  Save();
  EXPECT_EQ(Files(), saved) << "neither the stage nor the common palette changed";
}

TEST_F(EntryEditors, AnEntryWithListsBeyondItsEditorIsNotOpenedAndStaysAsItIs) {
  cEdChara& damaged = CommonPalette().m_vecCharaPlt.at(2);
  damaged.m_vFlow.assign(1, cEdFlow());
  damaged.m_vFlow[0].m_vCmd.resize(1000);
  const cEdChara before = damaged;
  PickEntry(kCommonCharas, 2);
  Command(Palettes().Palette(kCommonCharas), kCmdEdit);
  EXPECT_EQ(OpenEntryEditor(), nullptr);
  EXPECT_EQ(prompt.LastText(), "リストの数が編集できる上限を超えているため、このデータは開けません！");
  EXPECT_TRUE(Stage().Window()->isEnabled());

  // "→" onto it stores the entry shown and stays on it.
  OpenFromPalette(kCommonCharas, 1);
  Type(Page(0), kIdEntryName, "主");
  Click(Page(0), kIdEntryNext);
  EXPECT_EQ(qobject_cast<QLabel*>(Page(0).Item(kIdEntryNumber))->text().toStdString(), "No.1");
  EXPECT_EQ(ToUtf8(CommonPalette().m_vecCharaPlt[1].m_strName), "主");
  Type(Page(0), kIdEntryName, "主人");
  PressOk();
  EXPECT_EQ(ToUtf8(CommonPalette().m_vecCharaPlt[1].m_strName), "主人") << "the editor still wrote back to entry 1";
  EXPECT_TRUE(CommonPalette().m_vecCharaPlt[2] == before);
}

TEST_F(EntryEditors, TheListsBesideAGraphicAndAnAnimationSetHandBackThePickedRowOnlyOnOk) {
  OpenFromPalette(kCommonBlocks, 1);
  const std::string number = Shown(Page(0), kIdGraphicNo);
  InModal([](cDialog& d) {
    static_cast<cObjectListDialog&>(d).Pick(37);
    Click(d, kIdCancel);
  });
  Click(Page(0), kIdGraphicPick);
  EXPECT_EQ(Shown(Page(0), kIdGraphicNo), number);
  InModal([](cDialog& d) {
    QWidget* sheet = d.Item(1003);
    const QPoint at(2 * 32 + 16, 7 * 32 + 16);  // the third column's eighth picture
    ASSERT_EQ(cObjectListDialog::NumberAt(at.x(), at.y()), 37);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
      QMouseEvent click(type, at, sheet->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(sheet, &click);  // a double click closes as OK
    }
  });
  Click(Page(0), kIdGraphicPick);
  EXPECT_EQ(Shown(Page(0), kIdGraphicNo), "37");
  Choose(Page(0), kIdGraphicKind, kGraphicKindOwnBmp);
  EXPECT_FALSE(Enabled(Page(0), kIdGraphicPick)) << "an own bitmap has no sheet to pick from";
  PressCancel();
  EXPECT_NE(CommonPalette().m_vecBlockPlt[1].m_nGraphicNo, 37);

  const int sets = static_cast<int>(Database().m_AnimeSet.m_vecEntries.size());
  ASSERT_GE(sets, 2);
  OpenFromPalette(kCommonCharas, 1);
  ShowPage(1);
  const int16_t before = CommonPalette().m_vecCharaPlt[1].m_nAnimeSet;
  const int other = before == 1 ? 0 : 1;
  InModal([sets, other](cDialog& d) {
    auto* grid = d.Window()->findChild<cThumbnailGrid*>();
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->IndexAt(grid->CellRect(sets - 1).center()), sets - 1);
    EXPECT_EQ(grid->IndexAt(grid->CellRect(sets).center()), -1) << "no set beyond the list";
    static_cast<cAnimeSetListDialog&>(d).Pick(sets);  // beyond the list: nothing picked
    const QPoint at = grid->CellRect(other).center();
    QMouseEvent press(QEvent::MouseButtonPress, at, grid->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(grid, &press);
    QMouseEvent twice(QEvent::MouseButtonDblClick, at, grid->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(grid, &twice);  // a double click closes as OK
  });
  Click(Front(), kIdAnimeSetPick);
  EXPECT_EQ(OpenEntryEditor() != nullptr, true);
  PressOk();
  EXPECT_EQ(CommonPalette().m_vecCharaPlt[1].m_nAnimeSet, other);
}

}  // namespace
}  // namespace velmora::testing
