#pragma once
#include <QImage>
#include <QRect>

#include "graphics/Surface.h"
#include "ui/worldmap/WorldPalette.h"

namespace velmora {

// "マップチップパレット": the chips of the world map, five to a row, of
// which a click picks the brush.
class cChipPaletteWindow : public cWorldPalette {
 public:
  static constexpr int kColumns = 5;
  static constexpr int kCell = 32;
  static constexpr int kClientWidth = kColumns * kCell;
  static constexpr int kMaxRows = 15;

  cChipPaletteWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place, const cWorldPaletteLinks& links);

  // Shows the window at its kept place, or right of `anchor`, the map
  // window's frame.
  bool Open(const QRect& anchor);
  // After the chip list or the selection changed.
  void Refresh();
  // The chip under a point of the drawing area; it may lie beyond the list.
  int IndexAt(int x, int y) const;
  int TopRow() const;
  const QImage& Picture() const { return m_picture; }

 protected:
  void OnInitDialog() override;
  void OnDialogCommand(int id, int notice) override;
  bool OnDialogMessage(QEvent& event) override;
  void OnLButtonDown() override;
  void OnPaint(QPainter& painter) override;

 private:
  int Rows() const;
  void FitHeight();
  void Render();
  void ShowStatus();

  cSurface m_surface;
  QImage m_picture;
};

}  // namespace velmora
