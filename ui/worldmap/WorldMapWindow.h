#pragma once
#include <functional>
#include <memory>

#include "graphics/Surface.h"
#include "project/WorldMapEditor.h"
#include "stage/Stage.h"
#include "ui/framework/Dialog.h"
#include "ui/stage/StageViewRules.h"
#include "ui/worldmap/ChipPaletteWindow.h"
#include "ui/worldmap/EventPaletteWindow.h"
#include "ui/worldmap/WorldMapCommands.h"

namespace velmora {

// What the world map window asks of the application around it.
struct cWorldMapLinks {
  // The window closed; the stage editor's windows come back.
  std::function<void()> closed;
  // The author sent the window to the task bar, or brought it back.
  std::function<void()> minimised;
  std::function<void()> restored;
};

// Window 152 "ワールドマップ": the world map through a 32-dot grid, with
// menu, tool bar, status bar and the palette of the current mode. It edits
// the world map record in place; saving writes data\WorldMap.dat.
class cWorldMapWindow : public cDialog {
 public:
  cWorldMapWindow(cDialogManager& manager, const cWorldMapLinks& links);
  ~cWorldMapWindow() override;

  // Opens the window where the editor settings last had it, else over
  // `anchor` (the stage window's frame), with the palette of its mode.
  bool Open(const QRect& anchor);
  // Closing as the close box does: false when the author kept the window.
  bool AskClose();

  cWorldMapEditor& Editor() { return m_editor; }
  cChipPaletteWindow* ChipPalette() const { return m_pChipPalette.get(); }
  cEventPaletteWindow* EventPalette() const { return m_pEventPalette.get(); }
  // The palette of the current mode as a window, or null.
  QWidget* PaletteWindow() const;
  void SetMode(int mode);
  void ToggleMode();
  void ShowPalette(bool show);

  // Event `index` of the map in the middle of the view, under the cursor,
  // in the event mode: where a search takes the author to one.
  void ShowEvent(int index);

  void UpdateStates();
  void Repaint();
  const cCellPos& Cursor() const { return m_cursor; }
  // The last painted view, for tests and measurements.
  const cSurface& View() const { return m_view; }
  void RenderView();

  void Idle() override;
  bool WantsIdle() const override { return m_bOutsideDrag; }
  void OnPaint(QPainter& painter) override;
  void OnInitDialog() override;
  void OnSize() override;

 protected:
  void OnCommand(uint32_t wParam, intptr_t lParam) override;
  bool OnDialogMessage(QEvent& event) override;
  void OnMouseMove() override;
  void OnLButtonDown() override;
  void OnRButtonDown() override;
  void OnLButtonUp() override;
  void OnRButtonUp() override;

 private:
  void RunCommand(eWorldAction action);
  void BuildToolBar();
  void PlaceWindow(const QRect& anchor);
  void UpdateScrollRanges();
  cViewFrame Frame() const;
  void TrackCursor();
  void FollowOutsideDrag();
  void Popup();
  bool EditEvent(cEdWorldEvent& event);
  bool RunChildDialog(cDialog& dialog);
  void OpenSettings();
  void OpenPalette();
  cWorldPaletteLinks PaletteLinks();
  void ClosePalettes();

  cWorldMapLinks m_links;
  cWorldMapEditor m_editor;
  cSurface m_view;
  cCellPos m_cursor{0, 0};
  bool m_bOutsideDrag = false;
  std::unique_ptr<cChipPaletteWindow> m_pChipPalette;
  std::unique_ptr<cEventPaletteWindow> m_pEventPalette;
};

}  // namespace velmora
