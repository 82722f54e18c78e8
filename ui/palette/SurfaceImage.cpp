#include "ui/palette/SurfaceImage.h"

#include <QPainter>
#include <algorithm>

#include "graphics/Surface.h"

namespace velmora {

QImage ToImage(const cSurface& surface) {
  if (!surface.IsLoaded()) return QImage();
  const cPixelImage& pixels = surface.Image();
  if (pixels.Depth() == 32) {
    // Blue, green, red and a zero byte: the layout of a 32-bit RGB image.
    const QImage view(pixels.Row(0), pixels.Width(), pixels.Height(), pixels.Stride(), QImage::Format_RGB32);
    return view.copy();
  }
  QImage image(pixels.Width(), pixels.Height(), QImage::Format_RGB32);
  for (int y = 0; y < pixels.Height(); ++y) {
    for (int x = 0; x < pixels.Width(); ++x) {
      const cColourRef colour = pixels.ColourAt(x, y);
      image.setPixel(x, y, qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour)));
    }
  }
  return image;
}

void DrawView(QPainter& painter, const cSurface& view) {
  const cPixelImage& image = view.Image();
  painter.drawImage(0, 0, QImage(image.Row(0), image.Width(), image.Height(), image.Stride(), QImage::Format_RGB32));
}

void FitView(cSurface& view, int width, int height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  if (view.Width() != width || view.Height() != height) view.CreateSurface(width, height, 32, false);
}

}  // namespace velmora
