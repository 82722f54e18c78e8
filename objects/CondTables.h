#pragma once
#include "objects/LabelTable.h"

namespace velmora {

// The enumerations of conditions and key conditions. Dialogs, summaries
// and checks all read these; no other place repeats their labels.
extern const cLabelTable CondKindTable;      // stored 1 to 7; row 0 is the unset record
extern const cLabelTable CondJudgeTable;
extern const cLabelTable KeyJudgeTable;
extern const cLabelTable KeyStateTable;
extern const cLabelTable KeyNameTable;       // the keys of m_vKeyState, in stored order
extern const cLabelTable CondRelationTable;
extern const cLabelTable CondBoolTable;
extern const cLabelTable LeftTypeTable;
extern const cLabelTable RightTypeTable;
extern const cLabelTable VarScopeTable;
extern const cLabelTable CoordTypeTable;
extern const cLabelTable GiantPosTable;
extern const cLabelTable CharaVarTable;      // stored 1 to 8
extern const cLabelTable DistTargetTable;
extern const cLabelTable DistAxisTable;
extern const cLabelTable DistRangeTable;
extern const cLabelTable DistShowTable;
extern const cLabelTable DistColorTable;
extern const cLabelTable CharaStateTable;

// Condition kinds by stored value.
enum eCondKind : int {
  kCondCommonVar = 1,
  kCondStageVar = 2,
  kCondCharaVar = 3,
  kCondStatus = 4,
  kCondStatus2 = 5,
  kCondStatus3 = 6,
  kCondDistance = 7,
};

// The keys of a key condition, in stored order.
inline constexpr int kKeyCount = 19;

}  // namespace velmora
