#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "core/EditConfig.h"
#include "core/PrjOption.h"
#include "objects/Palette.h"
#include "objects/PaletteTables.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageTools.h"
#include "support/TempProject.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogManager.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/Hook.h"
#include "ui/framework/WindowFrame.h"
#include "ui/palette/PaletteCommands.h"
#include "ui/palette/PaletteWindows.h"

namespace velmora {
namespace {

constexpr cPaletteSide kCommonBlocks{0, 0};
constexpr cPaletteSide kStageBlocks{1, 0};

std::vector<cEdBlock> NumberedBlocks(int count) {
  std::vector<cEdBlock> list(static_cast<size_t>(count));
  for (int i = 1; i < count; ++i) {
    list[static_cast<size_t>(i)].m_nGraphicNo = static_cast<int16_t>(i);
    list[static_cast<size_t>(i)].m_strName = "b" + std::to_string(i);
  }
  return list;
}

cClientArea* ClientOf(cPaletteWindow& window) { return window.Window()->findChild<cClientArea*>(); }

void Command(cDialog& dialog, int id) { dialog.SendCommand(MakeCommand(id, kNoticeClicked), 0); }

// The palette windows of a stage window standing at (50, 50), on a common
// palette of 20 blocks.
class PaletteWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeDirs("e_data");
    ProjectOption().SetUp();
    EditStage().InitDefault();
    StageEdit() = cStageEdit();
    CommonPalette().m_vecBlockPlt = NumberedBlocks(20);
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
    links.stageCommand = [this](int command) { stageCommands.push_back(command); };
    links.nextLayer = [this] { ++layerSwitches; };
    // The stage window repaints, and the palette windows with it.
    links.paletteChanged = [this] {
      ++stageRepaints;
      windows->Refresh();
    };
  }
  void TearDown() override { InstallPaletteLists(ePalette::Common, {}); }

  cPaletteWindows& Windows() {
    if (!windows) {
      windows = std::make_unique<cPaletteWindows>(manager, nullptr, config, links);
      EXPECT_TRUE(windows->Create(kStageFrame));
    }
    return *windows;
  }
  cPaletteWindow& CommonBlocks() { return Windows().Palette(kCommonBlocks); }

  const QRect kStageFrame{50, 50, 656, 520};
  testing::cTempProject project;
  cDialogManager manager;
  EditConfig config;
  cPaletteLinks links;
  std::vector<int> stageCommands;
  int layerSwitches = 0;
  int stageRepaints = 0;
  std::unique_ptr<cPaletteWindows> windows;
};

TEST_F(PaletteWindowTest, WindowsStandRightOfTheStageWindowSizedToTheirLists) {
  // The editor shows its stage window, and so knows the frames, before it
  // places the palettes.
  QWidget stageWindow;
  stageWindow.setGeometry(50, 50, 656, 520);
  stageWindow.show();
  ASSERT_TRUE(WaitUntilShown(stageWindow));
  const QRect stageFrame = FrameOf(stageWindow);
  windows = std::make_unique<cPaletteWindows>(manager, nullptr, config, links);
  ASSERT_TRUE(windows->Create(stageFrame));
  cPaletteWindow& common = CommonBlocks();
  EXPECT_EQ(QString::fromUtf8("[コモン]ブロックパレット"), common.Window()->windowTitle());
  EXPECT_EQ(QString::fromUtf8("[ステージ]アイテムパレット"), Windows().Palette({1, 2}).Window()->windowTitle());
  EXPECT_EQ(cPaletteWindow::kClientWidth, ClientOf(common)->width());
  EXPECT_EQ(3, common.Rows());
  EXPECT_EQ(64, ClientOf(common)->height());
  // The stage palette holds only its blank entry: one row, at least 32 dots.
  cPaletteWindow& stage = Windows().Palette(kStageBlocks);
  EXPECT_EQ(1, stage.Rows());
  EXPECT_EQ(32, ClientOf(stage)->height());

  // Shown, no frame covers another's title.
  Windows().ShowLayer(0);
  ASSERT_TRUE(WaitUntilShown(*common.Window()));
  ASSERT_TRUE(WaitUntilShown(*stage.Window()));
  const QRect commonFrame = common.Window()->frameGeometry();
  ASSERT_NE(commonFrame, common.Window()->geometry()) << "the platform draws no frame to test with";
  EXPECT_EQ(stageFrame.right() + 9, commonFrame.left());
  EXPECT_EQ(stageFrame.top() + 8, commonFrame.top());
  EXPECT_EQ(commonFrame.bottom() + 9, stage.Window()->frameGeometry().top());
  EXPECT_EQ(commonFrame.left(), stage.Window()->frameGeometry().left());
}

