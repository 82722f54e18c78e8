#pragma once
#include <functional>
#include <string>

#include "project/WorldEditState.h"
#include "project/WorldMap.h"

namespace velmora {

class EditConfig;

// The commands of the map's pop-up menu in event mode.
enum class eWorldPopup { Edit, Cut, Copy, Paste, New, Delete };

// What the settings dialog of the world map edits. The size is set apart
// from the record, so that the map is resized from the old size to it.
struct cWorldSettings {
  int32_t width = 20;
  int32_t height = 15;
  int32_t startX = 0;
  int32_t startY = 0;
  int32_t backColor = 16;
  int32_t useBackImage = 0;
  std::string backPath;
};
cWorldSettings SettingsOf(const cEdWorldMap& map);

// The editing of the world map as its window drives it, free of widgets:
// the mouse on the map in both modes, the pop-up commands, undo and redo,
// the clear commands, the settings, saving and the question at closing.
// Every action that may change the map sets the changed flag.
class cWorldMapEditor {
 public:
  // Opens the event dialog on `event`, a copy of what it edits; true on
  // OK. `isNew` for an event that isn't on the map yet.
  using cEditEvent = std::function<bool(cEdWorldEvent& event, bool isNew)>;

  // The options of the event palette are read from `config` as they stand
  // at each action.
  cWorldMapEditor(cEdWorldMap& map, cEdWorldEditState& state, const EditConfig& config);

  // Without it no dialog opens, as if each were cancelled.
  cEditEvent editEvent;

  // The mouse at the cursor cell.
  void Press(int x, int y, bool right);
  void LeftDrag(int x, int y);
  // True when the release opens the pop-up menu at (x, y).
  bool RightRelease(int x, int y);

  bool PopupEnabled(eWorldPopup command, int x, int y) const;
  void RunPopup(eWorldPopup command, int x, int y);

  bool Undo();
  bool Redo();
  // Each asks first.
  void ClearChips();
  void ClearEvents();
  void ApplySettings(const cWorldSettings& settings);
  // The map as it is now becomes the newest undo state, as an OK of the
  // event dialog keeps it.
  void KeepUndoState();
  // A failed save goes to the report only; the map stays changed.
  bool Save();
  // The question when the window closes: Yes saves, No reads the file
  // again and Cancel (false) keeps the window. The history goes.
  bool AskBeforeClose();

 private:
  void Changed() { m_state.m_bWorldDirty = 1; }
  void PlaceTemplateAt(int x, int y);
  void NumberIfAsked(cEdWorldEvent& event, int x, int y) const;
  void EditPlacedAt(int x, int y);
  void PlaceThroughDialog(cEdWorldEvent event, int x, int y);
  bool Reload();

  cEdWorldMap& m_map;
  cEdWorldEditState& m_state;
  const EditConfig& m_config;
};

}  // namespace velmora
