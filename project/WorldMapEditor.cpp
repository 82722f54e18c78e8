#include "project/WorldMapEditor.h"

#include "core/EditConfig.h"
#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "core/Prompt.h"
#include "core/SafeWrite.h"
#include "core/SystemText.h"

namespace velmora {
namespace {

bool AskClear(const char* question) {
  return Prompt().Ask(nullptr, SysText("データクリアの確認"), SysText(question), eButtons::YesNo, eIcon::Question) ==
         eAnswer::Yes;
}

}  // namespace

cWorldSettings SettingsOf(const cEdWorldMap& map) {
  return {map.m_nWidth,     map.m_nHeight,       map.m_iStartX,    map.m_iStartY,
          map.m_iBackColor, map.m_bUseBackImage, map.m_strBackPath};
}

cWorldMapEditor::cWorldMapEditor(cEdWorldMap& map, cEdWorldEditState& state, const EditConfig& config)
    : m_map(map), m_state(state), m_config(config) {}

void cWorldMapEditor::KeepUndoState() { m_state.m_history.Record(m_map); }

// ---- the mouse ----

// A press changes the map as far as the closing question knows, whatever
// it goes on to do.
void cWorldMapEditor::Press(int x, int y, bool right) {
  Changed();
  if (m_state.m_iMode == kWorldChipMode) {
    if (right) {
      m_state.m_bPicking = 1;
      m_state.m_iPickX = x;
      m_state.m_iPickY = y;
      m_state.m_iCurrent = -1;
      return;
    }
    KeepUndoState();
    m_state.PaintBrush(m_map, x, y);
    return;
  }
  if (right || !m_state.HasTemplate()) return;
  // The event dialog keeps its own undo state on OK.
  const bool editsPlaced = m_config.m_bEditIfPlaced && m_map.HasEventAt(x, y);
  if (!editsPlaced && !m_config.m_bEditBeforePlace) KeepUndoState();
  PlaceTemplateAt(x, y);
}

void cWorldMapEditor::LeftDrag(int x, int y) {
  if (m_state.m_iMode == kWorldChipMode) m_state.PaintBrush(m_map, x, y);
  else if (m_state.HasTemplate()) PlaceTemplateAt(x, y);
}

bool cWorldMapEditor::RightRelease(int x, int y) {
  if (m_state.m_iMode == kWorldEventMode) return true;
  if (m_state.m_bPicking) m_state.TakePick(m_map, x, y);
  return false;
}

void cWorldMapEditor::PlaceTemplateAt(int x, int y) {
  if (m_config.m_bEditIfPlaced && m_map.HasEventAt(x, y)) {
    EditPlacedAt(x, y);
    return;
  }
  cEdWorldEvent working = m_state.m_Template;
  NumberIfAsked(working, x, y);
  if (m_config.m_bEditBeforePlace) {
    PlaceThroughDialog(std::move(working), x, y);
    return;
  }
  m_map.PlaceEvent(std::move(working), x, y);
}

// The event about to be replaced gives its numbers back first.
void cWorldMapEditor::NumberIfAsked(cEdWorldEvent& event, int x, int y) const {
  if (m_config.m_bAutoWorldNumber) m_map.AssignWorldNos(event, m_map.EventAt(x, y));
}

void cWorldMapEditor::EditPlacedAt(int x, int y) {
  const cEdWorldEvent* placed = m_map.EventAt(x, y);
  if (!placed || !editEvent) return;
  cEdWorldEvent working = *placed;
  if (!editEvent(working, false)) return;
  KeepUndoState();
  if (cEdWorldEvent* target = m_map.EventAt(x, y)) *target = std::move(working);
  Changed();
}

void cWorldMapEditor::PlaceThroughDialog(cEdWorldEvent event, int x, int y) {
  if (!editEvent || !editEvent(event, true)) return;
  KeepUndoState();
  m_map.PlaceEvent(std::move(event), x, y);
  Changed();
}

// ---- the pop-up menu ----

bool cWorldMapEditor::PopupEnabled(eWorldPopup command, int x, int y) const {
  switch (command) {
    case eWorldPopup::Paste: return m_state.m_bClip != 0;
    case eWorldPopup::New: return true;
    default: return m_map.HasEventAt(x, y);
  }
}

void cWorldMapEditor::RunPopup(eWorldPopup command, int x, int y) {
  if (!PopupEnabled(command, x, y)) return;
  const cEdWorldEvent* placed = m_map.EventAt(x, y);
  switch (command) {
    case eWorldPopup::Edit: EditPlacedAt(x, y); return;
    case eWorldPopup::Copy: m_state.FillClip(*placed); return;
    case eWorldPopup::Cut:
      KeepUndoState();
      m_state.FillClip(*placed);
      m_map.RemoveEvent(placed);
      break;
    case eWorldPopup::Paste: {
      KeepUndoState();
      cEdWorldEvent copy = m_state.m_Clip;
      NumberIfAsked(copy, x, y);
      m_map.PlaceEvent(std::move(copy), x, y);
      break;
    }
    case eWorldPopup::New: {
      cEdWorldEvent fresh;
      NumberIfAsked(fresh, x, y);
      PlaceThroughDialog(std::move(fresh), x, y);
      return;
    }
    case eWorldPopup::Delete:
      KeepUndoState();
      m_map.RemoveEventsAt(x, y);
      break;
  }
  Changed();
}

// ---- menu commands ----

bool cWorldMapEditor::Undo() {
  if (!m_state.m_history.Undo(m_map)) return false;
  Changed();
  return true;
}

bool cWorldMapEditor::Redo() {
  if (!m_state.m_history.Redo(m_map)) return false;
  Changed();
  return true;
}

void cWorldMapEditor::ClearChips() {
  if (!AskClear("全てのマップチップをクリアしますか？")) return;
  KeepUndoState();
  m_map.ClearChips();
  Changed();
}

void cWorldMapEditor::ClearEvents() {
  if (!AskClear("全てのイベントをクリアしますか？")) return;
  KeepUndoState();
  m_map.ClearEvents();
  Changed();
}

// Undo states keep cells in the old row stride: the history can't outlive
// a change of size.
void cWorldMapEditor::ApplySettings(const cWorldSettings& settings) {
  m_map.SetSize(settings.width, settings.height);
  m_map.m_iStartX = settings.startX;
  m_map.m_iStartY = settings.startY;
  m_map.m_iBackColor = settings.backColor;
  m_map.m_bUseBackImage = settings.useBackImage;
  m_map.m_strBackPath = settings.backPath;
  m_map.Sanitize();
  m_state.m_history.Clear();
  Changed();
}

bool cWorldMapEditor::Save() {
  const std::string& path = PathOf(ePath::WorldMap);
  if (!SaveRecordSafely(m_map, path)) {
    ReportLine("WorldMap: %s not saved", path.c_str());
    return false;
  }
  m_state.m_bWorldDirty = 0;
  return true;
}

// A file that can't be read leaves the edits in place rather than losing
// both.
bool cWorldMapEditor::Reload() {
  const std::string& path = PathOf(ePath::WorldMap);
  cEdWorldMap fresh;
  if (!fresh.LoadWholeFile(path)) {
    ReportLine("WorldMap: %s not read again", path.c_str());
    return false;
  }
  m_map = std::move(fresh);
  m_state.m_bWorldDirty = 0;
  return true;
}

bool cWorldMapEditor::AskBeforeClose() {
  if (m_state.m_bWorldDirty) {
    const eAnswer answer = Prompt().Ask(nullptr, SysText("保存確認"),
                                        SysText("ワールドマップが変更された可能性があります。\n保存しますか？"),
                                        eButtons::YesNoCancel, eIcon::Question);
    if (answer == eAnswer::Cancel) return false;
    if (answer == eAnswer::Yes) Save();
    else Reload();
  }
  m_state.m_history.Clear();
  return true;
}

}  // namespace velmora
