#pragma once

namespace velmora {

inline constexpr int kMinStageWidth = 20;
inline constexpr int kMinStageHeight = 15;

// OK of the stage settings dialog: resizes the edit stage. `dirX` 1 grows
// or cuts on the left, `dirY` 1 at the top. The history is dropped
// whenever the size changes. false when the size stayed as it was.
bool ApplyStageSize(int width, int height, int dirX, int dirY);

}  // namespace velmora
