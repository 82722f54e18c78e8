#pragma once
#include <string>

#include "objects/Cond.h"

namespace velmora {

// The one-line text of a condition, CP932: the row of every list of
// conditions. Objects are named as the current editing context has them,
// and variables by the names they have now.
std::string CondSummaryText(const cEdCond& cond);

}  // namespace velmora
