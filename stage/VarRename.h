#pragma once
#include <vector>

#include "objects/StageVar.h"
#include "objects/code/AskVarName.h"

namespace velmora {

// The names that the variable lists of a scope show: the common names, or
// those of the edit stage.
const std::vector<cStageVar>& ScopeVarNames(int scope);

// What the "_" beside a list of variables does: asks for a new name of
// variable `number` of `scope`. The common names are written to
// data\GValInfo.dat at once, and a failed write is told in an error box;
// a stage's names stay in the stage record, which then has changes to
// save. False when the author cancelled or the list has no such variable.
bool RenameVariable(OwnerWindow owner, int scope, int number, const cStringInput& input);

}  // namespace velmora
