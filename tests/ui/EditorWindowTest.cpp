#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "EditorOnSample.h"
#include "core/DoubleStart.h"
#include "core/SaveData.h"
#include "objects/Palette.h"
#include "core/SystemText.h"
#include "platform/FileSystem.h"
#include "sample/SampleProject.h"
#include "stage/StageBrush.h"
#include "stage/StageEdit.h"
#include "ui/app/EditorApp.h"
#include "ui/app/HostWindow.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"
#include "ui/stage/BrushPreview.h"

namespace velmora::testing {
namespace {

constexpr char kStage1[] = "data\\stg4\\Stage1.stg4_950";

// The editor on the sample project, seen through its stage window.
class EditorWindow : public cEditorOnSample {
 protected:
  cStageWindow* Stage() const { return app->StageWindow(); }
  QWidget* Client() const { return static_cast<cDialogWindow*>(Stage()->Window())->Client(); }
  void Command(int id) { Stage()->SendCommand(MakeCommand(id, kNoticeClicked), 0); }
  QString StatusText() const {
    return Stage()->Window()->findChild<QStatusBar*>()->findChild<QLabel*>()->text();
  }
  void Wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointF at(100, 100);
    QWheelEvent event(at, Client()->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Stage()->Window(), &event);
  }
  // A mouse event on the stage view at the middle of a visible cell.
  void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, int cellX, int cellY) {
    const QPointF at((cellX - Stage()->ScrollX()) * 32 + 10, (cellY - Stage()->ScrollY()) * 32 + 10);
    QMouseEvent event(type, at, Client()->mapToGlobal(at), button, held, QGuiApplication::keyboardModifiers());
    QApplication::sendEvent(Client(), &event);
  }
  void Drag(Qt::MouseButton button, cCellPos from, cCellPos to) {
    Send(QEvent::MouseButtonPress, button, button, from.x, from.y);
    Send(QEvent::MouseMove, Qt::NoButton, button, (from.x + to.x) / 2, (from.y + to.y) / 2);
    Send(QEvent::MouseMove, Qt::NoButton, button, to.x, to.y);
    Send(QEvent::MouseButtonRelease, button, Qt::NoButton, to.x, to.y);
  }
  static int BlockAt(const cStage& stage, int x, int y) {
    return stage.m_vecBlockCell[static_cast<size_t>(stage.CellIndex(x, y))].m_nGraphicNo;
  }

  // Runs the event loop until the stage window shows `title`, as it does
  // once it was built anew.
  bool WaitForTitle(const QString& title) {
    for (int i = 0; i < 50; ++i) {
      if (Stage() && Stage()->Window() && Stage()->Window()->windowTitle() == title) return true;
      QTest::qWait(20);
    }
    return false;
  }

};

TEST_F(EditorWindow, StartsOnTheStageEditedLastWithItsNameInTheTitle) {
  EXPECT_TRUE(app->Started());
  EXPECT_TRUE(StageEdit().m_bHasStage);
  EXPECT_TRUE(Stage()->Window()->windowTitle().endsWith(QString::fromLatin1("  ") + FromCp932(kStage1)));
  EXPECT_TRUE(FileExists("e_data\\SheetSize.dat"));
  EXPECT_NE(ReadText("Report_Editor.txt").find("App : ver 950"), std::string::npos);
  EXPECT_NE(ReadText("Report_Editor.txt").find("Sheet Rate = ("), std::string::npos);
  EXPECT_EQ(prompt.Shown().size(), 1u);  // nothing but the double start
}

TEST(EditorStart, DecliningASecondEditorLeavesOnlyTheReportLog) {
  cTempProject project;
  std::string error;
  ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
  const std::unique_ptr<cInstanceLock> otherEditor = HoldEditorLock();
  ASSERT_NE(otherEditor, nullptr);
  cScriptedPrompt prompt;
  prompt.QueueAnswer(eAnswer::No);
  {
    cEditorApp app(&prompt);
    EXPECT_FALSE(app.Start());
    app.ExitApp();
  }
  EXPECT_TRUE(FileExists("Report_Editor.txt"));
  EXPECT_FALSE(FileExists("e_data\\SheetSize.dat"));
  EXPECT_FALSE(FileExists("data_backup"));
}

