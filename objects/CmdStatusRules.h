#pragma once
#include "objects/CmdWork.h"
#include "objects/CondRules.h"

namespace velmora {

// The rules of ステータスの操作 and ステータスの操作2. Their two sides name a
// status or a variable the way the two sides of a ステータス条件 do, so the
// command is read as such a condition and the rules of that dialog serve
// it: which controls take part, which names a variable list shows.

// The parameters of ステータスの操作 as the sides of a condition.
cEdCond StatusOpAsCond(const cCmdWork& w);

// The limits of the constant and of the two random values: the operand
// range of the left status's row of CharaStatusTable, for the system's
// statuses too; any value a variable holds for a variable on the left.
cValueRange StatusOpOperandRange(const cCmdWork& w);
// 「％で指定」 is open to a status that allows it in this command.
bool StatusOpPercentAllowed(const cCmdWork& w);

// ステータスの操作2: the flag named (null outside its table) and what a
// change of the object or of the flag does to the rest. Passing to or from
// the system starts the flag list over at its first row; a new flag, or a
// value the flag doesn't have, takes the flag's default value.
const cFlagInfo* StatusOp2Flag(const cCmdWork& w);
void FollowStatusOp2(cCmdWork& w, const cCmdWork& before);

}  // namespace velmora
