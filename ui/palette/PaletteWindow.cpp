#include "ui/palette/PaletteWindow.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "core/SystemText.h"
#include "core/WindowPlace.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "stage/Stage.h"
#include "stage/StageBrush.h"
#include "stage/StageEdit.h"
#include "ui/controls/ScrollBar.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/Hook.h"
#include "ui/framework/IdleWake.h"
#include "ui/framework/QtText.h"
#include "ui/framework/StockDialogs.h"
#include "ui/framework/WindowFrame.h"
#include "ui/list/MoveDialog.h"
#include "ui/palette/PaletteCommands.h"
#include "ui/palette/SurfaceImage.h"
#include "ui/stage/StageViewRules.h"
#include "graphics/stageview/ObjectDraw.h"

namespace velmora {
namespace {

constexpr int kGap = 8;
constexpr cColourRef kFrameColour = Rgb(255, 255, 255);

// Titles by palette (common, stage) and kind.
constexpr std::array<std::array<const char*, 3>, 2> kTitles = {{
    {"[コモン]ブロックパレット", "[コモン]キャラパレット", "[コモン]アイテムパレット"},
    {"[ステージ]ブロックパレット", "[ステージ]キャラパレット", "[ステージ]アイテムパレット"},
}};

int RowsFor(int count) { return std::max(count - 1, 0) / cPaletteWindow::kColumns + 1; }

QRect WorkArea() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->availableGeometry() : QRect(0, 0, 1920, 1080);
}

template <class Fn>
void WithEntry(cPaletteSide side, int index, Fn&& fn) {
  const cPaletteLists lists = side.stagePlt ? EditStage().Palette() : CommonPalette().Lists();
  if (index < 0) return;
  const auto at = static_cast<size_t>(index);
  if (side.kind == 0 && at < lists.blocks->size()) fn((*lists.blocks)[at]);
  if (side.kind == 1 && at < lists.charas->size()) fn((*lists.charas)[at]);
  if (side.kind == 2 && at < lists.items->size()) fn((*lists.items)[at]);
}

cObjectLook Look(const cEdBlock& block) { return LookOf(block); }
cObjectLook Look(const cEdChara& chara) { return LookOf(chara, Database().m_AnimeSet.m_vecEntries); }
cObjectLook Look(const cEdItem& item) { return LookOf(item); }

}  // namespace

const cPaletteWindow::cCommand cPaletteWindow::kCommands[] = {
    {kCmdChangeCount, &cPaletteWindow::ChangeCount, false},
    {kCmdMoveEntries, &cPaletteWindow::MoveEntriesDialog, false},
    {kCmdEdit, &cPaletteWindow::Edit, false},
    {kCmdCut, &cPaletteWindow::Cut, false},
    {kCmdCopy, &cPaletteWindow::Copy, false},
    {kCmdPaste, &cPaletteWindow::Paste, true},
    {kCmdDelete, &cPaletteWindow::Delete, true},
    {kCmdInsert, &cPaletteWindow::Insert, true},
    {kCmdInsertCopied, &cPaletteWindow::InsertCopiedHere, true},
    {kCmdInsertCopiedAtEnd, &cPaletteWindow::InsertCopiedAtEnd, true},
    {kCmdInsertAtEnd, &cPaletteWindow::InsertAtEnd, true},
};

cPaletteWindow::cPaletteWindow(cDialogManager& manager, QWidget* parent, cPaletteSide side, cWindowPlace& place,
                               const cPaletteLinks& links)
    : cDialog(manager, parent), m_bStagePlt(side.stagePlt), m_iKind(side.kind), m_pRect(&place), m_links(links) {
  SetTitle(Ui(kTitles.at(side.stagePlt ? 1 : 0).at(static_cast<size_t>(side.kind))));
  SetLogName("DLG_PLT");
  SetWindowStyle(eWindowStyle::ToolWindow);
  WantStatusBar({0});
  WantToolBar();
  WantScrollBars();
  m_form.okCancel = false;
}

bool cPaletteWindow::Open(const QRect& stageFrame, const QRect& commonFrame) {
  if (!Create(0, false)) return false;
  PlaceWindow(stageFrame, commonFrame);
  return true;
}