TEST_F(PaletteWindowTest, TheFrameIsKeptOnDestructionAndTakenAgain) {
  QWidget* window = CommonBlocks().Window();
  window->show();
  ASSERT_TRUE(WaitUntilShown(*window));
  // The author moves the window and shows one row more.
  window->move(320, 210);
  window->resize(window->width(), window->height() + 32);
  EXPECT_EQ(96, ClientOf(CommonBlocks())->height());
  const QRect frame = window->frameGeometry();
  windows.reset();
  const cWindowPlace& place = config.m_aPlace[1];
  EXPECT_EQ(frame, QRect(place.m_nX, place.m_nY, place.m_nWidth, place.m_nHeight));
  EditConfig saved;
  ASSERT_EQ(1, saved.LoadFile("e_data\\EditConfig.dat"));
  EXPECT_EQ(frame.height(), saved.m_aPlace[1].m_nHeight);

  window = CommonBlocks().Window();
  window->show();
  ASSERT_TRUE(WaitUntilShown(*window));
  EXPECT_EQ(frame, window->frameGeometry());
  EXPECT_EQ(96, ClientOf(CommonBlocks())->height());
}

TEST_F(PaletteWindowTest, ALongerWindowShowsMoreRowsUpToTheListsEnd) {
  CommonPalette().m_vecBlockPlt = NumberedBlocks(40);
  cPaletteWindow& palette = CommonBlocks();
  QWidget* window = palette.Window();
  window->show();
  ASSERT_TRUE(WaitUntilShown(*window));
  EXPECT_EQ(5, palette.Rows());
  EXPECT_EQ(4 * 32, ClientOf(palette)->height());
  window->resize(window->width(), window->height() + 20);
  palette.Repaint();
  EXPECT_EQ(4 * 32 + 20, ClientOf(palette)->height());
  EXPECT_EQ(4 * 32 + 20, palette.Picture().height()) << "the part of the fifth row shows too";
  EXPECT_EQ(4, palette.VertBar()->Bar()->pageStep());
  // The scroll bar keeps to the client's right edge, the full height.
  const QScrollBar* bar = palette.VertBar()->Bar();
  EXPECT_EQ(ClientOf(palette)->geometry().right() + 1, bar->geometry().left());
  EXPECT_EQ(ClientOf(palette)->height(), bar->height());
  // Beyond the list's end the window grows no further, nor wider.
  QApplication::processEvents();
  const QSize before = window->size();
  window->resize(before.width() + 100, before.height() + 400);
  EXPECT_EQ(5 * 32, ClientOf(palette)->height());
  EXPECT_EQ(before + QSize(0, 5 * 32 - (4 * 32 + 20)), window->size());
}

TEST_F(PaletteWindowTest, ALeftClickPicksTheEntryUnderTheMouse) {
  cPaletteWindow& window = CommonBlocks();
  window.Window()->show();
  QTest::mouseClick(ClientOf(window), Qt::LeftButton, {}, QPoint(3 * 32 + 5, 32 + 5));
  EXPECT_EQ(11, StageEdit().m_iPltIndex);
  EXPECT_EQ(0, StageEdit().m_iPltSource);
  EXPECT_EQ(11, StageEdit().m_vecBrushBlock.at(0).m_nGraphicNo);
  EXPECT_GT(stageRepaints, 0);
  EXPECT_TRUE(window.WantsIdle()) << "the picture waits for the idle step";
  Windows().IdleRepaint();
  EXPECT_FALSE(window.WantsIdle());
  EXPECT_EQ(qRgb(255, 255, 255), window.Picture().pixel(3 * 32, 32 + 10)) << "the selection frame";
  EXPECT_EQ(QString::fromUtf8("11 : b11"), window.Window()->findChild<QStatusBar*>()->findChild<QLabel*>()->text());

  // Below the last entry nothing is picked.
  QTest::mouseClick(ClientOf(window), Qt::LeftButton, {}, QPoint(7 * 32 + 5, 2 * 32 + 5));
  EXPECT_EQ(11, StageEdit().m_iPltIndex);
}

TEST_F(PaletteWindowTest, ABrushPickedInAPaletteWindowPaintsTheStage) {
  EditStage().m_vecBlockPlt = NumberedBlocks(4);
  AllocHistory(1, EditStage().m_nPitch, EditStage().m_nHeight);
  cPaletteWindow& window = Windows().Palette(kStageBlocks);
  window.Window()->show();
  QTest::mouseClick(ClientOf(window), Qt::LeftButton, {}, QPoint(2 * 32 + 16, 16));
  ASSERT_EQ(2, StageEdit().m_iPltIndex);

  StageMouse({4, 3, eStageButton::Left, eStageAction::Down, false});
  const cEdBlock& cell = EditStage().m_vecBlockCell.at(static_cast<size_t>(EditStage().CellIndex(4, 3)));
  EXPECT_EQ(2, cell.m_nGraphicNo);
  EXPECT_EQ("b2", cell.m_strName);
  EXPECT_EQ(kInheritStage, cell.m_nInheritSrc) << "placed with the stage entry as its source";
  EXPECT_EQ(2, cell.m_nInheritNo);

  // The blank entry erases.
  QTest::mouseClick(ClientOf(window), Qt::LeftButton, {}, QPoint(16, 16));
  StageMouse({4, 3, eStageButton::Left, eStageAction::Down, false});
  EXPECT_EQ(0, cell.m_nGraphicNo);
}

