#pragma once

namespace velmora {

// Text on the editor's surfaces (the world numbers of the map, say) in the
// desktop's fonts: the logic's surfaces draw through the one renderer that
// this installs, with no smoothing, so that a line sits on any colour as
// sharply as on the pictures around it.
void InstallQtTextRenderer();

}  // namespace velmora