void cPaletteWindow::OnInitDialog() {
  cDialog::OnInitDialog();
  BuildMenu();
  BuildToolBar();
  HorzBar()->Bar()->hide();
  Window()->findChild<cClientArea*>()->setFixedWidth(kClientWidth);
  SetAccel(0, PaletteAccelerators());
  QObject::connect(VertBar()->Bar(), &QScrollBar::valueChanged, Window(), [this](int row) {
    m_iTopRow = row;
    RequestRepaint();
  });
  RebuildScrollBar();
  ShowToolState();
}

void cPaletteWindow::BuildMenu() {
  auto* bar = new QMenuBar(Window());
  for (const cMenuItem& item : PaletteMenuBar()) {
    QAction* action = bar->addAction(Ui(item.text));
    const int command = item.command;
    QObject::connect(action, &QAction::triggered, bar, [this, command] {
      SendCommand(MakeCommand(command, kNoticeClicked), 0);
    });
  }
  Window()->layout()->setMenuBar(bar);
}

void cPaletteWindow::BuildToolBar() {
  SetToolImages(QPixmap::fromImage(PaletteToolStrip()), kToolImageSize);
  const std::vector<cToolButton>& buttons = PaletteToolButtons();
  AddToolButtons(buttons.data(), static_cast<int>(buttons.size()));
}

// ---- geometry ----

int cPaletteWindow::Rows() const { return RowsFor(PaletteCount(Side())); }

int cPaletteWindow::ClientHeight() const {
  return Window() ? Window()->findChild<cClientArea*>()->height() : 0;
}

// The list's rows, and no more than the work area holds below the frame's
// top.
int cPaletteWindow::MaxClientHeight(int frameTop) const {
  const QWidget* client = Window()->findChild<cClientArea*>();
  const int above = client->mapTo(Window(), QPoint(0, 0)).y();
  const int below = Window()->height() - above - client->height();
  const QMargins frame = FrameMargins(*Window());
  const int room = WorkArea().bottom() + 1 - frameTop - frame.top() - frame.bottom() - above - below;
  return std::max(std::min(Rows() * kCell, room), kMinClientHeight);
}

void cPaletteWindow::PlaceWindow(const QRect& stageFrame, const QRect& commonFrame) {
  QWidget* window = Window();
  cClientArea* client = window->findChild<cClientArea*>();
  // The bars are laid out around a client of the least height first, so
  // that the room left for the client is known.
  client->setFixedHeight(kMinClientHeight);
  window->adjustSize();
  const int top = m_bStagePlt ? commonFrame.bottom() + 1 + kGap : stageFrame.top() + kGap;
  const QPoint place(stageFrame.right() + 1 + kGap, top);
  MoveFrame(*window, place);
  client->setFixedHeight(std::clamp((Rows() - 1) * kCell, kMinClientHeight, MaxClientHeight(place.y())));
  window->adjustSize();
  // From here the author sizes the window, and the client follows it.
  client->setMinimumHeight(kMinClientHeight);
  UpdateHeightLimit();
  if (m_pRect->m_bStored) PlaceFrame(*window, FrameOfPlace(*m_pRect));
  if (window->y() < WorkArea().top()) MoveFrame(*window, QPoint(window->x(), kGap));
  RebuildScrollBar();
}

void cPaletteWindow::UpdateHeightLimit() {
  if (!Window()) return;
  Window()->findChild<cClientArea*>()->setMaximumHeight(MaxClientHeight(FrameOf(*Window()).top()));
}

void cPaletteWindow::StorePlace() {
  if (Window()) KeepPlace(*m_pRect, *Window());
}

void cPaletteWindow::RebuildScrollBar() {
  if (!VertBar()) return;
  UpdateHeightLimit();
  const int page = std::max(ClientHeight() / kCell, 1);
  const int last = std::max(Rows() - page, 0);
  // Rows left empty at the bottom by a resize or a shorter list scroll in.
  m_iTopRow = std::clamp(m_iTopRow, 0, last);
  QScrollBar* bar = VertBar()->Bar();
  const QSignalBlocker quiet(bar);
  bar->setRange(0, last);
  bar->setPageStep(page);
  bar->setValue(m_iTopRow);
}

// ---- state shown ----

void cPaletteWindow::ShowToolState() {
  const cStageEdit& edit = StageEdit();
  for (const cToolButton& button : PaletteToolButtons()) {
    if (button.command == 0) continue;
    SetToolButtonState(button.command, true, ButtonIsDown(button.command, edit.m_iTool, edit.m_iRightMode));
  }
}