TEST_F(EditorWindow, SecondStartTakesTheStoredSheetRate) {
  const cSheetRate first = app->SheetRate();
  StartEditor();
  EXPECT_DOUBLE_EQ(app->SheetRate().x, first.x);
  EXPECT_NE(ReadText("Report_Editor.txt").find("Sheet Rate : OK"), std::string::npos);
}

TEST_F(EditorWindow, WheelScrollsAndTheStatusBarNamesTheCell) {
  Stage()->ScrollTo(0, 0);
  Wheel(-120);
  EXPECT_EQ(Stage()->ScrollX(), 1);
  Wheel(240);
  EXPECT_EQ(Stage()->ScrollX(), 0);  // two cells back, held at the edge
  Wheel(-120, Qt::ControlModifier);
  EXPECT_EQ(Stage()->ScrollY(), std::min(1, EditStage().m_nHeight - 15));
  Stage()->ScrollTo(1, 0);
  QTest::mouseMove(Client(), QPoint(100, 40));
  Client()->repaint();
  EXPECT_EQ(Stage()->Cursor().x, 4);
  EXPECT_EQ(Stage()->Cursor().y, 1);
  EXPECT_EQ(StatusText(), QString::fromUtf8("座標 (4,1)"));
}

TEST_F(EditorWindow, AnEnlargedWindowShowsMoreCellsWithTheBarsAtItsEdges) {
  Stage()->Window()->resize(1200, 900);
  QApplication::processEvents();
  const QRect client = Client()->geometry();
  EXPECT_GT(client.width(), 1100);
  EXPECT_GT(client.height(), 700);
  Stage()->RenderView();
  EXPECT_EQ(Stage()->View().Width(), client.width());
  EXPECT_EQ(Stage()->View().Height(), client.height());
  const QScrollBar* horz = Stage()->HorzBar()->Bar();
  const QScrollBar* vert = Stage()->VertBar()->Bar();
  EXPECT_EQ(client.width() / 32, horz->pageStep());
  EXPECT_EQ(EditStage().m_nWidth - client.width() / 32, horz->maximum());
  EXPECT_EQ(0, vert->maximum()) << "the whole height of the stage is in view";
  EXPECT_EQ(QRect(client.left(), client.bottom() + 1, client.width(), horz->height()), horz->geometry());
  EXPECT_EQ(QRect(client.right() + 1, client.top(), vert->width(), client.height()), vert->geometry());
  // The centre cross marks the game's 640 x 480 screen from the view's top left.
  constexpr cColourRef kCross = 0x2040FF;
  const cPixelImage& view = Stage()->View().Image();
  EXPECT_EQ(kCross, view.ColourAt(304, 100));
  EXPECT_EQ(kCross, view.ColourAt(600, 256));
  EXPECT_NE(kCross, view.ColourAt(304, 600));
  EXPECT_NE(kCross, view.ColourAt(700, 256));
}

TEST_F(EditorWindow, ARestartBringsBackTheFrameAndCentresThePlayerInTheCellsItHolds) {
  cStage& stage = EditStage();
  const cCellPos player = stage.FindPlayer();
  ASSERT_GE(player.x, 0);
  std::swap(stage.m_vecCharaCell.at(static_cast<size_t>(stage.CellIndex(player.x, player.y))),
            stage.m_vecCharaCell.at(static_cast<size_t>(stage.CellIndex(40, player.y))));
  StageEdit().m_bStageChanged = 1;
  Command(40005);
  QWidget* window = Stage()->Window();
  window->move(120, 90);
  window->resize(900, 700);
  QApplication::processEvents();
  const QRect frame = window->frameGeometry();
  const QSize client = Client()->size();

  StartEditor();
  window = Stage()->Window();
  EXPECT_EQ(frame, window->frameGeometry());
  EXPECT_EQ(client, Client()->size());
  const int columns = client.width() / 32;
  EXPECT_EQ(std::min(40 - columns / 2, EditStage().m_nWidth - columns), Stage()->ScrollX());
}

