#pragma once
#include <functional>
#include <map>
#include <memory>

#include "stage/Stage.h"
#include "stage/StageCommands.h"
#include "stage/StageTools.h"
#include "ui/framework/Dialog.h"
#include "ui/palette/PaletteWindows.h"
#include "ui/stage/StageCommands.h"
#include "ui/stage/StageViewRules.h"
#include "graphics/Surface.h"

namespace velmora {

// The windows of the world map editor as the application handles them
// while that editor is the current mode.
struct cModeWindows {
  std::function<void()> hidePalettes;  // the set went to the task bar
  std::function<void()> restore;       // it came back: the window as it was, its palette beside it
  std::function<void()> focus;
};

// What the stage window asks of the application around it.
class cStageWindowHost {
 public:
  virtual ~cStageWindowHost() = default;
  // The editor whose windows are on show: 0 the stage editor, 1 the world
  // map editor with `windows`.
  virtual void SetCurrentMode(int /*mode*/, const cModeWindows& /*windows*/) {}
  // Message 1024 with 1: a different stage came in; throw the window away
  // and build it anew.
  virtual void RequestRebuild() = 0;
  // The author closed the window and agreed to leave.
  virtual void CloseEditor() = 0;
  // The author sent the window to the task bar, or brought it back.
  virtual void StageWindowMinimised() {}
  virtual void StageWindowRestored() {}
};

// The editor's central window: the edit stage through a 32-dot grid, with
// the menu, tool bar and status bar from which every other window opens.
// It is thrown away and built anew whenever a different stage comes in.
class cStageWindow : public cDialog {
 public:
  using cHandler = std::function<void()>;

  cStageWindow(cDialogManager& manager, QWidget* parent, cStageWindowHost& host);
  ~cStageWindow() override;

  // Opens the window where the editor settings last had it.
  bool Open();

  // Windows of later work hook in here: an action with a handler is
  // enabled by the state rules, one without stays disabled.
  void SetHandler(eMenuAction action, cHandler handler);
  bool HasHandler(eMenuAction action) const { return m_handlers.count(action) != 0; }
  cStageWindowHost& Host() const { return m_host; }
  // The palette windows, null before the window opened.
  cPaletteWindows* Palettes() const { return m_pPalettes.get(); }
  // Runs after each change of the current layer, for the palette windows.
  std::function<void(int layer)> onLayerChanged;

  void UpdateStates();
  // The stage logic changed the current layer.
  void LayerShown(int layer);
  void RefreshTitle();
  // The status bar says whether a test play runs.
  void ShowTestPlayStatus();
  void Repaint();
  const cCellPos& Cursor() const { return m_cursor; }
  // The last painted view, for tests and measurements.
  const cSurface& View() const { return m_view; }
  // Paints the view into the off-screen surface without showing it.
  void RenderView();
  // Cells framed in the view until other marks replace them; the window
  // of another stage starts without.
  void SetMarks(std::vector<cCellFrame> marks);
  const std::vector<cCellFrame>& Marks() const { return m_marks; }
  // Brings the cell into view and puts the cursor on it.
  void ShowCell(int x, int y);

  void Idle() override;
  bool WantsIdle() const override;
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
  void OnLButtonDblClk() override;
  void OnRButtonDblClk() override;

 private:
  void InstallBuiltInHandlers();
  void BuildToolBar();
  void PlaceWindow();
  void RestorePlace();
  void StorePlace();
  void ScrollToStart();
  void UpdateScrollRanges();
  cViewFrame Frame() const;
  void Mouse(eStageAction action, bool right);
  void FeedTools(eStageAction action, bool right);
  bool OnKey(int key, bool ctrl);
  void OnWheel(int delta, bool ctrl);
  void OnCloseBox();
  void AfterStageChange();
  void SetLayer(int layer);
  void AfterEdit();
  void Clear(eClearLayers which);
  bool IsEnabled(const cStageCommand& command) const;
  void OpenPalettes();
  bool IsChecked(const cStageCommand& command) const;

  cStageWindowHost& m_host;
  std::map<eMenuAction, cHandler> m_handlers;
  cSurface m_view;
  cCellPos m_cursor{0, 0};
  std::vector<cCellFrame> m_marks;
  bool m_bOutsideDrag = false;
  // The six palette windows and the group window.
  std::unique_ptr<cPaletteWindows> m_pPalettes;
};

}  // namespace velmora
