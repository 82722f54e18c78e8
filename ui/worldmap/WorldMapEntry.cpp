#include "ui/worldmap/WorldMapEntry.h"

#include <memory>

#include "graphics/FixedBitmaps.h"
#include "project/WorldMap.h"
#include "stage/StageEdit.h"
#include "ui/framework/WindowFrame.h"
#include "ui/stage/StageWindow.h"
#include "ui/worldmap/WorldMapWindow.h"

namespace velmora {
namespace {

constexpr int kNoLayer = -1;
constexpr int kStageMode = 0;
constexpr int kWorldMapMode = 1;

// Lives as long as the stage window's handler; a stage window that goes
// while the world map is open gives the mode back with it.
struct cWorldMapEntry {
  explicit cWorldMapEntry(cStageWindow& owner) : stage(owner) {}
  ~cWorldMapEntry() {
    if (window && window->IsOpen()) stage.Host().SetCurrentMode(kStageMode, {});
  }
  void Open();
  void ShowStageSet(bool show);

  cStageWindow& stage;
  std::unique_ptr<cWorldMapWindow> window;
};

void cWorldMapEntry::ShowStageSet(bool show) {
  if (stage.Palettes()) stage.Palettes()->ShowLayer(show ? StageEdit().m_iLayer : kNoLayer);
  stage.Window()->setVisible(show);
  if (show) stage.Window()->activateWindow();
}

// The pictures are read anew, as the author may have drawn them since.
void cWorldMapEntry::Open() {
  if (window && window->IsOpen()) {
    window->Window()->activateWindow();
    return;
  }
  LoadWorldSheets();
  LoadWorldBackground(WorldMap().m_strBackPath);
  cStageWindowHost& host = stage.Host();
  cWorldMapLinks links;
  links.closed = [this, &host] {
    ShowStageSet(true);
    host.SetCurrentMode(kStageMode, {});
  };
  links.minimised = [&host] { host.StageWindowMinimised(); };
  links.restored = [&host] { host.StageWindowRestored(); };
  const QRect anchor = FrameOf(*stage.Window());
  ShowStageSet(false);
  window = std::make_unique<cWorldMapWindow>(stage.Manager(), links);
  if (!window->Open(anchor)) {
    window.reset();
    ShowStageSet(true);
    return;
  }
  cWorldMapWindow* open = window.get();
  host.SetCurrentMode(kWorldMapMode, {[open] { open->ShowPalette(false); },
                                      [open] {
                                        open->Window()->showNormal();
                                        open->ShowPalette(true);
                                      },
                                      [open] { open->Window()->activateWindow(); }});
}

// The entry of the stage window that stands.
std::weak_ptr<cWorldMapEntry> g_entry;

}  // namespace

void InstallWorldMapEntry(cStageWindow& stage) {
  auto entry = std::make_shared<cWorldMapEntry>(stage);
  g_entry = entry;
  stage.SetHandler(eMenuAction::WorldMap, [entry] { entry->Open(); });
}

void ShowWorldMapEvent(int index) {
  const std::shared_ptr<cWorldMapEntry> entry = g_entry.lock();
  if (!entry) return;
  entry->Open();
  if (entry->window && entry->window->IsOpen()) entry->window->ShowEvent(index);
}

}  // namespace velmora