void cPaletteWindow::RequestRepaint() {
  m_bRepaintWanted = true;
  WakeIdle();
}

void cPaletteWindow::Repaint() {
  static uint64_t repaints = 0;
  m_bRepaintWanted = false;
  m_nLastRepaint = ++repaints;
  if (!Window()) return;
  Render();
  Window()->findChild<cClientArea*>()->update();
}

void cPaletteWindow::OnPaint(QPainter& painter) {
  // Qt's own paints show the idle step's picture; only the first one,
  // before any idle step, draws.
  if (m_picture.isNull()) Render();
  painter.drawImage(0, 0, m_picture);
}

void cPaletteWindow::Render() {
  const int width = kClientWidth;
  const int height = std::max(ClientHeight(), 1);
  if (m_surface.Width() != width || m_surface.Height() != height) {
    m_surface.Free();
    if (!m_surface.CreateSurface(width, height, 32, false)) return;
  }
  if (VertBar()) m_iTopRow = VertBar()->Position();
  m_surface.Fill(0);
  DrawEntries();
  DrawFrames();
  m_picture = ToImage(m_surface);
  UpdateStatus();
}

void cPaletteWindow::DrawEntries() {
  const int count = PaletteCount(Side());
  const int rows = (m_surface.Height() + kCell - 1) / kCell;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const int index = column + (row + m_iTopRow) * kColumns;
      if (index >= count) return;
      WithEntry(Side(), index, [&](const auto& entry) { DrawObject(m_surface, column * kCell, row * kCell, Look(entry), false); });
    }
  }
}

void cPaletteWindow::DrawFrames() {
  const cStageEdit& edit = StageEdit();
  auto frameAt = [&](int index, int style, int width) {
    const int row = index / kColumns - m_iTopRow;
    m_surface.SetPen(style, width, kFrameColour);
    m_surface.Box((index % kColumns) * kCell, row * kCell, kCell, kCell);
    m_surface.FreePen();
  };
  if (edit.m_iPltSource == m_bStagePlt && edit.m_iPltIndex >= 0) frameAt(edit.m_iPltIndex, kPenSolid, 2);
  const bool clipHere = edit.m_bClip && edit.m_iClipSource == m_bStagePlt;
  if (clipHere && edit.m_iClipIndex >= 0 && edit.m_iClipIndex < PaletteCount(Side())) {
    frameAt(edit.m_iClipIndex, kPenDot, 1);
  }
}

void cPaletteWindow::UpdateStatus() {
  const cStageEdit& edit = StageEdit();
  std::string text;
  if (edit.m_iPltSource == m_bStagePlt) {
    WithEntry(Side(), edit.m_iPltIndex, [&](const auto& entry) {
      text = std::to_string(edit.m_iPltIndex) + " : " + entry.m_strName;
    });
  }
  SetStatusText(0, text);
}

// ---- input ----

int cPaletteWindow::IndexAt(int x, int y) const {
  if (x < 0 || y < 0 || x >= kClientWidth) return -1;
  return x / kCell + (y / kCell + m_iTopRow) * kColumns;
}

void cPaletteWindow::OnLButtonDown() {
  const int index = IndexAt(Mouse().x, Mouse().y);
  if (index < 0 || index >= PaletteCount(Side())) return;
  SelectEntry(Side(), index);
  Changed();
}

void cPaletteWindow::OnRButtonDown() {
  cStageEdit& edit = StageEdit();
  if (edit.m_iRightMode == 0) {
    edit.m_bStageChanged = 1;
    OpenEditor(IndexAt(Mouse().x, Mouse().y));
    return;
  }
  if (m_bStagePlt) edit.m_bStageChanged = 1;
  else edit.m_bCommonChanged = 1;
}

void cPaletteWindow::OnRButtonUp() {
  if (StageEdit().m_iRightMode != 1) return;
  const int index = IndexAt(Mouse().x, Mouse().y);
  if (index < 0) return;
  SelectEntry(Side(), index);
  Changed();
  if (index < PaletteCount(Side())) OpenPopup(index);
}

void cPaletteWindow::OpenPopup(int index) {
  const cStageEdit& edit = StageEdit();
  ShowPopup(PalettePopup(index, edit.m_bClip, edit.m_bClipCut));
}

