#include "ui/controls/ThumbnailGrid.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace velmora {
namespace {

constexpr int kMargin = (cThumbnailGrid::kPitch - cThumbnailGrid::kPicture) / 2;

int RowsFor(size_t count) { return std::max(1, static_cast<int>((count + cThumbnailGrid::kColumns - 1) / cThumbnailGrid::kColumns)); }

}  // namespace

cThumbnailGrid::cThumbnailGrid(QWidget* parent, std::vector<QImage> pictures, int chosen)
    : QWidget(parent), m_pictures(std::move(pictures)) {
  setFixedSize(kColumns * kPitch, RowsFor(m_pictures.size()) * kPitch);
  Choose(chosen);
}

void cThumbnailGrid::Choose(int index) {
  m_nChosen = index >= 0 && index < static_cast<int>(m_pictures.size()) ? index : -1;
  update();
}

int cThumbnailGrid::IndexAt(QPoint point) const {
  if (point.x() < 0 || point.y() < 0 || point.x() >= kColumns * kPitch) return -1;
  const int index = point.y() / kPitch * kColumns + point.x() / kPitch;
  return index < static_cast<int>(m_pictures.size()) ? index : -1;
}

QRect cThumbnailGrid::CellRect(int index) const {
  return {index % kColumns * kPitch, index / kColumns * kPitch, kPitch, kPitch};
}

void cThumbnailGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  for (size_t i = 0; i < m_pictures.size(); ++i) {
    const QRect cell = CellRect(static_cast<int>(i));
    painter.drawImage(cell.topLeft() + QPoint(kMargin, kMargin), m_pictures[i]);
  }
  if (m_nChosen < 0) return;
  painter.setPen(QPen(Qt::white, 2));
  painter.drawRect(CellRect(m_nChosen).adjusted(1, 1, -1, -1));
}

void cThumbnailGrid::mousePressEvent(QMouseEvent* event) {
  const int index = IndexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || index < 0) return;
  Choose(index);
  if (onChosen) onChosen(index);
}

void cThumbnailGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || IndexAt(event->position().toPoint()) < 0) return;
  if (onAccepted) onAccepted();
}

QWidget* ScrollingThumbnails(QWidget* parent, cThumbnailGrid* grid, int visibleRows) {
  auto* area = new QScrollArea(parent);
  area->setWidget(grid);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  const int frame = 2 * area->frameWidth();
  area->setFixedSize(grid->width() + area->verticalScrollBar()->sizeHint().width() + frame,
                     std::min(grid->height(), visibleRows * cThumbnailGrid::kPitch) + frame);
  if (grid->Chosen() >= 0) area->ensureVisible(0, grid->CellRect(grid->Chosen()).center().y(), 0, cThumbnailGrid::kPitch);
  return area;
}

}  // namespace velmora
