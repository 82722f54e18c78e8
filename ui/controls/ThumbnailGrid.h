#pragma once
#include <QImage>
#include <QWidget>
#include <functional>
#include <vector>

namespace velmora {

// Pictures of a list in rows of eight, with a frame on the chosen one: a
// click chooses, a double click chooses and accepts. Row i of the list is
// picture i.
class cThumbnailGrid : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kColumns = 8;
  static constexpr int kPicture = 32;
  static constexpr int kPitch = kPicture + 4;

  cThumbnailGrid(QWidget* parent, std::vector<QImage> pictures, int chosen);

  int Chosen() const { return m_nChosen; }
  // Out of the list chooses none.
  void Choose(int index);
  // The picture under a point of the grid, -1 beside every picture.
  int IndexAt(QPoint point) const;
  QRect CellRect(int index) const;

  std::function<void(int index)> onChosen;
  std::function<void()> onAccepted;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  std::vector<QImage> m_pictures;
  int m_nChosen = -1;
};

// The grid in a frame that scrolls once it has more than `visibleRows`
// rows, with the chosen picture scrolled into view.
QWidget* ScrollingThumbnails(QWidget* parent, cThumbnailGrid* grid, int visibleRows);

}  // namespace velmora
