#include "ui/worldmap/WorldMapWindow.h"

#include <QPainter>
#include <QTimer>
#include <algorithm>

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "core/SystemText.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/worldview/WorldView.h"
#include "project/WorldMap.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"
#include "ui/framework/ToolStrip.h"
#include "ui/framework/WindowFrame.h"
#include "ui/palette/SurfaceImage.h"
#include "ui/worldmap/WorldEventDialog.h"
#include "ui/worldmap/WorldSettingsDialog.h"

namespace velmora {
namespace {

constexpr int kDefaultClientWidth = 640;
constexpr int kDefaultClientHeight = 480;
constexpr int kMinClientWidth = 192;
constexpr int kMinClientHeight = 160;
constexpr int kStatusPartWidth = 255;
constexpr int kToolImage = 16;

constexpr QStyle::StandardPixmap kStandardImages[] = {QStyle::SP_DialogSaveButton, QStyle::SP_ArrowBack,
                                                      QStyle::SP_ArrowForward};
constexpr cToolStripFile kToolStrips[] = {{"e_bmp\\ToolBar_WorldPalette.bmp", 2}};

cWindowPlace& PlaceOf(EditConfig::ePlace place) { return EditorConfig().m_aPlace[place]; }

}  // namespace

cWorldMapWindow::cWorldMapWindow(cDialogManager& manager, const cWorldMapLinks& links)
    : cDialog(manager, nullptr), m_links(links), m_editor(WorldMap(), WorldEdit(), EditorConfig()) {
  SetTitle(Ui("ワールドマップ"));
  SetLogName("DLG_WORLDMAP");
  SetWindowStyle(eWindowStyle::MainWindow);
  WantScrollBars();
  WantToolBar();
  WantStatusBar({kStatusPartWidth});
  m_form.okCancel = false;
  m_editor.editEvent = [this](cEdWorldEvent& event, bool /*isNew*/) { return EditEvent(event); };
}

cWorldMapWindow::~cWorldMapWindow() {
  ClosePalettes();
  if (Window()) KeepPlace(PlaceOf(EditConfig::PlaceWorldMap), *Window());
}

bool cWorldMapWindow::Open(const QRect& anchor) {
  if (!Create(0, false)) return false;
  PlaceWindow(anchor);
  Window()->show();
  // A kept size is the frame's, which only a shown window has.
  WaitUntilShown(*Window());
  if (PlaceOf(EditConfig::PlaceWorldMap).m_bStored)
    PlaceFrame(*Window(), FrameOfPlace(PlaceOf(EditConfig::PlaceWorldMap)));
  UpdateScrollRanges();
  OpenPalette();
  UpdateStates();
  return true;
}

void cWorldMapWindow::OnInitDialog() {
  cDialog::OnInitDialog();
  SetStatusText(0, "");
  SetMenuBar(WorldMenu());
  BuildToolBar();
  SetAccel(0, WorldAccelerators());
}

void cWorldMapWindow::BuildToolBar() {
  SetToolImages(ToolStrip(kStandardImages, kToolStrips, kToolImage), kToolImage);
  const std::vector<cToolButton>& buttons = WorldToolButtons();
  AddToolButtons(buttons.data(), static_cast<int>(buttons.size()));
}

// ---- geometry ----

void cWorldMapWindow::PlaceWindow(const QRect& anchor) {
  SizeAroundClient({kDefaultClientWidth, kDefaultClientHeight}, {kMinClientWidth, kMinClientHeight});
  MoveFrame(*Window(), anchor.topLeft());
  const cWindowPlace& place = PlaceOf(EditConfig::PlaceWorldMap);
  if (place.m_bStored) PlaceFrame(*Window(), FrameOfPlace(place));
}

cViewFrame cWorldMapWindow::Frame() const {
  const cGeometry& geometry = Geometry();
  const cEdWorldMap& map = WorldMap();
  return {geometry.clientWidth, geometry.clientHeight, ScrollX(), ScrollY(), map.m_nWidth, map.m_nHeight};
}

void cWorldMapWindow::UpdateScrollRanges() {
  const cGeometry& geometry = Geometry();
  const cBarRange horz = HorzBarRange(WorldMap().m_nWidth, geometry.clientWidth);
  const cBarRange vert = VertBarRange(WorldMap().m_nHeight, geometry.clientHeight);
  SetScrollRanges(horz.maximum, horz.page, vert.maximum, vert.page);
}

void cWorldMapWindow::ShowEvent(int index) {
  const std::vector<cEdWorldEvent>& events = WorldMap().m_vecEvents;
  if (index < 0 || static_cast<size_t>(index) >= events.size()) return;
  SetMode(kWorldEventMode);
  const cEdWorldEvent& event = events[static_cast<size_t>(index)];
  const cGeometry& geometry = Geometry();
  ScrollTo(std::max(0, event.m_iX - geometry.clientWidth / kCellDots / 2),
           std::max(0, event.m_iY - geometry.clientHeight / kCellDots / 2));
  m_cursor = {event.m_iX, event.m_iY};
  UpdateStates();
  Repaint();
}

void cWorldMapWindow::OnSize() {
  UpdateScrollRanges();
  Repaint();
}

// ---- painting ----

void cWorldMapWindow::RenderView() {
  FitView(m_view, Geometry().clientWidth, Geometry().clientHeight);
  RenderWorldView(WorldMap(), m_view, ScrollX(), ScrollY(), WorldCursorFrame(WorldEdit(), m_cursor.x, m_cursor.y));
}

void cWorldMapWindow::OnPaint(QPainter& painter) {
  RenderView();
  DrawView(painter, m_view);
  SetStatusText(0, CursorStatusText(m_cursor));
}

void cWorldMapWindow::Repaint() {
  if (IsOpen()) static_cast<cDialogWindow*>(Window())->Client()->update();
  if (m_pChipPalette) m_pChipPalette->Refresh();
}

// ---- commands ----

void cWorldMapWindow::UpdateStates() {
  if (!IsOpen()) return;
  const cEdWorldEditState& state = WorldEdit();
  for (const cWorldCommand& command : WorldCommands()) {
    bool enabled = true;
    if (command.action == eWorldAction::Undo) enabled = state.m_history.UndoStates() > 0;
    if (command.action == eWorldAction::Redo) enabled = state.m_history.RedoStates() > 0;
    const bool checked = (command.action == eWorldAction::ChipMode && state.m_iMode == kWorldChipMode) ||
                         (command.action == eWorldAction::EventMode && state.m_iMode == kWorldEventMode);
    SetMenuState(command.id, enabled, checked);
    SetToolButtonState(command.id, enabled, checked);
  }
}

void cWorldMapWindow::OnCommand(uint32_t wParam, intptr_t /*lParam*/) {
  const int id = CommandId(wParam);
  eWorldPopup popup{};
  if (const cWorldCommand* command = FindWorldCommand(id)) RunCommand(command->action);
  else if (WorldPopupOf(id, popup)) m_editor.RunPopup(popup, m_cursor.x, m_cursor.y);
  UpdateStates();
  Repaint();
}

void cWorldMapWindow::RunCommand(eWorldAction action) {
  using A = eWorldAction;
  const std::pair<A, std::function<void()>> actions[] = {
      {A::Save, [this] { m_editor.Save(); }},
      {A::Exit, [this] { AskClose(); }},
      {A::Undo, [this] { m_editor.Undo(); }},
      {A::Redo, [this] { m_editor.Redo(); }},
      {A::ChipMode, [this] { SetMode(kWorldChipMode); }},
      {A::EventMode, [this] { SetMode(kWorldEventMode); }},
      {A::ClearChips, [this] { m_editor.ClearChips(); }},
      {A::ClearEvents, [this] { m_editor.ClearEvents(); }},
      {A::Settings, [this] { OpenSettings(); }},
  };
  for (const auto& [each, run] : actions) {
    if (each == action) run();
  }
}

// Other windows take no input while a dialog of the map runs.
bool cWorldMapWindow::RunChildDialog(cDialog& dialog) { return dialog.DoModal(kDisableOthers) == 1; }

bool cWorldMapWindow::EditEvent(cEdWorldEvent& event) {
  cWorldEventDialog dialog(Manager(), Window(), event);
  return RunChildDialog(dialog);
}

void cWorldMapWindow::OpenSettings() {
  cWorldSettings settings = SettingsOf(WorldMap());
  cWorldSettingsDialog dialog(Manager(), Window(), settings);
  if (!RunChildDialog(dialog)) return;
  m_editor.ApplySettings(settings);
  LoadWorldBackground(settings.backPath);
  UpdateScrollRanges();
}

// ---- modes and palettes ----

cWorldPaletteLinks cWorldMapWindow::PaletteLinks() {
  cWorldPaletteLinks links;
  // The palette that took the key goes with the mode: after its event.
  links.toggleMode = [this] { QTimer::singleShot(0, Window(), [this] { ToggleMode(); }); };
  links.changed = [this] {
    UpdateStates();
    Repaint();
  };
  links.mapCommand = [this](int command) { SendCommand(MakeCommand(command, kNoticeAccelerator), 0); };
  links.editEvent = [this](cEdWorldEvent& event, bool /*isNew*/) {
    if (!EditEvent(event)) return false;
    m_editor.KeepUndoState();
    return true;
  };
  return links;
}

void cWorldMapWindow::SetMode(int mode) {
  WorldEdit().SetMode(mode);
  OpenPalette();
  UpdateStates();
  Repaint();
}

void cWorldMapWindow::ToggleMode() {
  SetMode(WorldEdit().m_iMode == kWorldChipMode ? kWorldEventMode : kWorldChipMode);
}

// One palette at a time: the mode's own, brought back if it was hidden.
void cWorldMapWindow::OpenPalette() {
  const bool chips = WorldEdit().m_iMode == kWorldChipMode;
  if (QWidget* open = PaletteWindow(); open && (chips ? m_pChipPalette != nullptr : m_pEventPalette != nullptr)) {
    ShowWindow(*open);
    return;
  }
  ClosePalettes();
  const QRect anchor = FrameOf(*Window());
  if (chips) {
    m_pChipPalette =
        std::make_unique<cChipPaletteWindow>(Manager(), Window(), PlaceOf(EditConfig::PlaceWorldChips), PaletteLinks());
    m_pChipPalette->Open(anchor);
  } else {
    m_pEventPalette = std::make_unique<cEventPaletteWindow>(Manager(), Window(), PlaceOf(EditConfig::PlaceWorldEvents),
                                                            PaletteLinks());
    m_pEventPalette->Open(anchor);
  }
}

QWidget* cWorldMapWindow::PaletteWindow() const {
  if (m_pChipPalette) return m_pChipPalette->Window();
  return m_pEventPalette ? m_pEventPalette->Window() : nullptr;
}

void cWorldMapWindow::ClosePalettes() {
  m_pChipPalette.reset();
  m_pEventPalette.reset();
}

void cWorldMapWindow::ShowPalette(bool show) {
  if (QWidget* palette = PaletteWindow()) palette->setVisible(show);
}

// ---- closing ----

bool cWorldMapWindow::AskClose() {
  if (!m_editor.AskBeforeClose()) return false;
  ClosePalettes();
  KeepPlace(PlaceOf(EditConfig::PlaceWorldMap), *Window());
  EditorConfig().SaveFile(PathOf(ePath::EditConfig));
  Close(0);
  if (m_links.closed) m_links.closed();
  return true;
}

}  // namespace velmora
