#pragma once
#include <array>
#include <cstdint>
#include <vector>

#include "project/WorldHistory.h"
#include "project/WorldMapRecords.h"

namespace velmora {

class cEdWorldMap;

// The two modes of the world map editor; the open palette decides.
enum eWorldMode : int32_t { kWorldChipMode = 0, kWorldEventMode = 1 };

// What a mode keeps of its selection while the other mode is current.
struct cWorldSelection {
  int32_t current = -1;
  int32_t brushW = 0;
  int32_t brushH = 0;
  int32_t picking = 0;
};

// The editing state beside the world map record: mode, selection, brush,
// the pick rectangle, undo, the event clipboard and the changed flag.
class cEdWorldEditState {
 public:
  static constexpr int kBrushRows = 150;
  static constexpr int kBrushRowLength = 200;

  int32_t m_iMode = kWorldChipMode;
  int32_t m_iCurrent = -1;  // chip or template index
  int32_t m_iBrushW = 0;    // 0 while nothing is selected
  int32_t m_iBrushH = 0;
  std::vector<int32_t> m_aiBrush = std::vector<int32_t>(kBrushRows * kBrushRowLength, 0);
  int32_t m_bPicking = 0;
  int32_t m_iPickX = 0;  // the cell where the pick rectangle started
  int32_t m_iPickY = 0;
  cWorldHistory m_history;
  std::array<cWorldSelection, 2> m_aModeStore;
  cEdWorldEvent m_Template;  // copy of the selected template
  cEdWorldEvent m_Clip;      // the clipboard of the map and the template list
  int32_t m_bClip = 0;
  int32_t m_bWorldDirty = 0;

  // Stores the selection of the mode left and restores that of the other.
  void SetMode(int mode);
  void ToggleMode() { SetMode(m_iMode == kWorldChipMode ? kWorldEventMode : kWorldChipMode); }

  // A chip picked from the palette: a brush of that one chip.
  void SelectChip(int index);
  // A template chosen in the event palette, or none (-1).
  void SelectTemplate(const std::vector<cEdWorldEvent>& templates, int index);
  bool HasTemplate() const { return m_iMode == kWorldEventMode && m_iCurrent >= 0; }

  int32_t BrushAt(int column, int row) const;
  // Writes the brush over the map with its top left at (x, y). Brush cells
  // off the map's right or bottom edge, and values that name no chip, leave
  // their cells as they are.
  void PaintBrush(cEdWorldMap& map, int x, int y) const;
  // The rectangle between the pick's start and (x, y), either way round,
  // becomes the brush.
  void TakePick(const cEdWorldMap& map, int x, int y);

  void FillClip(const cEdWorldEvent& event);
};

// The editor's one instance, beside the world map record.
cEdWorldEditState& WorldEdit();

}  // namespace velmora
