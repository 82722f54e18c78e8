#pragma once
#include <string>

#include "objects/Flow.h"
#include "objects/KeyCond.h"

namespace velmora {

// The row texts of the flow editor's lists, CP932. Conditions use
// CondSummaryText and commands CmdSummaryText.

// "×%d %s %s": the number of commands, the group and the ID.
std::string FlowRowText(const cEdFlow& flow);
// The press span, then every pressed key joined by the sign of the key
// judge. The text keeps a blank at its end.
std::string KeyRowText(const cEdKeyCond& keyCond);

}  // namespace velmora
