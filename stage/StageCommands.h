#pragma once
#include <bitset>

namespace velmora {

enum class eClearLayers { All, Blocks, Characters, Items };

// Asks first; true when the layers were cleared.
bool ClearLayersCommand(eClearLayers which);

inline constexpr int kGroupCount = 60;
// The group numbers that some cell of the character layer belongs to, as
// the group window shows them.
std::bitset<kGroupCount> UsedGroupNumbers();

}  // namespace velmora
