#pragma once

namespace velmora {

// The full size of the primary screen in pixels. The GUI sets it at start;
// without a display it stays at a fixed 1920 x 1080.
struct cScreenSize {
  int width = 1920;
  int height = 1080;
};

cScreenSize ScreenSize();
void SetScreenSize(const cScreenSize& size);

}  // namespace velmora
