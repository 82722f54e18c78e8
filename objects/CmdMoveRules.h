#pragma once
#include <string>

#include "core/Prompt.h"
#include "objects/CmdWork.h"

namespace velmora {

// The ways a move's time, speed and distance are set: the rows of
// TimeSpeedDistTable.
enum eMoveSetType : int { kSetTimeSpeed = 0, kSetTimeDist = 1, kSetSpeedDist = 2 };

// The two lines a move dialog shows under its settings: the running ratio
// and the rule it should keep (CP932). Both empty with 時間と速度, which
// sets no distance to reckon with. The clone values don't count, as the
// ratio line says.
struct cMoveRatioLines {
  std::string ratio;
  std::string rule;
};
cMoveRatioLines MoveRatioLines(const cCmdWork& work);

// The check of OK in a move dialog. With 速度と距離 a ratio strictly
// between -0.10 and 0.10 is refused with a message; with 時間と距離 a ratio
// beyond -600 to 600 asks whether to keep it. False keeps the dialog open.
bool AcceptMoveRatio(const cCmdWork& work, OwnerWindow owner);

}  // namespace velmora
