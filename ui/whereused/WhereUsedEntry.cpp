#include "ui/whereused/WhereUsedEntry.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <cctype>
#include <memory>
#include <optional>

#include "core/ProjectPaths.h"
#include "stage/StageEdit.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/framework/WindowFrame.h"
#include "ui/stage/StageWindow.h"
#include "ui/stagesettings/StageSettingsSheet.h"
#include "ui/system/SystemSheet.h"
#include "ui/whereused/EntryStartOfUse.h"
#include "ui/whereused/WhereUsedWindow.h"
#include "ui/worldmap/WorldMapEntry.h"

namespace velmora {
namespace {

// The edit state keeps ".\" in front of a stage's path; the index doesn't.
bool IsEditedStage(const std::string& file) {
  std::string edited = StageEdit().m_strPath;
  if (edited.rfind(".\\", 0) == 0) edited.erase(0, 2);
  return edited.size() == file.size() &&
         std::equal(edited.begin(), edited.end(), file.begin(), [](char a, char b) { return std::tolower(a) == std::tolower(b); });
}

// A placed object's editor is modal, as a double click on the cell opens it.
template <class Entry>
void EditCell(cStageWindow& stage, std::vector<Entry>& layer, size_t index, const cEditorStart& start) {
  if (index >= layer.size() || !IsOccupied(layer[index])) return;
  const cEditPlace place{kEditCell, kEntryKindOf<Entry>, -1};
  EditEntryAt<Entry>(stage.Manager(), stage.Window(), place, &layer[index], {}, start);
  stage.Repaint();
}

// Lives as long as the stage window's handler.
struct cWhereUsedEntry {
  explicit cWhereUsedEntry(cStageWindow& owner) : stage(owner) {}
  // The window goes with the stage window; it comes back with the next
  // one if the author had it open.
  ~cWhereUsedEntry() { WhereUsedSearch().shown = window && window->IsOpen(); }
  void Open();
  void OpenUse(const cFoundUse& found);
  void ShowInStage(const cFoundUse& found);
  void EditPaletteUse(cPaletteSide side, const cUse& use) {
    EditPaletteEntry(stage.Manager(), stage.Window(), side, use.entry, [this](int) { stage.Repaint(); },
                     EntryStartOfUse(use));
  }

  cStageWindow& stage;
  std::unique_ptr<cWhereUsedWindow> window;
};

void cWhereUsedEntry::Open() {
  // A window that the database window hid comes back into sight.
  if (window && window->IsOpen()) {
    window->Window()->show();
    window->Window()->activateWindow();
    return;
  }
  window = std::make_unique<cWhereUsedWindow>(stage.Manager(), stage.Window(), WhereUsedSearch(),
                                              [this](const cFoundUse& found) { OpenUse(found); });
  WhereUsedSearch().shown = window->Open();
  // Below the stage window, so the cell a use takes the author to stays in sight.
  const QRect frame = FrameOf(*stage.Window());
  if (window->IsOpen()) MoveFrame(*window->Window(), QPoint(frame.left(), frame.bottom() + 1));
}

void cWhereUsedEntry::OpenUse(const cFoundUse& found) {
  const cUse& use = found.use;
  const int kind = static_cast<int>(use.list);
  if (found.file == PathOf(ePath::CommonPalette)) {
    EditPaletteUse({0, kind}, use);
  } else if (found.file == PathOf(ePath::WorldMap)) {
    ShowWorldMapEvent(use.entry - 1);
  } else if (found.file == PathOf(ePath::System)) {
    OpenSystemWindow(stage.Manager(), stage.Window(), SystemControlOfField(use.what));
  } else if (IsEditedStage(found.file)) {
    ShowInStage(found);
  } else {
    // The window of the stage opened shows it; this one goes.
    WhereUsedSearch().pending = found;
    if (OpenStageFile(".\\" + found.file)) stage.Host().RequestRebuild();
    else WhereUsedSearch().pending.reset();
  }
}

void cWhereUsedEntry::ShowInStage(const cFoundUse& found) {
  const cUse& use = found.use;
  if (use.area == eUseArea::StageSettings) {
    OpenStageSettings(stage, StageSettingsControlOfField(use.what));
  } else if (use.area == eUseArea::Background) {
    OpenStageBackLayer(stage, use.entry - 1);
  } else if (use.area == eUseArea::Palette) {
    EditPaletteUse({1, static_cast<int>(use.list)}, use);
  } else if (use.area == eUseArea::Cell) {
    stage.ShowCell(use.x, use.y);
    cStage& edited = EditStage();
    const size_t index = static_cast<size_t>(edited.CellIndex(use.x, use.y));
    const cEditorStart start = EntryStartOfUse(use);
    if (use.list == ePaletteList::Block) EditCell(stage, edited.m_vecBlockCell, index, start);
    if (use.list == ePaletteList::Chara) EditCell(stage, edited.m_vecCharaCell, index, start);
    if (use.list == ePaletteList::Item) EditCell(stage, edited.m_vecItemCell, index, start);
  }
}

// The entry of the stage window that stands, for the searches of other windows.
std::weak_ptr<cWhereUsedEntry> g_entry;

}  // namespace

void InstallWhereUsedWindow(cStageWindow& stage) {
  auto entry = std::make_shared<cWhereUsedEntry>(stage);
  g_entry = entry;
  stage.SetHandler(eMenuAction::WhereUsed, [entry] { entry->Open(); });
  cWhereUsedSearch& search = WhereUsedSearch();
  if (!search.shown && !search.pending) return;
  // After the stage window has come up whole.
  QTimer::singleShot(0, stage.Window(), [entry] {
    cWhereUsedSearch& search = WhereUsedSearch();
    if (search.shown) entry->Open();
    if (!search.pending) return;
    const cFoundUse found = *search.pending;
    search.pending.reset();
    if (IsEditedStage(found.file)) entry->ShowInStage(found);
  });
}

void ShowUsesOver(cDialogManager& manager, QWidget* owner, const cUseTarget& target, std::function<bool()> leaveOwner) {
  cWhereUsedSearch& search = WhereUsedSearch();
  search.kind = static_cast<int>(target.kind);
  search.number = target.number;
  search.Run();
  std::optional<cFoundUse> chosen;
  cWhereUsedWindow* shown = nullptr;
  cWhereUsedWindow::cOpenUse open;
  if (leaveOwner) {
    open = [&chosen, &shown](const cFoundUse& found) {
      chosen = found;
      shown->Close(0);
    };
  }
  cWhereUsedWindow window(manager, owner, search, std::move(open));
  shown = &window;
  window.DoModal(cDialog::kDisableOthers);
  if (!chosen) return;
  // The owner's call is still under way: its window closes once it ended.
  QTimer::singleShot(0, qApp, [found = *chosen, leaveOwner = std::move(leaveOwner)] {
    const std::shared_ptr<cWhereUsedEntry> entry = g_entry.lock();
    if (!entry || !leaveOwner()) return;
    // The results stay in reach for the next use.
    entry->Open();
    entry->OpenUse(found);
  });
}

}  // namespace velmora
