#include "core/SystemText.h"
#include "objects/CmdSummary.h"
#include "objects/CmdSummaryParts.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "objects/StatusTables.h"
#include "objects/code/VarCombo.h"

// The lines of the commands that change statuses, flags and variables.
namespace velmora {
namespace {

constexpr int kSideStatus = 0;
constexpr int kSideVariable = 1;
constexpr int kRightConstant = 0;
constexpr int kRightRandom = 1;
constexpr int kRightStatus = 2;
constexpr int kRightVariable = 3;
constexpr int kArrangeCharaVar = 2;

bool IsCharacter(int object) { return object >= 0 && object < kObjectSystem; }
const char* Object(int row) { return ObjectLabel(CurrentObjectContext(), row); }

// A variable as its combo row shows it: the number and the name.
void AppendVariable(std::string& text, const char* format, int scope, int number) {
  AppendFormat(text, SysText(format), VarComboRowText(number, VarName(scope, number)).c_str());
}

// A status of a character or of the system. The left side closes with
// " を", written by the caller where the right side has none.
void AppendStatusSide(std::string& text, int object, int status, int charaVar, int coord, const char* tail) {
  if (IsCharacter(object) && status == kStatusCharaVar) {
    AppendFormat(text, SysText(" %s の 「%s」"), Object(object), CharaVarTable.Label(charaVar));
  } else if (IsCharacter(object)) {
    AppendFormat(text, SysText(" %s の %s"), Object(object), StatusLabel(CharaStatusTable, status));
    if (status == kStatusX || status == kStatusY) AppendFormat(text, " (%s)", CoordTypeTable.Label(coord));
  } else if (object == kObjectSystem) {
    AppendPiece(text, StatusLabel(SystemStatusTable, status));
  } else {
    return;
  }
  text += tail;
}

void AppendStatusLeft(std::string& text, const cEdCmd& cmd) {
  if (Param(cmd, 0) == kSideVariable) AppendVariable(text, " 「%s」を", Param(cmd, 1), Param(cmd, 2));
  if (Param(cmd, 0) != kSideStatus) return;
  const int object = Param(cmd, 3);
  const int status = Param(cmd, 4);
  // The character variable is written close to its quotes, the rest apart.
  const bool closeTail = IsCharacter(object) && status == kStatusCharaVar;
  AppendStatusSide(text, object, status, Param(cmd, 2), Param(cmd, 18), SysText(closeTail ? "を" : " を"));
}

void AppendStatusRight(std::string& text, const cEdCmd& cmd) {
  switch (Param(cmd, 6)) {
    case kRightConstant:
      AppendFormat(text, " %d", Param(cmd, 7));
      break;
    case kRightRandom:
      AppendFormat(text, SysText(" %d～%d"), Param(cmd, 8), Param(cmd, 9));
      break;
    case kRightStatus:
      AppendStatusSide(text, Param(cmd, 12), Param(cmd, 13), Param(cmd, 11), Param(cmd, 19), "");
      break;
    case kRightVariable:
      AppendVariable(text, " 「%s」", Param(cmd, 10), Param(cmd, 11));
      break;
    default:
      break;
  }
}

void RenderStatusOp(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendStatusLeft(line.details, cmd);
  AppendLabel(line.details, OperatorTable, Param(cmd, 5));
  AppendStatusRight(line.details, cmd);
  if (Param(cmd, 14)) line.details += "%";
}

// A flag's value labels begin at its smallest value, so 巨大化, stored from
// 1, reads its label number value - 1.
const char* FlagValue(const cFlagInfo* flag, int value) { return flag ? flag->ValueLabel(value) : ""; }
const char* FlagLabel(const cFlagInfo* flag) { return flag ? SysText(flag->label) : ""; }

void RenderStatusOp2(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  const int object = Param(cmd, 0);
  if (IsCharacter(object)) {
    const cFlagInfo* flag = FlagAt(CharaFlagTable, Param(cmd, 1));
    AppendFormat(line.details, SysText(" %s の %s を %s にする"), Object(object), FlagLabel(flag),
                 FlagValue(flag, Param(cmd, 2)));
  } else if (object == kObjectSystem) {
    const cFlagInfo* flag = FlagAt(SystemFlagTable, Param(cmd, 1));
    AppendFormat(line.details, SysText(" %s を %s にする"), FlagLabel(flag), FlagValue(flag, Param(cmd, 2)));
  }
}

const char* ArrangeVarName(int scope, int number) {
  if (scope == kScopeCommon || scope == kScopeStage) return VarName(scope, number).c_str();
  return scope == kArrangeCharaVar ? CharaVarTable.Label(number) : "";
}

void RenderArrange(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  const int kind = Param(cmd, 0);
  const std::span<const cParamDef> params = ArrangeTable(kind);
  if (params.empty()) {
    line.details = SysText(" ※不正です。設定を見直して下さい。");
    return;
  }
  const int param = Param(cmd, 1);
  const char* paramLabel = param >= 0 && static_cast<size_t>(param) < params.size() ? params[static_cast<size_t>(param)].label : "";
  AppendFormat(line.details, SysText(" 次の 「%s」 の %s %s"), SysText(CmdTable[static_cast<size_t>(kind)].label),
               SysText(paramLabel), OperatorTable.Label(Param(cmd, 2)));
  AppendFormat(line.details, SysText(" 「%s %s」"), VarNumberText(Param(cmd, 4)).c_str(),
               ArrangeVarName(Param(cmd, 3), Param(cmd, 4)));
}

constexpr cCmdRenderRow kRows[] = {
    {kCmdStatusOp, &RenderStatusOp},
    {kCmdStatusOp2, &RenderStatusOp2},
    {kCmdArrange, &RenderArrange},
};

}  // namespace

std::span<const cCmdRenderRow> StatusRenderRows() { return kRows; }

}  // namespace velmora
