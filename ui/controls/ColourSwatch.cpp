#include "ui/controls/ColourSwatch.h"

#include <algorithm>

#include "graphics/ProjectPalette.h"
#include "ui/controls/Picture.h"

namespace velmora {

void ShowProjectColour(cPicture& swatch, int colour) {
  const cColourRef ref = ColourOf(ProjectPalette()[static_cast<size_t>(std::clamp(colour, 0, 255))]);
  swatch.BeginDraw().fill(QColor(RedOf(ref), GreenOf(ref), BlueOf(ref)));
  swatch.Present();
}

}  // namespace velmora
