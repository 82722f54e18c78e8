#pragma once

namespace velmora {

class cStageWindow;

// The stage window's "ワールドマップ(&W)": the world map window opens over
// the stage window, which hides with its palettes until the world map
// closes, and the application's current mode follows. One window at a time;
// the stage window owns it.
void InstallWorldMapEntry(cStageWindow& stage);

// Opens the world map window as the menu entry does, or brings it to the
// front, with event `index` of the map in view.
void ShowWorldMapEvent(int index);

}  // namespace velmora
