#pragma once
#include <QPixmap>
#include <QStyle>
#include <span>

namespace velmora {

// A strip of tool bar images in a bitmap of the project, e_bmp\ToolBar_*.
struct cToolStripFile {
  const char* path;  // stored path
  int images;
};

// The images of a tool bar side by side, `size` dots each: the platform's
// own pictures first, then those of the project's strips in order. A strip
// that can't be read leaves its room empty.
QPixmap ToolStrip(std::span<const QStyle::StandardPixmap> standard, std::span<const cToolStripFile> files, int size);

}  // namespace velmora
