#pragma once

namespace velmora::sample {

// Fills the common palette with a few blocks, characters (one player, one
// enemy that walks and jumps) and items (a coin that raises the score).
void FillSampleCommonPalette();

}  // namespace velmora::sample
