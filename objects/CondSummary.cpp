#include "objects/CondSummary.h"

#include "core/SystemText.h"
#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "objects/StatusTables.h"
#include "objects/code/VarCombo.h"

namespace velmora {
namespace {

const char* Object(int row) { return ObjectLabel(CurrentObjectContext(), row); }

// A variable as its combo row shows it: the number and the name.
void AppendVariable(std::string& text, const char* format, int scope, int number) {
  AppendFormat(text, SysText(format), VarComboRowText(number, VarName(scope, number)).c_str());
}

// One side of a status condition that names a status of a character; the
// system's side is worded differently on the left and on the right.
void AppendStatusSide(std::string& text, int object, int status, int charaVar, int coord) {
  if (status == kStatusCharaVar) {
    AppendFormat(text, SysText(" %s の 「%s」 が"), Object(object), CharaVarTable.Label(charaVar));
  } else if (status == kStatusX || status == kStatusY) {
    AppendFormat(text, SysText(" %s の %s (%s) が"), Object(object), StatusLabel(CharaStatusTable, status),
                 CoordTypeTable.Label(coord));
  } else {
    AppendFormat(text, SysText(" %s の %s が"), Object(object), StatusLabel(CharaStatusTable, status));
  }
}

void AppendStatusLeft(std::string& text, const cEdCond& c) {
  if (c.m_nLeftType == 1) {
    AppendVariable(text, " 「%s」が", c.m_nLeftScope, c.m_nLeftVar);
  } else if (c.m_nLeftType == 0 && c.m_nLeftObject == kObjectSystem) {
    AppendFormat(text, SysText(" %s が"), StatusLabel(SystemStatusTable, c.m_nLeftStatus));
  } else if (c.m_nLeftType == 0) {
    AppendStatusSide(text, c.m_nLeftObject, c.m_nLeftStatus, c.m_nLeftVar, c.m_nLeftCoord);
  }
}

void AppendStatusRight(std::string& text, const cEdCond& c) {
  switch (c.m_nRightType) {
    case 0:
      AppendFormat(text, " %d", c.m_nValue);
      break;
    case 1:
      AppendFormat(text, SysText(" %d～%d"), c.m_nRandMin, c.m_nRandMax);
      break;
    case 2:
      if (c.m_nRightObject == kObjectSystem) {
        AppendFormat(text, " %s", StatusLabel(SystemStatusTable, c.m_nRightStatus));
      } else {
        AppendStatusSide(text, c.m_nRightObject, c.m_nRightStatus, c.m_nRightVar, c.m_nRightCoord);
      }
      break;
    case 3:
      AppendVariable(text, " 「%s」", c.m_nRightScope, c.m_nRightVar);
      break;
    default:
      break;
  }
}

void AppendStatus(std::string& text, const cEdCond& c) {
  text += SysText(" ：");
  AppendStatusLeft(text, c);
  AppendStatusRight(text, c);
  if (c.m_bPercent) text += "%";
  AppendFormat(text, " %s", CondRelationTable.Label(c.m_nRelation));
}

void AppendFlag(std::string& text, const cEdCond& c) {
  text += SysText(" ：");
  if (c.m_nLeftObject < kObjectSystem) {
    const cFlagInfo* flag = FlagAt(CharaFlagTable, c.m_nLeftStatus);
    AppendFormat(text, SysText(" %s の %s が %s"), Object(c.m_nLeftObject), flag ? SysText(flag->label) : "",
                 flag ? flag->ValueLabel(c.m_nLeftVar) : "");
  } else {
    const cFlagInfo* flag = FlagAt(SystemFlagTable, c.m_nLeftStatus);
    AppendFormat(text, SysText(" %s が %s"), flag ? SysText(flag->label) : "",
                 flag ? flag->ValueLabel(c.m_nLeftVar) : "");
  }
  AppendFormat(text, " %s", CondRelationTable.Label(c.m_nRelation));
}

}  // namespace

std::string CondSummaryText(const cEdCond& c) {
  std::string text;
  AppendFormat(text, "%s", CondKindTable.Label(c.m_nKind));
  switch (c.m_nKind) {
    case kCondCommonVar:
    case kCondStageVar:
      AppendVariable(text, " ： 「%s」 が", c.m_nKind == kCondCommonVar ? kScopeCommon : kScopeStage,
                     c.m_nLeftVar);
      AppendFormat(text, " %d %s", c.m_nValue, CondRelationTable.Label(c.m_nRelation));
      break;
    case kCondCharaVar:
      AppendFormat(text, SysText(" ： キャラ変数 「%s」が %d %s"), CharaVarTable.Label(c.m_nLeftVar), c.m_nValue,
                   CondRelationTable.Label(c.m_nRelation));
      break;
    case kCondStatus:
      AppendStatus(text, c);
      break;
    case kCondStatus2:
      AppendFlag(text, c);
      break;
    case kCondStatus3:
      text += SysText(" ：");
      AppendFormat(text, SysText(" %s が %s"), Object(c.m_nLeftObject), CharaStateTable.Label(c.m_nLeftStatus));
      AppendFormat(text, " %s", CondBoolTable.Label(c.m_nRelation));
      break;
    case kCondDistance:
      AppendFormat(text, SysText(" ： %s が %s %d %s"), DistTargetTable.Label(c.m_nLeftObject),
                   DistAxisTable.Label(c.m_nDistAxis), c.m_nValue, DistRangeTable.Label(c.m_nRelation));
      break;
    default:
      break;
  }
  return text;
}

}  // namespace velmora
