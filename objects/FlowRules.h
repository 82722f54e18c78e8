#pragma once
#include "objects/Flow.h"

namespace velmora {

// The rules that tie a flow's fields to its trigger while the author
// edits it.

// The note the flow editor shows above the commands of a trigger, CP932;
// "" for a trigger without one. A note only: nothing stops a command that
// breaks it.
const char* TriggerNote(int trigger);
// Only a flow that runs always belongs to a group.
bool GroupAllowed(int trigger);
// Whether the character that caused the trigger can become a target.
bool TargetRelatedAllowed(int trigger);
// After the trigger changed: a group or a target that the new trigger
// doesn't allow goes.
void FollowTrigger(cEdFlow& flow);

}  // namespace velmora
