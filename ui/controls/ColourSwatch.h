#pragma once

namespace velmora {

class cPicture;

// Fills a picture with a colour number of the project's palette, as the
// colour fields beside it are typed; a damaged number shows the nearest
// colour that exists.
void ShowProjectColour(cPicture& swatch, int colour);

}  // namespace velmora