TEST_F(EditorWindow, ClosingTheStageRebuildsAnEmptyWindow) {
  Command(40130);
  ASSERT_TRUE(WaitForTitle(QString::fromUtf8("ヴェルモラ")));
  EXPECT_FALSE(StageEdit().m_bHasStage);
  // Without a stage the view stays black and the stage commands are off.
  Stage()->RenderView();
  EXPECT_EQ(Stage()->View().Image().ColourAt(0, 0), 0u);
  EXPECT_TRUE(Stage()->HasHandler(eMenuAction::Database)) << "the database needs no stage";
}

TEST_F(EditorWindow, CloseBoxAsksAboutChangesAndCancelKeepsTheWindow) {
  StageEdit().m_bStageChanged = 1;
  prompt.QueueAnswer(eAnswer::Cancel);
  Stage()->Window()->close();
  ASSERT_FALSE(prompt.Shown().empty());
  EXPECT_EQ(prompt.Shown().back().caption, "保存確認");
  EXPECT_TRUE(Stage()->Window()->isVisible());
}

TEST_F(EditorWindow, SaveWritesTheChangedStageInPlace) {
  EditStage().m_strName = "renamed";
  StageEdit().m_bStageChanged = 1;
  Command(40005);
  EXPECT_FALSE(StageEdit().m_bStageChanged);
  cStage reread;
  ASSERT_TRUE(reread.LoadFile(kStage1));
  EXPECT_EQ(reread.m_strName, "renamed");
}

TEST_F(EditorWindow, PenRectangleRangeUndoRedoAndSaveReachTheFile) {
  cStageEdit& edit = StageEdit();
  Stage()->ScrollTo(0, 0);
  cEdBlock brush = CommonPalette().m_vecBlockPlt.at(1);
  ASSERT_NE(brush.m_nGraphicNo, 0);
  edit.m_vecBrushBlock.assign(1, brush);
  const int graphic = brush.m_nGraphicNo;
  ASSERT_EQ(BlockAt(EditStage(), 2, 1), 0);

  Drag(Qt::LeftButton, {2, 1}, {4, 1});  // pen
  EXPECT_EQ(BlockAt(EditStage(), 2, 1), graphic);
  EXPECT_EQ(BlockAt(EditStage(), 3, 1), graphic);
  EXPECT_EQ(BlockAt(EditStage(), 4, 1), graphic);
  EXPECT_TRUE(edit.m_bStageChanged);

  edit.m_iTool = kToolRect;
  edit.m_iCursorMode = 2;
  Drag(Qt::LeftButton, {8, 3}, {6, 2});  // right to left, bottom to top
  for (int y = 2; y <= 3; ++y) {
    for (int x = 6; x <= 8; ++x) EXPECT_EQ(BlockAt(EditStage(), x, y), graphic) << x << "," << y;
  }
  EXPECT_EQ(BlockAt(EditStage(), 5, 2), 0);

  Drag(Qt::RightButton, {3, 1}, {7, 2});  // the range becomes the brush
  EXPECT_EQ(edit.m_iBrushW, 5);
  EXPECT_EQ(edit.m_iBrushH, 2);
  EXPECT_EQ(edit.m_vecBrushBlock.at(0).m_nGraphicNo, graphic);  // (3,1)
  EXPECT_EQ(edit.m_vecBrushBlock.at(2).m_nGraphicNo, 0);        // (5,1)

  ASSERT_GE(edit.m_iUndoNum, 1);
  Command(40052);  // undo: the rectangle goes
  EXPECT_EQ(BlockAt(EditStage(), 6, 2), 0);
  EXPECT_EQ(BlockAt(EditStage(), 2, 1), graphic);
  Command(40053);  // redo
  EXPECT_EQ(BlockAt(EditStage(), 6, 2), graphic);

  Command(40005);
  EXPECT_FALSE(edit.m_bStageChanged);
  cStage reread;
  ASSERT_TRUE(reread.LoadFile(kStage1));
  EXPECT_EQ(BlockAt(reread, 3, 1), graphic);
  EXPECT_EQ(BlockAt(reread, 8, 3), graphic);
  EXPECT_EQ(BlockAt(reread, 5, 2), 0);
}

