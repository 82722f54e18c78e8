#pragma once
#include <functional>

#include "project/WorldMapRecords.h"
#include "ui/framework/Dialog.h"

namespace velmora {

class cWindowPlace;

// What the two palettes of the world map ask of its window. Each may stay
// empty.
struct cWorldPaletteLinks {
  // Space: the other mode.
  std::function<void()> toggleMode;
  // The selection or the templates changed: the map shows the new brush,
  // and its menu and tool bar follow.
  std::function<void()> changed;
  // Keys of the map window (save, undo, redo) typed in a palette.
  std::function<void(int command)> mapCommand;
  // The event dialog on a copy of a template; true on OK.
  std::function<bool(cEdWorldEvent& event, bool isNew)> editEvent;
};

// What both palettes of the world map share: a place in the editor
// settings, kept when the palette goes; Space and the map's keys passed to
// the map window; a close box that only hides, since the mode's command
// brings the palette back.
class cWorldPalette : public cDialog {
 public:
  cWorldPalette(cDialogManager& manager, QWidget* parent, cWindowPlace& place, const cWorldPaletteLinks& links);
  ~cWorldPalette() override;
  void OnCommand(uint32_t wParam, intptr_t lParam) override;

 protected:
  void OnInitDialog() override;
  bool OnDialogMessage(QEvent& event) override;
  // False when the id isn't one of the map window's.
  bool PassMapCommand(int id) const;
  void Changed() const;
  // The window at its kept place, else right of `anchor`, the map window's
  // frame; with `size`, the kept size as well.
  void Place(const QRect& anchor, bool size);

  cWindowPlace& m_place;
  cWorldPaletteLinks m_links;
};

}  // namespace velmora
