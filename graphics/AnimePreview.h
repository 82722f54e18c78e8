#pragma once
#include <cstdint>

#include "graphics/Surface.h"
#include "graphics/stageview/ObjectDraw.h"
#include "project/AnimeRecords.h"

namespace velmora {

// The 32 × 32 preview of an animation: its sample object at the sample's
// starting cell plus the cell of the step the runner is on, plus `shift`
// (the animation set's flying shift for its flying slots). Characters and
// their own bitmaps step through the columns of their sheet; blocks, items
// and shots have no cells and step on to the pictures that follow theirs.
cObjectLook AnimePreviewLook(const cEdAnime& sample, int32_t runnerValue, int shift);

inline constexpr int kAnimePreviewSize = 32;

// Draws the look on colour 0 into `out`, made 32 × 32 when it isn't. A
// picture that isn't loaded, as a missing file leaves it, shows as empty.
void DrawAnimePreview(cSurface& out, const cObjectLook& look);

}  // namespace velmora