TEST_F(EditorWindow, UndoButtonsFollowTheHistory) {
  QAction* undo = nullptr;
  for (QAction* action : Stage()->Window()->findChild<QToolBar*>()->actions()) {
    if (action->data().toInt() == 40052) undo = action;
  }
  ASSERT_NE(undo, nullptr);
  EXPECT_FALSE(undo->isEnabled());
  Command(40052);  // nothing to undo: nothing happens
  EXPECT_FALSE(StageEdit().m_bStageChanged);
  Drag(Qt::LeftButton, {1, 1}, {1, 1});
  EXPECT_TRUE(undo->isEnabled());
}

// The pixels inside one cell of a view, less its two-dot border where the
// grid and frames lie.
std::vector<uint32_t> CellInside(const cSurface& view, int cellX, int cellY) {
  std::vector<uint32_t> pixels;
  for (int y = cellY * 32 + 3; y < cellY * 32 + 29; ++y) {
    for (int x = cellX * 32 + 3; x < cellX * 32 + 29; ++x) {
      uint32_t pixel = 0;
      std::memcpy(&pixel, view.Image().Pixel(x, y), sizeof pixel);
      pixels.push_back(pixel & 0xFFFFFF);
    }
  }
  return pixels;
}

bool AllBlack(const std::vector<uint32_t>& pixels) {
  return std::all_of(pixels.begin(), pixels.end(), [](uint32_t p) { return p == 0; });
}

TEST_F(EditorWindow, LineAndRectangleDragsShowWhatTheReleaseWrites) {
  cStageEdit& edit = StageEdit();
  Stage()->ScrollTo(0, 0);
  edit.m_vecBrushBlock.assign(1, CommonPalette().m_vecBlockPlt.at(1));
  for (int x = 2; x <= 6; ++x) ASSERT_EQ(BlockAt(EditStage(), x, 5), 0);
  edit.m_iLayer = 0;
  edit.m_iBrushW = edit.m_iBrushH = 1;
  edit.m_iTool = kToolLine;
  edit.m_iCursorMode = 1;
  Send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, 2, 5);
  Send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, 6, 5);
  Stage()->RenderView();
  const std::vector<uint32_t> previewed = CellInside(Stage()->View(), 4, 5);
  EXPECT_FALSE(AllBlack(previewed));
  EXPECT_TRUE(AllBlack(CellInside(Stage()->View(), 4, 6)));
  EXPECT_EQ(BlockAt(EditStage(), 4, 5), 0) << "nothing is written before the release";
  Send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, 6, 5);
  Stage()->RenderView();
  EXPECT_EQ(CellInside(Stage()->View(), 4, 5), previewed);
  EXPECT_NE(BlockAt(EditStage(), 4, 5), 0);

  // With Shift every layer's brush shows; items keep to the top right quarter.
  ASSERT_GT(CommonPalette().m_vecItemPlt.size(), 1u);
  edit.m_vecBrushItem.assign(1, CommonPalette().m_vecItemPlt.at(1));
  edit.m_iTool = kToolRect;
  edit.m_iCursorMode = 2;
  edit.m_bDrag = 1;
  edit.m_iRectX = 2;
  edit.m_iRectY = 8;
  cSurface currentLayer, allLayers;
  for (cSurface* out : {&currentLayer, &allLayers}) {
    out->CreateSurface(640, 480, 32, false);
    out->Fill(0);
    DrawBrushPreview(EditStage(), edit, {3, 9}, out == &allLayers, *out, 0, 0);
  }
  EXPECT_FALSE(AllBlack(CellInside(currentLayer, 3, 9)));
  EXPECT_TRUE(AllBlack(CellInside(currentLayer, 4, 9)));
  bool itemShown = false;
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x) {
      if (std::memcmp(currentLayer.Image().Pixel(x, y), allLayers.Image().Pixel(x, y), 3) == 0) continue;
      itemShown = true;
      EXPECT_TRUE(x % 32 >= 16 && y % 32 < 16 && x >= 64 && x < 128 && y >= 256 && y < 320) << x << "," << y;
    }
  }
  EXPECT_TRUE(itemShown);

  // A brush of a block and a gap tiles from the rectangle's own left edge,
  // also when the view starts inside the rectangle.
  edit.m_vecBrushBlock.resize(2);
  edit.m_iBrushW = 2;
  edit.m_iRectX = 0;
  currentLayer.Fill(0);
  DrawBrushPreview(EditStage(), edit, {3, 9}, false, currentLayer, 1, 0);
  EXPECT_TRUE(AllBlack(CellInside(currentLayer, 0, 9)));   // stage column 1: gap
  EXPECT_FALSE(AllBlack(CellInside(currentLayer, 1, 9)));  // stage column 2: block
  EXPECT_TRUE(AllBlack(CellInside(currentLayer, 2, 9)));
  edit.m_bDrag = 0;
}

