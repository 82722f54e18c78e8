#pragma once

namespace velmora {

// The controls of the condition dialogs. One family shares one set of ids,
// each named after the field of cEdCond that it edits, so a control keeps
// its id in every kind that shows the field. They start above the ids that
// every window keeps for itself (OK, Cancel, the placeholder, the bars).
enum eCondControlId : int {
  kIdCondValue = 1100,  // m_nValue: the constant, or the distance
  kIdCondValueSpin,
  kIdCondRandMin,
  kIdCondRandMinSpin,
  kIdCondRandMax,
  kIdCondRandMaxSpin,
  kIdCondRelation,  // m_nRelation
  kIdCondPercent,   // m_bPercent
  kIdCondDistAxis,  // m_nDistAxis
  kIdCondLeftType,
  kIdCondRightType,
  kIdCondRightVarSpin,  // 距離条件's extra distance is m_nRightVar
  // Each side of ステータス条件: the same controls in the same order.
  kIdCondLeftObject,
  kIdCondLeftStatus,
  kIdCondLeftCoord,
  kIdCondLeftGiant,
  kIdCondLeftScope,
  kIdCondLeftVar,
  kIdCondLeftVarName,  // "_" beside the left variable list
  kIdCondRightObject,
  kIdCondRightStatus,
  kIdCondRightCoord,
  kIdCondRightGiant,
  kIdCondRightScope,
  kIdCondRightVar,
  kIdCondRightVarName,  // "_" beside the right variable list
  kIdCondNote,
};

// A side's controls from its first one, the object list.
enum eCondSideControl : int { kSideObject, kSideStatus, kSideCoord, kSideGiant, kSideScope, kSideVar, kSideVarName };
static_assert(kIdCondRightObject - kIdCondLeftObject == kSideVarName + 1);
static_assert(kIdCondRightVarName - kIdCondRightObject == kSideVarName);

// The kind buttons of the selector, in the order of CondKindTable.
inline constexpr int kIdCondKindButton = 1200;  // + kind - 1

// The key condition dialog: one combo box per key, then the time.
enum eKeyCondControlId : int {
  kIdKeyState = 1100,  // + key, in the order of m_vKeyState
  kIdKeyFrontBack = 1130,
  kIdKeyPressMin,
  kIdKeyPressMinSpin,
  kIdKeyPressMax,
  kIdKeyPressMaxSpin,
  kIdKeyPressAny,
  kIdKeyJudge,
  kIdKeyNote,
};

}  // namespace velmora
