#include "objects/CmdSummaryParts.h"

#include "core/SystemText.h"
#include "objects/GValInfo.h"

namespace velmora {
namespace {

const char* Parallel(const cEdCmd& cmd) { return cmd.m_bParallel ? "P-" : ""; }

ePalette PaletteOf(int source) { return source == 1 ? ePalette::Stage : ePalette::Common; }

}  // namespace

int Param(const cEdCmd& cmd, int i) {
  return i >= 0 && static_cast<size_t>(i) < cmd.m_vParam.size() ? cmd.m_vParam[static_cast<size_t>(i)] : 0;
}

const cEdMove& MoveOf(const cEdCmd& cmd) {
  static const cEdMove kDefault;
  return cmd.m_pMove ? *cmd.m_pMove : kDefault;
}

const cEdShot& ShotOf(const cEdCmd& cmd) {
  static const cEdShot kDefault;
  return cmd.m_pShot ? *cmd.m_pShot : kDefault;
}

std::string HeadTime(const cEdCmd& cmd, int time) {
  std::string head;
  AppendFormat(head, "%s%d", Parallel(cmd), time);
  return head;
}

std::string HeadEstimate(const cEdCmd& cmd, double time) {
  std::string head;
  AppendFormat(head, "%s%0.1f?", Parallel(cmd), time);
  return head;
}

std::string HeadUnknown(const cEdCmd& cmd) { return std::string(Parallel(cmd)) + "?"; }

std::string HeadTotal(const cEdCmd& cmd, int time) {
  std::string head;
  AppendFormat(head, "%s0(%d)", Parallel(cmd), time);
  return head;
}

void AppendPiece(std::string& text, const char* piece) { AppendFormat(text, " %s", piece); }

void AppendLabel(std::string& text, const cLabelTable& table, int value) { AppendPiece(text, table.Label(value)); }

void AppendDbName(std::string& text, eDbList list, int row) { AppendPiece(text, RefNames().DbRowName(list, row)); }

void AppendTargetAxes(std::string& text, const cEdMove& move, bool useFlags) {
  text += '(';
  text += !useFlags || move.m_bTargetX ? std::to_string(move.m_nTargetX) : "-";
  text += ',';
  text += !useFlags || move.m_bTargetY ? std::to_string(move.m_nTargetY) : "-";
  text += ')';
}

void AppendEntry(std::string& text, int palette, ePaletteList list, int number) {
  AppendFormat(text, SysText(" 「%s %s」"), VarNumberText(number).c_str(),
               RefNames().EntryName(PaletteOf(palette), list, number).c_str());
}

}  // namespace velmora
