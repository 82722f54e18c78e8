#pragma once
#include "objects/LabelTable.h"

namespace velmora {

// The enumerations of flows and of command parameters.
extern const cLabelTable TriggerTable;
extern const cLabelTable FlowIdTable;
extern const cLabelTable FlowGroupTable;
extern const cLabelTable FlowLetterTable;
extern const cLabelTable ObjectSelfTable;
extern const cLabelTable FlowOpTable;
extern const cLabelTable FlowRangeTable;
extern const cLabelTable ClearNextTable;
extern const cLabelTable ClearFaceTable;
extern const cLabelTable MsgPosTable;
extern const cLabelTable EffectPosTable;
extern const cLabelTable ShowTimeTable;
extern const cLabelTable TargetSetTable;
extern const cLabelTable TargetRangeTable;
extern const cLabelTable TargetNoneTable;
extern const cLabelTable OperatorTable;
extern const cLabelTable PercentTable;
extern const cLabelTable ArrangeVarTable;
extern const cLabelTable VanishTable;
extern const cLabelTable VanishRangeTable;
extern const cLabelTable ShowToggleTable;
extern const cLabelTable TurnTable;
extern const cLabelTable JumpTable;

// Triggers whose flows carry a note above their command list.
inline constexpr int kTriggerDeath = 5;
inline constexpr int kTriggerBeforeStage = 25;

}  // namespace velmora
