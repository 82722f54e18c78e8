#include "ui/palette/PaletteWindows.h"

#include <QApplication>
#include <algorithm>

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "stage/StageCommands.h"
#include "stage/StageEdit.h"
#include "ui/entries/EntryEditor.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/framework/WindowFrame.h"
#include "ui/framework/WindowStyle.h"

namespace velmora {
namespace {

// Places in the editor settings, by palette (common, stage) and kind.
constexpr std::array<std::array<int, 3>, 2> kPlaceOf = {{{1, 3, 5}, {2, 4, 6}}};
constexpr int kGroupPlace = 7;
// The place whose flag each visibility setting is kept in; the others of
// its pair follow when the settings are saved.
constexpr std::array<int, 3> kShownPlace = {1, 2, kGroupPlace};
constexpr int kCharaLayer = 1;

int SlotOf(cPaletteSide side) { return (side.stagePlt ? 3 : 0) + side.kind; }

// The creation order: each stage palette window follows the common one of
// its layer, and the group window stands among the characters.
constexpr cPaletteSide kCreationOrder[] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0, 2}, {1, 2}};
constexpr cPaletteSide kRepaintOrder[] = {{1, 0}, {0, 0}, {1, 1}, {0, 1}, {1, 2}, {0, 2}};

void ShowIf(QWidget* window, bool show) {
  if (!window) return;
  if (show) ShowWindow(*window);
  else window->hide();
}

}  // namespace

cPaletteWindows::cPaletteWindows(cDialogManager& manager, QWidget* stageWindow, EditConfig& config,
                                 const cPaletteLinks& links)
    : m_pStageWindow(stageWindow), m_config(config), m_links(links) {
  cPaletteLinks own = links;
  // A stage window that repaints refreshes these windows with it.
  own.paletteChanged = [this] {
    if (m_links.paletteChanged) m_links.paletteChanged();
    else Refresh();
  };
  for (const cPaletteSide side : kCreationOrder) {
    cWindowPlace& place = m_config.m_aPlace.at(static_cast<size_t>(kPlaceOf[side.stagePlt][side.kind]));
    m_aPalette.at(static_cast<size_t>(SlotOf(side))) = std::make_unique<cPaletteWindow>(manager, stageWindow, side, place, own);
  }
  m_pGroupWnd = std::make_unique<cGroupWindow>(manager, stageWindow, m_config.m_aPlace.at(kGroupPlace), links.nextLayer);
}

cPaletteWindows::~cPaletteWindows() {
  StorePlaces();
  m_config.SaveFile(PathOf(ePath::EditConfig));
}

void cPaletteWindows::StorePlaces() {
  for (const auto& window : m_aPalette) window->StorePlace();
  m_pGroupWnd->StorePlace();
}

bool cPaletteWindows::Create(const QRect& stageFrame) {
  for (const cPaletteSide side : kCreationOrder) {
    const QRect commonFrame = side.stagePlt ? FrameOf(*Palette({0, side.kind}).Window()) : QRect();
    if (!Palette(side).Open(stageFrame, commonFrame)) return false;
    if (side.stagePlt && side.kind == kCharaLayer && !m_pGroupWnd->Open(stageFrame)) return false;
  }
  Refresh();
  return true;
}

bool cPaletteWindows::IsShown(eShown which) const {
  return m_config.m_aPlace.at(static_cast<size_t>(kShownPlace.at(which))).m_bVisible != 0;
}

void cPaletteWindows::ToggleShown(eShown which, int layer) {
  int32_t& visible = m_config.m_aPlace.at(static_cast<size_t>(kShownPlace.at(which))).m_bVisible;
  visible = !visible;
  m_config.SharePairedVisibility();
  m_config.SaveFile(PathOf(ePath::EditConfig));
  ShowLayer(layer);
}

cPaletteWindow& cPaletteWindows::Palette(cPaletteSide side) { return *m_aPalette.at(static_cast<size_t>(SlotOf(side))); }

void cPaletteWindows::ShowLayer(int layer) {
  QWidget* active = QApplication::activeWindow();
  for (const cPaletteSide side : kCreationOrder) {
    const bool visible = m_config.m_aPlace.at(static_cast<size_t>(kPlaceOf[side.stagePlt][side.kind])).m_bVisible;
    ShowIf(Palette(side).Window(), side.kind == layer && visible);
  }
  ShowIf(m_pGroupWnd->Window(), layer == kCharaLayer && m_config.m_aPlace.at(kGroupPlace).m_bVisible);
  // Space in a palette of the old layer hid the window that had the focus;
  // the keys go on to the stage window, where the next Space is handled.
  if (active && !active->isVisible() && m_pStageWindow) m_pStageWindow->activateWindow();
}

void cPaletteWindows::Refresh() {
  for (const auto& window : m_aPalette) {
    window->RebuildScrollBar();
    window->ShowToolState();
    window->RequestRepaint();
  }
  m_pGroupWnd->ShowGroups(UsedGroupNumbers());
}

void cPaletteWindows::IdleRepaint() {
  if (cEntryEditorBase* editor = OpenEntryEditor()) editor->RepaintShownPage();
  for (const cPaletteSide side : kRepaintOrder) Palette(side).Repaint();
}

bool cPaletteWindows::RepaintWanted() const {
  return std::any_of(m_aPalette.begin(), m_aPalette.end(), [](const auto& window) { return window->WantsIdle(); });
}

}  // namespace velmora
