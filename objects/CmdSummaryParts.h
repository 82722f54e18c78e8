#pragma once
#include <span>
#include <string>

#include "objects/Cmd.h"
#include "objects/LabelTable.h"
#include "objects/RefNames.h"

namespace velmora {

// The pieces of a command's list line that its kind decides. The line puts
// the label between them; every detail brings its own leading blank.
struct cCmdLine {
  std::string head;
  std::string details;
};

using CmdRenderer = void (*)(const cEdCmd& cmd, cCmdLine& line);

// A renderer with the CmdTable kind it serves.
struct cCmdRenderRow {
  int kind;
  CmdRenderer render;
};

// The renderers, by family: moves, shots, summons and フローの操作 (1 to
// 16); statuses and variables (22, 23, 38); the rest of the game's
// commands (17 to 39 otherwise).
std::span<const cCmdRenderRow> ActionRenderRows();
std::span<const cCmdRenderRow> StatusRenderRows();
std::span<const cCmdRenderRow> GameRenderRows();

// Parameter i, 0 where a damaged record lacks it.
int Param(const cEdCmd& cmd, int i);
// The move record of a moved command; defaults where a damaged one lacks it.
const cEdMove& MoveOf(const cEdCmd& cmd);
const cEdShot& ShotOf(const cEdCmd& cmd);

// Heads: those that tell a parallel command by "P-" in front.
std::string HeadTime(const cEdCmd& cmd, int time);
std::string HeadEstimate(const cEdCmd& cmd, double time);
std::string HeadUnknown(const cEdCmd& cmd);
std::string HeadTotal(const cEdCmd& cmd, int time);
// Heads that stand as they are, parallel or not; UTF-8 like every system
// text, so they go through SysText.
inline constexpr const char* kHeadInstant = "P-0";
inline constexpr const char* kHeadEndless = "P-0(∞)";
inline constexpr const char* kHeadGameKnows = "?";

// " %s" with a label, a database row name or a text.
void AppendPiece(std::string& text, const char* piece);
inline void AppendPiece(std::string& text, const std::string& piece) { AppendPiece(text, piece.c_str()); }
void AppendLabel(std::string& text, const cLabelTable& table, int value);
void AppendDbName(std::string& text, eDbList list, int row);
// "(x,y)" of a move's target; with `useFlags`, "-" stands for an axis
// the move leaves free.
void AppendTargetAxes(std::string& text, const cEdMove& move, bool useFlags);
// " 「%s %s」": an entry number in three digits and its name.
void AppendEntry(std::string& text, int palette, ePaletteList list, int number);

}  // namespace velmora