// A range copied with the right button shows what it holds under the
// cursor from the moment it is let go, and follows the cursor without
// writing anything; a brush picked from a palette shows only its frame.
TEST_F(EditorWindow, CopiedRangeShowsItsContentUnderTheCursor) {
  cStageEdit& edit = StageEdit();
  Stage()->ScrollTo(0, 0);
  edit.m_iTool = kToolPen;
  edit.m_iCursorMode = kCursorPen;
  edit.m_vecBrushBlock.assign(1, CommonPalette().m_vecBlockPlt.at(1));
  Drag(Qt::LeftButton, {3, 1}, {3, 1});
  ASSERT_EQ(BlockAt(EditStage(), 4, 1), 0);

  Drag(Qt::RightButton, {3, 1}, {4, 1});  // a block and an empty cell
  Stage()->RenderView();
  const std::vector<uint32_t> block = CellInside(Stage()->View(), 3, 1);
  EXPECT_EQ(CellInside(Stage()->View(), 4, 1), block) << "the copy stands at the cursor at once";
  EXPECT_TRUE(AllBlack(CellInside(Stage()->View(), 5, 1)));

  Send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton, 6, 5);
  Stage()->RenderView();
  EXPECT_EQ(CellInside(Stage()->View(), 6, 5), block);
  EXPECT_TRUE(AllBlack(CellInside(Stage()->View(), 7, 5)));
  EXPECT_TRUE(AllBlack(CellInside(Stage()->View(), 4, 1)));
  EXPECT_EQ(BlockAt(EditStage(), 6, 5), 0);

  edit.m_iPltIndex = 1;  // picked from a palette
  Stage()->RenderView();
  EXPECT_TRUE(AllBlack(CellInside(Stage()->View(), 6, 5)));
}

TEST_F(EditorWindow, MinimisingHidesThePalettesUntilTheWindowComesBack) {
  cPaletteWindows& palettes = *Stage()->Palettes();
  QWidget* blocks = palettes.Palette({0, 0}).Window();
  QWidget* charas = palettes.Palette({0, 1}).Window();
  ASSERT_TRUE(blocks->isVisible());
  Stage()->Window()->setWindowState(Qt::WindowMinimized);
  EXPECT_FALSE(blocks->isVisible());
  EXPECT_TRUE(app->Host()->isMinimized());
  app->ActivationChanged(false);
  app->ActivationChanged(true);  // coming to the front brings the set back
  EXPECT_TRUE(blocks->isVisible());
  EXPECT_FALSE(Stage()->Window()->isMinimized());

  Stage()->Window()->setWindowState(Qt::WindowMinimized);
  Stage()->Window()->setWindowState(Qt::WindowNoState);  // restored from the task bar
  EXPECT_TRUE(blocks->isVisible());
  EXPECT_FALSE(charas->isVisible()) << "only the current layer's windows";
  EXPECT_FALSE(app->Host()->isMinimized());
  // The next idle step gives the focus back to the stage window.
  blocks->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(blocks));
  app->IdleStep();
  EXPECT_TRUE(QTest::qWaitForWindowActive(Stage()->Window()));

  // Without a minimise, activation leaves alone what a dialog has hidden.
  blocks->hide();
  app->ActivationChanged(true);
  EXPECT_FALSE(blocks->isVisible());
}

}  // namespace
}  // namespace velmora::testing
