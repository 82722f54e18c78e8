#include "ui/stage/StageWindow.h"

#include <QStyle>
#include <QToolBar>
#include <algorithm>

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "stage/TestPlay.h"
#include "stage/StageBrush.h"
#include "stage/StageCommands.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"
#include "ui/framework/ToolStrip.h"
#include "ui/framework/WindowFrame.h"
#include "ui/bitmaptool/BitmapToolDialog.h"
#include "ui/database/DatabaseSheet.h"
#include "ui/options/ProjectOptionSheet.h"
#include "ui/stage/NewStageDialog.h"
#include "ui/stagesettings/StageSettingsSheet.h"
#include "ui/system/SystemSheet.h"
#include "ui/stagediff/StageCompare.h"
#include "ui/whereused/WhereUsedEntry.h"
#include "ui/worldmap/WorldMapEntry.h"

namespace velmora {
namespace {

constexpr int kDefaultX = 50;
constexpr int kDefaultY = 50;
constexpr int kDefaultClientWidth = 640;
constexpr int kDefaultClientHeight = 480;
constexpr int kMinClientWidth = 384;
constexpr int kMinClientHeight = 160;
constexpr int kStatusCoordinatePart = 0;
constexpr int kStatusPartWidth = 255;
// Beside the coordinates, which each repaint of the view writes anew.
constexpr int kStatusTestPlayPart = 1;
constexpr int kStatusTestPlayWidth = 0;
constexpr int kToolImage = 16;

constexpr cToolStripFile kToolStrips[] = {{"e_bmp\\ToolBar_Palette.bmp", 3}, {"e_bmp\\ToolBar_TestPlay.bmp", 2}};

// The platform's own pictures for new, open, save, undo and redo.
constexpr QStyle::StandardPixmap kStandardImages[kStandardToolImages] = {
    QStyle::SP_FileIcon, QStyle::SP_DialogOpenButton, QStyle::SP_DialogSaveButton, QStyle::SP_ArrowBack,
    QStyle::SP_ArrowForward};

cWindowPlace& StagePlace() { return EditorConfig().m_aPlace[EditConfig::PlaceStageEditor]; }

bool HasStoredPlace(const cWindowPlace& place) { return place.m_bStored && place.m_nWidth > 0 && place.m_nHeight > 0; }

}  // namespace

cStageWindow::cStageWindow(cDialogManager& manager, QWidget* parent, cStageWindowHost& host)
    : cDialog(manager, parent), m_host(host) {
  SetLogName("stage");
  SetWindowStyle(eWindowStyle::MainWindow);
  WantScrollBars();
  WantToolBar();
  WantStatusBar({kStatusPartWidth, kStatusTestPlayWidth});
  m_form.okCancel = false;
  InstallBuiltInHandlers();
}

cStageWindow::~cStageWindow() { StorePlace(); }

bool cStageWindow::Open() {
  if (!Create(0, false)) return false;
  PlaceWindow();
  Window()->show();
  // The palettes are placed by this window's frame, and a stored size is
  // the frame's: both need the frame that the window manager gives.
  WaitUntilShown(*Window());
  RestorePlace();
  ScrollToStart();
  OpenPalettes();
  InstallDatabaseWindow(*this);
  return true;
}

void cStageWindow::OpenPalettes() {
  cPaletteLinks links;
  links.stageCommand = [this](int command) { SendCommand(MakeCommand(command, kNoticeAccelerator), 0); };
  links.nextLayer = [this] { OnKey(Qt::Key_Space, false); };
  links.paletteChanged = [this] { Repaint(); };
  m_pPalettes = std::make_unique<cPaletteWindows>(Manager(), Window(), EditorConfig(), links);
  m_pPalettes->Create(FrameOf(*Window()));
  m_pPalettes->ShowLayer(StageEdit().m_iLayer);
  using A = eMenuAction;
  const std::pair<A, cPaletteWindows::eShown> toggles[] = {{A::CommonPalettes, cPaletteWindows::kCommonShown},
                                                           {A::StagePalettes, cPaletteWindows::kStageShown},
                                                           {A::GroupWindow, cPaletteWindows::kGroupShown}};
  for (const auto& [action, shown] : toggles) {
    SetHandler(action, [this, shown = shown] {
      m_pPalettes->ToggleShown(shown, StageEdit().m_iLayer);
      UpdateStates();
    });
  }
  InstallSystemWindow(*this);
  InstallStageSettings(*this);
  InstallWorldMapEntry(*this);
  InstallProjectOptions(*this);
  InstallBitmapTool(*this);
  InstallWhereUsedWindow(*this);
  InstallStageCompare(*this);
}

bool cStageWindow::IsChecked(const cStageCommand& command) const {
  using A = eMenuAction;
  const int layer = static_cast<int>(command.action) - static_cast<int>(A::LayerBlock);
  if (layer >= 0 && layer < 3) return StageEdit().m_iLayer == layer;
  if (!m_pPalettes) return false;
  if (command.action == A::CommonPalettes) return m_pPalettes->IsShown(cPaletteWindows::kCommonShown);
  if (command.action == A::StagePalettes) return m_pPalettes->IsShown(cPaletteWindows::kStageShown);
  if (command.action == A::GroupWindow) return m_pPalettes->IsShown(cPaletteWindows::kGroupShown);
  return false;
}

void cStageWindow::OnInitDialog() {
  cDialog::OnInitDialog();
  RefreshTitle();
  SetStatusText(kStatusCoordinatePart, "");
  ShowTestPlayStatus();
  SetMenuBar(StageMenu());
  BuildToolBar();
  UpdateStates();
  SetAccel(0, StageAccelerators());
  if (onLayerChanged) onLayerChanged(StageEdit().m_iLayer);
}

void cStageWindow::BuildToolBar() {
  SetToolImages(ToolStrip(kStandardImages, kToolStrips, kToolImage), kToolImage);
  const std::vector<cToolButton>& buttons = StageToolButtons();
  AddToolButtons(buttons.data(), static_cast<int>(buttons.size()));
}

// ---- geometry ----

void cStageWindow::PlaceWindow() {
  // The first window is sized around its client: menu, tool and status
  // bars and the scroll bars come on top of the drawing area.
  SizeAroundClient({kDefaultClientWidth, kDefaultClientHeight}, {kMinClientWidth, kMinClientHeight});
  Window()->move(kDefaultX, kDefaultY);
  RestorePlace();
}

void cStageWindow::RestorePlace() {
  const cWindowPlace& place = StagePlace();
  if (HasStoredPlace(place)) PlaceFrame(*Window(), FrameOfPlace(place));
}

void cStageWindow::StorePlace() {
  if (!Window()) return;
  KeepPlace(StagePlace(), *Window());
  EditorConfig().SaveFile(PathOf(ePath::EditConfig));
}

cViewFrame cStageWindow::Frame() const {
  const cGeometry& geometry = Geometry();
  const cStage& stage = EditStage();
  return {geometry.clientWidth, geometry.clientHeight, ScrollX(), ScrollY(), stage.m_nWidth, stage.m_nHeight};
}

// The view of a stage just opened, for the size the window came up with.
void cStageWindow::ScrollToStart() {
  UpdateScrollRanges();
  if (!StageEdit().m_bHasStage) return;
  const QWidget* client = static_cast<cDialogWindow*>(Window())->Client();
  const cCellPos start = InitialScroll(EditStage(), client->width() / kCellDots, client->height() / kCellDots);
  ScrollTo(start.x, start.y);
}

void cStageWindow::UpdateScrollRanges() {
  if (!Window()) return;
  const QWidget* client = static_cast<cDialogWindow*>(Window())->Client();
  const cBarRange horz = HorzBarRange(EditStage().m_nWidth, client->width());
  const cBarRange vert = VertBarRange(EditStage().m_nHeight, client->height());
  SetScrollRanges(horz.maximum, horz.page, vert.maximum, vert.page);
}

// ---- commands ----

void cStageWindow::SetHandler(eMenuAction action, cHandler handler) {
  if (handler) m_handlers[action] = std::move(handler);
  else m_handlers.erase(action);
  UpdateStates();
}

bool cStageWindow::IsEnabled(const cStageCommand& command) const {
  if (!HasHandler(command.action)) return false;
  return command.withoutStage || StageEdit().m_bHasStage;
}

void cStageWindow::UpdateStates() {
  if (!IsOpen()) return;
  const cStageEdit& edit = StageEdit();
  for (const cStageCommand& command : StageCommands()) {
    bool enabled = IsEnabled(command);
    if (command.action == eMenuAction::Undo) enabled = enabled && edit.m_iUndoNum >= 1;
    if (command.action == eMenuAction::Redo) enabled = enabled && edit.m_iRedoNum >= 1;
    const bool checked = IsChecked(command);
    for (int id : command.ids) {
      if (id == 0) continue;
      SetMenuState(id, enabled, checked);
      SetToolButtonState(id, enabled, checked);
    }
  }
}

void cStageWindow::RefreshTitle() {
  if (IsOpen()) Window()->setWindowTitle(FromCp932(StageWindowTitle(StageEdit().m_strPath)));
}

void cStageWindow::ShowTestPlayStatus() {
  SetStatusText(kStatusTestPlayPart, StageEdit().m_bTestPlay ? SysText("テストプレイ中です…") : "");
}

void cStageWindow::OnCommand(uint32_t wParam, intptr_t /*lParam*/) {
  const int id = CommandId(wParam);
  if (id == kIdCancel) return;  // Escape; only the close box closes this window
  const cStageCommand* command = FindStageCommand(id);
  if (!command || !IsEnabled(*command)) return;
  if (command->needsStage && !StageEdit().m_bHasStage) return;
  // The handler may end with a rebuild that deletes this window.
  const cHandler handler = m_handlers[command->action];
  handler();
}

// A different stage came in (the stage logic built its history): a new
// window for it.
void cStageWindow::AfterStageChange() {
  UpdateStates();
  m_host.RequestRebuild();
}

void cStageWindow::SetLayer(int layer) {
  SwitchLayer(layer);
  StageEdit().m_iReturnLayer = layer;
}

void cStageWindow::LayerShown(int /*layer*/) {
  UpdateStates();
  const int layer = StageEdit().m_iLayer;
  if (onLayerChanged) onLayerChanged(layer);
  if (m_pPalettes) m_pPalettes->ShowLayer(layer);
  Repaint();
}

void cStageWindow::AfterEdit() {
  StageEdit().m_bStageChanged = 1;
  UpdateStates();
  Repaint();
}

void cStageWindow::Clear(eClearLayers which) {
  if (ClearLayersCommand(which)) AfterEdit();
}

void cStageWindow::InstallBuiltInHandlers() {
  using A = eMenuAction;
  m_handlers[A::New] = [this] {
    cNewStageDialog dialog(Manager(), Window());
    if (dialog.DoModal(kDisableOthers) == 1) AfterStageChange();
  };
  // A stage that stays (the author stopped, or the file was not read)
  // keeps this window; its history was made anew.
  m_handlers[A::Open] = [this] {
    if (OpenStage()) AfterStageChange();
    else UpdateStates();
  };
  m_handlers[A::Close] = [this] {
    if (CloseStage()) AfterStageChange();
  };
  m_handlers[A::Save] = [this] {
    SaveCommonPalette();
    SaveStage(1);
    RefreshTitle();
  };
  m_handlers[A::SaveAs] = [this] {
    SaveCommonPalette();
    SaveStage(0);
    RefreshTitle();
  };
  m_handlers[A::SaveCommon] = [] { SaveCommonPalette(); };
  m_handlers[A::LoadStagePalette] = [this] {
    if (!LoadStagePalette()) return;
    StageEdit().m_bStageChanged = 1;
    AfterStageChange();
  };
  m_handlers[A::SaveStagePalette] = [] { SaveStagePalette(); };
  m_handlers[A::Undo] = [this] {
    if (!CanUndo()) return;
    Undo();
    AfterEdit();
  };
  m_handlers[A::Redo] = [this] {
    if (!CanRedo()) return;
    Redo();
    AfterEdit();
  };
  m_handlers[A::ClearAll] = [this] { Clear(eClearLayers::All); };
  m_handlers[A::ClearBlocks] = [this] { Clear(eClearLayers::Blocks); };
  m_handlers[A::ClearCharas] = [this] { Clear(eClearLayers::Characters); };
  m_handlers[A::ClearItems] = [this] { Clear(eClearLayers::Items); };
  m_handlers[A::TestPlay] = [] { TestPlay(0); };
  m_handlers[A::TestPlayAll] = [] { TestPlay(1); };
  m_handlers[A::LayerBlock] = [this] { SetLayer(0); };
  m_handlers[A::LayerChara] = [this] { SetLayer(1); };
  m_handlers[A::LayerItem] = [this] { SetLayer(2); };
}

// ---- closing ----

void cStageWindow::OnCloseBox() {
  if (AskSaveBeforeExit() != 1) return;
  m_host.CloseEditor();
}

}  // namespace velmora
