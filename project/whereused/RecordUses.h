#pragma once
#include <vector>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "project/whereused/Use.h"

namespace velmora {

// Adds every use that a palette entry or a placed cell holds: its fields,
// its appearance conditions, and its flows and commands with their
// conditions and code. `place` has the area, list, entry number or cell
// position and the name set; the walk fills in flow, command, condition,
// the target and the summary line. Variables of the stage scope name the
// variables of the stage the entry belongs to, so their summaries read the
// installed stage names.
void CollectEntryUses(const cEdBlock& block, const cUse& place, std::vector<cUse>& uses);
void CollectEntryUses(const cEdChara& chara, const cUse& place, std::vector<cUse>& uses);
void CollectEntryUses(const cEdItem& item, const cUse& place, std::vector<cUse>& uses);

// The uses of one command alone, at `place` (flow and command set).
void CollectCmdUses(const cEdCmd& cmd, const cUse& place, std::vector<cUse>& uses);

}  // namespace velmora
