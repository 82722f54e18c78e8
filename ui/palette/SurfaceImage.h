#pragma once
#include <QImage>

namespace velmora {

class cSurface;

// A surface's pixels as a widget can draw them; a null image for an empty
// surface.
QImage ToImage(const cSurface& surface);

}  // namespace velmora