TEST_F(PaletteWindowTest, ToolAndRightModeButtonsSetTheEditStateOnEveryWindow) {
  cPaletteWindow& window = CommonBlocks();
  Command(window, 40047);
  EXPECT_EQ(3, StageEdit().m_iTool);
  EXPECT_EQ(3, StageEdit().m_iCursorMode);
  StageEdit().m_bClip = 1;
  Command(window, kCmdRightMenu);
  EXPECT_EQ(1, StageEdit().m_iRightMode);
  EXPECT_FALSE(StageEdit().m_bClip);
  for (QAction* action : Windows().Palette({1, 2}).Window()->findChild<QToolBar*>()->actions()) {
    const int command = action->data().toInt();
    const bool down = command == 40047 || command == kCmdRightMenu;
    if (action->isCheckable()) {
      EXPECT_EQ(down, action->isChecked()) << command;
    }
  }
}

TEST_F(PaletteWindowTest, ListCommandsChangeTheListAndItsScrollBar) {
  cPaletteWindow& window = CommonBlocks();
  SelectEntry(kCommonBlocks, 4);
  Command(window, kCmdInsertAtEnd);
  Command(window, kCmdDelete);
  EXPECT_EQ(20, PaletteCount(kCommonBlocks));
  EXPECT_EQ(0, StageEdit().m_iPltIndex);
  EXPECT_EQ(5, CommonPalette().m_vecBlockPlt[4].m_nGraphicNo);
  for (int i = 0; i < 5; ++i) Command(window, kCmdInsertAtEnd);
  EXPECT_EQ(4, window.Rows());
  EXPECT_EQ(2, window.VertBar()->Bar()->maximum());
}

TEST_F(PaletteWindowTest, KeysAndAcceleratorsGoToTheStageWindowAndTheWheelScrolls) {
  cPaletteWindow& window = CommonBlocks();
  Command(window, 40006);
  Command(window, 40011);
  EXPECT_EQ((std::vector<int>{40006, 40011}), stageCommands);
  cHookKeyEvent space(cHookKeyEvent::KeyDown, Qt::Key_Space, Qt::NoModifier);
  QApplication::sendEvent(window.Window(), &space);
  EXPECT_EQ(1, layerSwitches);

  // Three rows, two in view.
  auto wheel = [&](int delta) {
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(window.Window(), &event);
    return window.TopRow();
  };
  EXPECT_EQ(1, wheel(-120));
  EXPECT_EQ(1, wheel(-360));
  EXPECT_EQ(0, wheel(240));
}

TEST_F(PaletteWindowTest, OnlyTheCurrentLayersWindowsShowAndTheGroupWindowFollowsTheStage) {
  config.m_aPlace[4].m_bVisible = 0;
  EditStage().m_vecCharaCell[7].m_bGroup = 1;
  EditStage().m_vecCharaCell[7].m_nGroupNo = 42;
  Windows().ShowLayer(1);
  EXPECT_FALSE(CommonBlocks().Window()->isVisible());
  EXPECT_TRUE(Windows().Palette({0, 1}).Window()->isVisible());
  EXPECT_FALSE(Windows().Palette({1, 1}).Window()->isVisible());
  EXPECT_TRUE(Windows().Group().Window()->isVisible());
  EXPECT_TRUE(Windows().Group().IsDown(42));
  EXPECT_FALSE(Windows().Group().IsDown(41));
  Windows().ShowLayer(2);
  EXPECT_FALSE(Windows().Group().Window()->isVisible());
}

TEST(PalettePopupTest, EntriesWorkOnlyWhereTheyCan) {
  auto enabled = [](int index, bool clip, bool cut) {
    std::vector<int> ids;
    for (const cMenuItem& item : PalettePopup(index, clip, cut)) {
      if (item.command != 0 && item.enabled) ids.push_back(item.command);
    }
    return ids;
  };
  EXPECT_EQ((std::vector<int>{kCmdInsertAtEnd}), enabled(0, false, false));
  EXPECT_EQ((std::vector<int>{kCmdInsertCopiedAtEnd, kCmdInsertAtEnd}), enabled(0, true, true));
  EXPECT_EQ((std::vector<int>{kCmdCut, kCmdCopy, kCmdDelete, kCmdInsert, kCmdInsertAtEnd}), enabled(3, false, false));
  EXPECT_EQ((std::vector<int>{kCmdCut, kCmdCopy, kCmdDelete, kCmdInsert, kCmdInsertCopied, kCmdInsertCopiedAtEnd,
                              kCmdInsertAtEnd}),
            enabled(3, true, true));
  EXPECT_EQ(8u, enabled(3, true, false).size()) << "paste too";
}

}  // namespace
}  // namespace velmora
