#pragma once
#include <string>

#include "objects/Cmd.h"

namespace velmora {

// The one-line text of a command in its list, CP932: the head (step number,
// "P-" when parallel), the label between two " ◆", then the details. Names
// of database rows and palette entries come from RefNames(), variables by
// the names they have now, objects as the current editing context has them.
// A kind outside its table gives "".
std::string CmdSummaryText(const cEdCmd& cmd);

// The time (1/10s) a move of `dist` (half blocks, or dots with `unit` 1)
// takes at `speed`; 0.0 at speed 0. The command dialogs show the same.
double EstimateMoveTime(int speed, int dist, int unit);
// The time (1/10s) an arc from angle `start` to `end` takes at `speed`;
// 0.0 at speed 0.
double EstimateArcTime(int end, int start, int speed);

}  // namespace velmora
