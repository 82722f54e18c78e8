#pragma once
#include <QImage>
#include <QWidget>

namespace velmora::bench {

// A window or widget painted into an image, as the screen gets it.
inline void Paint(QWidget* widget) {
  QImage target(widget->size(), QImage::Format_RGB32);
  widget->render(&target);
}

}  // namespace velmora::bench
