#pragma once
#include <string>

#include "graphics/Colour.h"

namespace velmora {

class cPixelImage;

// A font as a surface asks for it: face name and cell size, normal weight,
// the Japanese character set.
struct cFontChoice {
  std::string name;  // CP932
  int width = 0;
  int height = 0;
};

// Draws one line of CP932 text into an image. The logic has no fonts of its
// own; the GUI installs a renderer backed by real ones. Without a renderer
// text is simply not drawn.
class cTextRenderer {
 public:
  virtual ~cTextRenderer() = default;
  // `font` is null when the surface has none selected: the renderer's
  // default font applies.
  virtual void DrawLine(cPixelImage& target, int x, int y, const std::string& line, cColourRef colour,
                        bool transparentBackground, const cFontChoice* font) = 0;
};

cTextRenderer* TextRenderer();
void SetTextRenderer(cTextRenderer* renderer);  // not owned; null removes it

}  // namespace velmora
