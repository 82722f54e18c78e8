#pragma once
#include <QPointer>
#include <QRect>
#include <array>
#include <memory>

#include "ui/palette/GroupWindow.h"
#include "ui/palette/PaletteWindow.h"

namespace velmora {

class EditConfig;

// The six palette windows and the group window that the stage window owns.
// They live as long as it does, hidden while their layer isn't current.
class cPaletteWindows {
 public:
  // `links.paletteChanged` is for the stage window: it repaints, and
  // calls Refresh.
  cPaletteWindows(cDialogManager& manager, QWidget* stageWindow, EditConfig& config, const cPaletteLinks& links);
  // Keeps every window's place in the editor settings and saves them.
  ~cPaletteWindows();
  cPaletteWindows(const cPaletteWindows&) = delete;
  cPaletteWindows& operator=(const cPaletteWindows&) = delete;

  // Makes all seven windows, hidden, placed by the stage window's frame.
  bool Create(const QRect& stageFrame);
  // Shows the windows of a layer whose visibility setting is on and hides
  // the rest.
  void ShowLayer(int layer);
  // After the stage or a palette changed: scroll bars, buttons and the
  // group boxes; the pictures follow in the next idle step.
  void Refresh();
  // The repaint of each idle step: the page in front of an open entry
  // editor, then the windows, hidden ones too: stage blocks, common
  // blocks, stage characters, common characters, stage items, common items.
  void IdleRepaint();
  // Some window has a change that the next repaint is to show.
  bool RepaintWanted() const;

  // The visibility settings of the common palettes, the stage palettes and
  // the group window; a toggle is saved at once and shown on `layer`.
  enum eShown { kCommonShown, kStageShown, kGroupShown };
  bool IsShown(eShown which) const;
  void ToggleShown(eShown which, int layer);

  cPaletteWindow& Palette(cPaletteSide side);
  cGroupWindow& Group() { return *m_pGroupWnd; }

 private:
  void StorePlaces();

  QPointer<QWidget> m_pStageWindow;
  EditConfig& m_config;
  cPaletteLinks m_links;
  // Common blocks, characters, items, then the stage's.
  std::array<std::unique_ptr<cPaletteWindow>, 6> m_aPalette;
  std::unique_ptr<cGroupWindow> m_pGroupWnd;
};

}  // namespace velmora
