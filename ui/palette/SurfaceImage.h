#pragma once
#include <QImage>

class QPainter;

namespace velmora {

class cSurface;

// A surface's pixels as a widget can draw them; a null image for an empty
// surface.
QImage ToImage(const cSurface& surface);
// Draws a 32-bit surface at the painter's origin without copying it, as a
// window shows its off-screen view.
void DrawView(QPainter& painter, const cSurface& view);
// Makes the view a 32-bit surface of a drawing area's size, anew only when
// that size changed; an empty area gets one dot.
void FitView(cSurface& view, int width, int height);

}  // namespace velmora
