#include "ui/framework/ToolStrip.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "platform/HostPath.h"

namespace velmora {

QPixmap ToolStrip(std::span<const QStyle::StandardPixmap> standard, std::span<const cToolStripFile> files, int size) {
  int images = static_cast<int>(standard.size());
  for (const cToolStripFile& file : files) images += file.images;
  QPixmap strip(size * images, size);
  strip.fill(Qt::transparent);
  QPainter painter(&strip);
  int at = 0;
  for (const QStyle::StandardPixmap picture : standard) {
    painter.drawPixmap(at, 0, QApplication::style()->standardIcon(picture).pixmap(size, size));
    at += size;
  }
  for (const cToolStripFile& file : files) {
    const QImage pictures(QString::fromStdString(HostPath(file.path)));
    if (!pictures.isNull()) painter.drawImage(at, 0, pictures, 0, 0, file.images * size, size);
    at += file.images * size;
  }
  return strip;
}

}  // namespace velmora
