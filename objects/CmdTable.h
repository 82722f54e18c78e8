#pragma once
#include <span>

#include "objects/LabelTable.h"

namespace velmora {

// Command kinds in the numbering of CmdTable.
enum eCmdKind : int {
  kCmdWait = 1, kCmdLine, kCmdGroundTurn, kCmdCircle, kCmdCharge, kCmdHoming, kCmdAvoid, kCmdStopMove,
  kCmdTurn, kCmdJump, kCmdShot, kCmdSword, kCmdSummonBlock, kCmdSummonChara, kCmdSummonItem, kCmdFlowOp,
  kCmdStageClear, kCmdGameWait, kCmdMessage, kCmdWarp, kCmdTargetSet, kCmdStatusOp, kCmdStatusOp2,
  kCmdVanish, kCmdGetItem, kCmdGraphic, kCmdAnimeSet, kCmdAnime, kCmdEffect, kCmdCharaEffect,
  kCmdScrEffect, kCmdPicture, kCmdScreenColor, kCmdBack, kCmdSound, kCmdBgm, kCmdCode, kCmdArrange,
  kCmdLoop,
};

// An item's kind K is kind K + 15 of CmdTable, except its own kind 1.
inline constexpr int kItemKindOffset = 15;
inline constexpr int kItemCmdFlowChange = 1;

// The parameter record a command owns besides its numbers.
enum class eCmdRecord { None, Move, Shot, CondList };

struct cCmdInfo {
  const char* label;
  int paramCount;
  eCmdRecord record;
  int dialogId;       // the dialog template; 0 where the kind has a dialog of its own
  int newTime;        // what a new command starts with
  bool newParallel;
  bool timeFromSword; // the time follows the chosen sword type
  int arrangeCount;   // parameters that アレンジ can reach: the rows of ArrangeTable
};

// Row 0 of both tables is the empty kind.
extern const std::span<const cCmdInfo> CmdTable;
extern const std::span<const cCmdInfo> ItemCmdTable;

// The row of a kind in the table of its numbering; null outside it. Inline:
// every command of a stage asks on its load.
inline const cCmdInfo* FindCmdInfo(bool itemCmd, int kind) {
  const std::span<const cCmdInfo> table = itemCmd ? ItemCmdTable : CmdTable;
  if (kind < 0 || static_cast<size_t>(kind) >= table.size()) return nullptr;
  return &table[static_cast<size_t>(kind)];
}
inline int CmdParamCount(bool itemCmd, int kind) {
  const cCmdInfo* info = FindCmdInfo(itemCmd, kind);
  return info ? info->paramCount : 0;
}
// The kind in CmdTable numbering, for the rules written in it.
inline int CmdTableKind(bool itemCmd, int kind) { return itemCmd ? kind + kItemKindOffset : kind; }

// Per CmdTable kind, the parameters that アレンジ can change: label and
// limits. Empty for a kind that アレンジ cannot reach.
std::span<const cParamDef> ArrangeTable(int kind);

}  // namespace velmora
