#include "core/SystemText.h"
#include "objects/CmdSummary.h"
#include "objects/CmdSummaryParts.h"
#include "objects/CmdTable.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"

// The lines of moves, shots, summons and フローの操作.
namespace velmora {
namespace {

constexpr int kSetTime = 0;
constexpr int kSetTimeDist = 1;
constexpr int kSetSpeedDist = 2;
constexpr int kAimDir = 0;
constexpr int kAimTarget = 1;
constexpr int kSummonPlace = 0;
constexpr int kSummonErase = 1;
constexpr int kSummonToggle = 2;
constexpr int kFlowRangeById = 2;

void AppendDist(std::string& text, const cEdMove& move) {
  AppendFormat(text, SysText("距%d"), move.m_nDist);
  if (move.m_nDistUnit == 1) text += "dot";
}

// The last piece of every moved command: the two settings it is timed by.
void AppendTiming(std::string& text, const cEdCmd& cmd) {
  const cEdMove& move = MoveOf(cmd);
  if (move.m_nSetType == kSetTime) {
    AppendFormat(text, SysText(" 時%d 速%d"), cmd.m_nTime, move.m_nSpeed);
  } else if (move.m_nSetType == kSetTimeDist) {
    AppendFormat(text, SysText(" 時%d "), cmd.m_nTime);
    AppendDist(text, move);
  } else if (move.m_nSetType == kSetSpeedDist) {
    AppendFormat(text, SysText(" 速%d "), move.m_nSpeed);
    AppendDist(text, move);
  }
}

// A move set by speed and distance takes a time the dialog reckons.
std::string MoveHead(const cEdCmd& cmd) {
  const cEdMove& move = MoveOf(cmd);
  if (move.m_nSetType == kSetSpeedDist) {
    return HeadEstimate(cmd, EstimateMoveTime(move.m_nSpeed, move.m_nDist, move.m_nDistUnit));
  }
  return HeadTime(cmd, cmd.m_nTime);
}

// A direction with its angle written straight behind it when it has one.
void AppendDirection(std::string& text, int dir, int angle) {
  AppendLabel(text, DirTable, dir);
  if (angle != 0) AppendFormat(text, "%d", angle);
}

void AppendTarget(std::string& text, const cEdMove& move, bool useFlags) {
  text += SysText(" 目標");
  AppendTargetAxes(text, move, useFlags);
}

void AppendAim(std::string& text, const cEdMove& move, bool targetFlags) {
  if (move.m_nAimType == kAimDir) AppendDirection(text, move.m_nDir, move.m_nAngle);
  if (move.m_nAimType == kAimTarget) AppendTarget(text, move, targetFlags);
}

void RenderTimeOnly(const cEdCmd& cmd, cCmdLine& line) { line.head = HeadTime(cmd, cmd.m_nTime); }

void RenderLine(const cEdCmd& cmd, cCmdLine& line) {
  line.head = MoveHead(cmd);
  AppendAim(line.details, MoveOf(cmd), true);
  AppendTiming(line.details, cmd);
}

void RenderGroundTurn(const cEdCmd& cmd, cCmdLine& line) {
  line.head = MoveHead(cmd);
  AppendTiming(line.details, cmd);
}

// Its distance is the end angle: the time follows from the arc.
void RenderCircle(const cEdCmd& cmd, cCmdLine& line) {
  const cEdMove& move = MoveOf(cmd);
  line.head = move.m_nSetType == kSetTimeDist ? HeadEstimate(cmd, EstimateArcTime(move.m_nDist, move.m_nAngle, move.m_nSpeed))
                                              : HeadTime(cmd, cmd.m_nTime);
  if (move.m_nSetType == kSetTime) AppendFormat(line.details, SysText(" 時%d"), cmd.m_nTime);
  if (move.m_nSetType == kSetTimeDist) AppendFormat(line.details, SysText(" 速%d"), move.m_nSpeed);
  AppendFormat(line.details, SysText(" 角%d～%d"), move.m_nAngle, move.m_nDist);
}

void RenderChase(const cEdCmd& cmd, cCmdLine& line) {
  line.head = MoveHead(cmd);
  AppendLabel(line.details, Target4Table, MoveOf(cmd).m_nTargetNo);
  AppendTiming(line.details, cmd);
}

// Its target is always shown whole, whatever the axis flags say.
void RenderAvoid(const cEdCmd& cmd, cCmdLine& line) {
  line.head = MoveHead(cmd);
  AppendAim(line.details, MoveOf(cmd), false);
  AppendTiming(line.details, cmd);
}

void RenderTurn(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendLabel(line.details, TurnTable, Param(cmd, 0));
}

// A jump lasts until the character lands.
void RenderJump(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadUnknown(cmd);
  const int type = Param(cmd, 0);
  if (type == 0 || type == 1) AppendFormat(line.details, SysText(" 高さ%d"), Param(cmd, 2));
  if (type == 2) AppendFormat(line.details, SysText(" 高さ%d～%d"), Param(cmd, 4), Param(cmd, 2));
}

void RenderShot(const cEdCmd& cmd, cCmdLine& line) {
  const cEdShot& shot = ShotOf(cmd);
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendFormat(line.details, SysText(" %s 数%d(%d)"), FormationTable.Label(shot.m_nFormation), shot.m_nCount,
               shot.m_nCloneCount);
  AppendDirection(line.details, shot.m_nDir, shot.m_nAngleShift);
  AppendFormat(line.details, SysText(" 速%d 威%d %s"), shot.m_nSpeed, shot.m_nPower,
               ShotMoveTable.Label(shot.m_nMoveType));
}

void RenderSword(const cEdCmd& cmd, cCmdLine& line) {
  const cEdShot& shot = ShotOf(cmd);
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendDbName(line.details, eDbList::SwordType, shot.m_nMoveType);
  AppendFormat(line.details, SysText(" 威%d"), shot.m_nPower);
}

void AppendSummoned(std::string& text, const cEdCmd& cmd, ePaletteList list) {
  const cEdShot& shot = ShotOf(cmd);
  AppendEntry(text, shot.m_nSummonSrc, list, shot.m_nSummonNo);
}

void RenderSummonBlock(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, cmd.m_nTime);
  const int type = ShotOf(cmd).m_nSummonType;
  if (type == kSummonErase) line.details += SysText(" ブロックを消す");
  if (type == kSummonPlace || type == kSummonToggle) AppendSummoned(line.details, cmd, ePaletteList::Block);
}

void RenderSummonChara(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendSummoned(line.details, cmd, ePaletteList::Chara);
}

void RenderSummonItem(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendSummoned(line.details, cmd, ePaletteList::Item);
}

void RenderFlowOp(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendFormat(line.details, SysText(" %s の %s を %s"), ObjectSelfTable.Label(Param(cmd, 3)),
               FlowRangeTable.Label(Param(cmd, 1)), FlowOpTable.Label(Param(cmd, 0)));
  if (Param(cmd, 1) == kFlowRangeById) AppendFormat(line.details, " (ID:%s)", FlowIdTable.Label(Param(cmd, 2)));
  if (cmd.m_pCondList && cmd.m_pCondList->m_bEnabled) line.details += SysText("  ★条件あり★");
}

constexpr cCmdRenderRow kRows[] = {
    {kCmdWait, &RenderTimeOnly},
    {kCmdLine, &RenderLine},
    {kCmdGroundTurn, &RenderGroundTurn},
    {kCmdCircle, &RenderCircle},
    {kCmdCharge, &RenderChase},
    {kCmdHoming, &RenderChase},
    {kCmdAvoid, &RenderAvoid},
    {kCmdStopMove, &RenderTimeOnly},
    {kCmdTurn, &RenderTurn},
    {kCmdJump, &RenderJump},
    {kCmdShot, &RenderShot},
    {kCmdSword, &RenderSword},
    {kCmdSummonBlock, &RenderSummonBlock},
    {kCmdSummonChara, &RenderSummonChara},
    {kCmdSummonItem, &RenderSummonItem},
    {kCmdFlowOp, &RenderFlowOp},
};

}  // namespace

std::span<const cCmdRenderRow> ActionRenderRows() { return kRows; }

}  // namespace velmora
