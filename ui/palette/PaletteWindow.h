#pragma once
#include <QImage>
#include <QRect>
#include <functional>

#include "stage/PaletteOps.h"
#include "ui/framework/Dialog.h"
#include "graphics/Surface.h"

namespace velmora {

class cWindowPlace;

// What a palette window asks of the windows around it. Each may stay
// empty.
struct cPaletteLinks {
  // Accelerators and F5, F7 belong to the stage window.
  std::function<void(int command)> stageCommand;
  // Space: the next layer.
  std::function<void()> nextLayer;
  // A pick or a list command changed the brush, a list or the tool: the
  // stage repaints and every palette window shows the new state.
  std::function<void()> paletteChanged;
};

// One of the six palette windows: the entries of one palette as a grid of
// 8 columns, the brush picked from it, and the list commands.
class cPaletteWindow : public cDialog {
 public:
  static constexpr int kColumns = 8;
  static constexpr int kCell = 32;
  static constexpr int kClientWidth = kColumns * kCell;
  static constexpr int kMinClientHeight = 32;

  cPaletteWindow(cDialogManager& manager, QWidget* parent, cPaletteSide side, cWindowPlace& place,
                 const cPaletteLinks& links);

  // Makes the window, hidden, at its saved place or right of the stage
  // window: a common palette level with its top, a stage palette below the
  // common palette window of its layer. Places are frames.
  bool Open(const QRect& stageFrame, const QRect& commonFrame);
  void StorePlace();

  cPaletteSide Side() const { return {m_bStagePlt, m_iKind}; }
  int TopRow() const { return m_iTopRow; }
  int Rows() const;
  // The entry under a point of the drawing area; it may lie beyond the list.
  int IndexAt(int x, int y) const;

  void RebuildScrollBar();
  void ShowToolState();
  // Changes are drawn by the next idle step, which repaints the six windows
  // in their fixed order; this asks for it.
  void RequestRepaint();
  // Draws the picture anew; the idle step's part.
  void Repaint();
  bool WantsIdle() const override { return m_bRepaintWanted; }
  // The picture of the last paint, as the window shows it.
  const QImage& Picture() const { return m_picture; }
  // Counts the repaints of all palette windows: a later repaint has a
  // greater number.
  uint64_t LastRepaint() const { return m_nLastRepaint; }
  void OnCommand(uint32_t wParam, intptr_t lParam) override;

 protected:
  void OnInitDialog() override;
  void OnDialogCommand(int id, int notice) override;
  bool OnDialogMessage(QEvent& event) override;
  void OnLButtonDown() override;
  void OnRButtonDown() override;
  void OnRButtonUp() override;
  void OnPaint(QPainter& painter) override;

 private:
  struct cCommand {
    int id;
    void (cPaletteWindow::*run)();
    bool changesList;
  };
  static const cCommand kCommands[];

  void BuildMenu();
  void BuildToolBar();
  void PlaceWindow(const QRect& stageFrame, const QRect& commonFrame);
  int ClientHeight() const;
  int MaxClientHeight(int frameTop) const;
  void UpdateHeightLimit();
  void Render();
  void DrawEntries();
  void DrawFrames();
  void UpdateStatus();
  void OpenPopup(int index);
  void Wheel(int delta);
  void AfterListCommand();
  void Changed();

  void ChangeCount();
  void MoveEntriesDialog();
  void Edit();
  void OpenEditor(int index);
  void Cut();
  void Copy();
  void Paste();
  void Delete();
  void Insert();
  void InsertCopiedHere();
  void InsertCopiedAtEnd();
  void InsertAtEnd();

  int m_bStagePlt;
  int m_iKind;
  cWindowPlace* m_pRect;
  cPaletteLinks m_links;
  int m_iTopRow = 0;
  bool m_bListChanged = false;
  bool m_bRepaintWanted = false;
  uint64_t m_nLastRepaint = 0;
  cSurface m_surface;
  QImage m_picture;
};

}  // namespace velmora
