#pragma once
#include <string>

#include "graphics/PixelImage.h"

namespace velmora {

// Simple drawing in palette indices on an 8-bit image, for pictures the
// program makes itself. Everything is clipped to the image.
class cIndexedPainter {
 public:
  explicit cIndexedPainter(cPixelImage& image) : m_image(image) {}

  void Rect(int x, int y, int w, int h, int index);
  void Frame(int x, int y, int w, int h, int index);
  void Disc(int cx, int cy, int radius, int index);
  void Ring(int cx, int cy, int radius, int index);
  void Line(int x1, int y1, int x2, int y2, int index);  // both ends drawn
  // Capital letters, digits, '-', '+' and ' ' in a 3 x 5 dot face, each dot
  // `scale` pixels; characters stand 4 dots apart.
  void Text(int x, int y, const std::string& text, int index, int scale = 1);
  static int TextWidth(const std::string& text, int scale = 1);

 private:
  void Dot(int x, int y, int index);
  cPixelImage& m_image;
};

}  // namespace velmora
