#include "objects/CondRules.h"

#include <algorithm>
#include <iterator>

#include "core/SystemText.h"
#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"

namespace velmora {
namespace {

// What a new condition of each kind starts with, by kind.
using cDefaults = void (*)(cEdCond&);
constexpr cDefaults kNewDefaults[] = {
    nullptr,
    [](cEdCond& c) { c.m_nLeftVar = 1; },  // コモン変数条件
    [](cEdCond& c) { c.m_nLeftVar = 1; },  // ステージ変数条件
    [](cEdCond& c) { c.m_nLeftVar = 1; },  // キャラ変数条件
    [](cEdCond& c) {                       // ステータス条件
      c.m_nLeftVar = 1;
      c.m_nRightVar = 1;
    },
    [](cEdCond& c) { c.m_nLeftStatus = 1; },  // ステータス条件2
    [](cEdCond&) {},                          // ステータス条件3
    [](cEdCond& c) {                          // 距離条件: both display boxes on
      c.m_nValue = 10;
      c.m_nRightType = 1;
      c.m_nRightObject = 1;
    },
};

bool IsSystem(int object) { return object == kObjectSystem; }

template <class Row>
const Row& RowAt(std::span<const Row> table, int row) {
  return table[static_cast<size_t>(std::clamp(row, 0, static_cast<int>(table.size()) - 1))];
}

}  // namespace

cEdCond NewCondition(int kind) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kind);
  if (kind > 0 && kind < static_cast<int>(std::size(kNewDefaults))) kNewDefaults[kind](cond);
  return cond;
}

cCondSideView CondSide(const cEdCond& c, eCondSide side) {
  if (side == eCondSide::Left) {
    return {c.m_nLeftType == 0, c.m_nLeftType == 1, c.m_nLeftObject, c.m_nLeftStatus, c.m_nLeftCoord, c.m_nLeftScope};
  }
  return {c.m_nRightType == 2, c.m_nRightType == 3, c.m_nRightObject,
          c.m_nRightStatus,    c.m_nRightCoord,     c.m_nRightScope};
}

cSideEnables SideEnables(const cEdCond& cond, eCondSide side) {
  const cCondSideView view = CondSide(cond, side);
  cSideEnables enables;
  if (view.namesStatus) {
    const bool character = !IsSystem(view.object);
    enables.object = true;
    enables.coord = character && (view.status == kStatusX || view.status == kStatusY);
    enables.giant = enables.coord && view.status == kStatusY && view.coord != 0;
    enables.var = SideNamesCharaVar(cond, side);
  } else if (view.namesVar) {
    enables.scope = enables.var = enables.rename = true;
  }
  return enables;
}

bool SideNamesCharaVar(const cEdCond& cond, eCondSide side) {
  const cCondSideView view = CondSide(cond, side);
  return view.namesStatus && !IsSystem(view.object) && view.status == kStatusCharaVar;
}

int SideVarScope(const cEdCond& cond, eCondSide side) {
  const cCondSideView view = CondSide(cond, side);
  if (!view.namesVar) return -1;
  return view.scope >= kScopeStage ? kScopeStage : kScopeCommon;
}

std::span<const cStatusInfo> StatusListOf(int object) {
  return IsSystem(object) ? SystemStatusTable : CharaStatusTable;
}

cValueRange OperandRange(const cEdCond& cond) {
  const cCondSideView left = CondSide(cond, eCondSide::Left);
  if (!left.namesStatus) return {-kVarValueLimit, kVarValueLimit};
  // The system's statuses keep the ranges of the character's row of the
  // same number, as the game reads them.
  const cStatusInfo& row = RowAt(CharaStatusTable, left.status);
  return {row.operandMin, row.operandMax};
}

bool PercentAllowed(const cEdCond& cond) {
  const cCondSideView left = CondSide(cond, eCondSide::Left);
  return left.namesStatus && RowAt(CharaStatusTable, left.status).condPercent;
}

std::span<const cFlagInfo> FlagListOf(int object) { return IsSystem(object) ? SystemFlagTable : CharaFlagTable; }

int FirstFlagRow(int object) { return IsSystem(object) ? 0 : 1; }

const cFlagInfo* ChosenFlag(const cEdCond& cond) { return FlagAt(FlagListOf(cond.m_nLeftObject), cond.m_nLeftStatus); }

void FollowFlagChoice(cEdCond& cond, const cEdCond& before) {
  const bool otherList = IsSystem(cond.m_nLeftObject) != IsSystem(before.m_nLeftObject);
  if (otherList) {
    cond.m_nLeftStatus = static_cast<uint8_t>(FirstFlagRow(cond.m_nLeftObject));
  } else if (cond.m_nLeftStatus == before.m_nLeftStatus) {
    return;
  }
  const cFlagInfo* flag = ChosenFlag(cond);
  if (flag && (otherList || cond.m_nLeftVar < flag->min || cond.m_nLeftVar > flag->max)) {
    cond.m_nLeftVar = static_cast<int16_t>(flag->def);
  }
}

std::string DistancePasteRefusal(const std::vector<cEdCond>& clipboard) {
  const bool distance =
      std::any_of(clipboard.begin(), clipboard.end(), [](const cEdCond& c) { return c.m_nKind == kCondDistance; });
  return distance ? SysText("「距離条件」の貼り付けはできません！") : "";
}

cValueRange PressMaxRange(const cEdKeyCond& key) {
  return {std::clamp<int>(key.m_nPressMin, kPressTimeMin, kPressTimeMax), kPressTimeMax};
}

}  // namespace velmora
