#pragma once
#include <string>

namespace velmora {

class cStageBack;

// The four scroll limits of the settings page, in its order.
enum eScrollEdge { kEdgeLeft, kEdgeRight, kEdgeTop, kEdgeBottom, kEdgeCount };

// How many bl of a stage of `width` x `height` a scroll limit hides from
// the player, as the stage will store it: a limit beyond the size is cut
// back to it first.
int HiddenWidth(eScrollEdge edge, int limit, int width, int height);

// A background layer's line in the settings list: whether it shows from
// the start, then its colour number or its picture. CP932.
std::string BackRowText(const cStageBack& back);

}  // namespace velmora