bool cPaletteWindow::OnDialogMessage(QEvent& event) {
  switch (event.type()) {
    case QEvent::Resize:
      // The framework takes the new client size first.
      OnWindowMessage(event);
      RebuildScrollBar();
      RequestRepaint();
      return false;
    case QEvent::Wheel:
      Wheel(static_cast<QWheelEvent&>(event).angleDelta().y());
      return true;
    default: break;
  }
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  // The hook forwards Space as a key of its own, not as a plain key down.
  if (key.Kind() == cHookKeyEvent::KeyUp || key.Key() != Qt::Key_Space) return false;
  if (m_links.nextLayer) m_links.nextLayer();
  return true;
}

void cPaletteWindow::Wheel(int delta) {
  if (!VertBar()) return;
  VertBar()->SetPosition(VertBar()->Position() + WheelCells(delta));
}

// ---- commands ----

void cPaletteWindow::OnCommand(uint32_t wParam, intptr_t lParam) {
  // The close box hides the window: it exists as long as the stage window.
  if (CommandId(wParam) == kIdCancel) {
    if (Window()) Window()->hide();
    return;
  }
  cDialog::OnCommand(wParam, lParam);
}

void cPaletteWindow::OnDialogCommand(int id, int /*notice*/) {
  if (IsStageCommand(id)) {
    if (m_links.stageCommand) m_links.stageCommand(id);
    return;
  }
  cStageEdit& edit = StageEdit();
  if (const int tool = ToolOfCommand(id); tool >= 0) {
    edit.m_iTool = tool;
    edit.m_iCursorMode = CursorModeForTool(tool);
    Changed();
    return;
  }
  if (const int mode = RightModeOfCommand(id); mode >= 0) {
    edit.m_iRightMode = mode;
    EmptyPaletteClipboard();
    Changed();
    return;
  }
  for (const cCommand& command : kCommands) {
    if (command.id != id) continue;
    m_bListChanged = command.changesList;
    (this->*command.run)();
    if (m_bListChanged) AfterListCommand();
    return;
  }
}

void cPaletteWindow::AfterListCommand() {
  m_bListChanged = false;
  RefreshAfterListChange(Side());
  Changed();
}

void cPaletteWindow::Changed() {
  if (m_links.paletteChanged) m_links.paletteChanged();
  else RequestRepaint();
}

void cPaletteWindow::ChangeCount() {
  int32_t value = PaletteCount(Side()) - 1;
  if (!InputValue(Window(), Manager(), value, 1, kMaxPaletteEntries, SysText("データ数"))) return;
  m_bListChanged = SetEntryCount(Side(), value);
}

void cPaletteWindow::MoveEntriesDialog() {
  cMoveRequest request;
  cMoveDialog dialog(Manager(), Window(), request, PaletteCount(Side()), Window()->pos());
  if (dialog.DoModal(0) != 1) return;
  m_bListChanged = MoveEntries(Side(), request);
}

void cPaletteWindow::Edit() { OpenEditor(StageEdit().m_iPltIndex); }

// The editor stays open beside this window; when it closes, this window
// comes to the front and the brush takes the entry as it now is.
void cPaletteWindow::OpenEditor(int index) {
  const cPaletteSide side = Side();
  if (index < 1 || index >= PaletteCount(side)) return;
  SelectEntry(side, index);
  Changed();
  EditPaletteEntry(Manager(), Window(), side, index, [this, side](int) {
    TakeBrush(side);
    if (Window()) Window()->activateWindow();
    Changed();
  });
}

void cPaletteWindow::Cut() { CopyEntry(Side(), StageEdit().m_iPltIndex, true); Changed(); }
void cPaletteWindow::Copy() { CopyEntry(Side(), StageEdit().m_iPltIndex, false); Changed(); }
void cPaletteWindow::Paste() { m_bListChanged = PasteEntry(Side(), StageEdit().m_iPltIndex); }
void cPaletteWindow::Delete() { m_bListChanged = DeleteEntry(Side(), StageEdit().m_iPltIndex); }
void cPaletteWindow::Insert() { m_bListChanged = InsertEntry(Side(), StageEdit().m_iPltIndex); }
void cPaletteWindow::InsertCopiedHere() { m_bListChanged = InsertCopied(Side(), StageEdit().m_iPltIndex); }
void cPaletteWindow::InsertCopiedAtEnd() { m_bListChanged = InsertCopied(Side(), kAppendIndex); }
void cPaletteWindow::InsertAtEnd() { m_bListChanged = InsertEntry(Side(), kAppendIndex); }

}  // namespace velmora
