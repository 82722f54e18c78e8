#include "objects/CondTables.h"
#include "ui/conditions/CondForms.h"
#include "ui/conditions/CondIds.h"

namespace velmora {
namespace {

// ステータス条件 (269): a left side and a right side, each a status of an
// object or a variable, the right one also a constant or a random value,
// and the relation between them.

// The controls and fields of one side; its controls' ids run on from
// the first (eCondSideControl).
struct cSide {
  eCondSide side;
  const char* group;
  int firstId;
  uint8_t cEdCond::*objectField;
  uint8_t cEdCond::*statusField;
  uint8_t cEdCond::*coordField;
  uint8_t cEdCond::*giantField;
  uint8_t cEdCond::*scopeField;
  int16_t cEdCond::*varField;
  const char* coordNote;
  int Id(eCondSideControl control) const { return firstId + control; }
};

constexpr cSide kLeft{eCondSide::Left,           "左辺",
                      kIdCondLeftObject,         &cEdCond::m_nLeftObject,
                      &cEdCond::m_nLeftStatus,   &cEdCond::m_nLeftCoord,
                      &cEdCond::m_nLeftGiantPos, &cEdCond::m_nLeftScope,
                      &cEdCond::m_nLeftVar,      "(dot)　☆「相対座標」の原点は自分"};

constexpr cSide kRight{eCondSide::Right,           "右辺",
                       kIdCondRightObject,         &cEdCond::m_nRightObject,
                       &cEdCond::m_nRightStatus,   &cEdCond::m_nRightCoord,
                       &cEdCond::m_nRightGiantPos, &cEdCond::m_nRightScope,
                       &cEdCond::m_nRightVar,      nullptr};

// The rows that both sides have: the status of an object, or a variable.
void AppendSideRows(std::vector<cFormRow>& rows, cEdCond& w, const cSide& s) {
  rows.push_back({"オブジェクト", ComboOf(s.Id(kSideObject), &(w.*s.objectField), ObjectRows(true))});
  rows.push_back({"ステータス", ListCombo(s.Id(kSideStatus), &(w.*s.statusField))});
  rows.push_back(
      {"座標タイプ", TableCombo(s.Id(kSideCoord), &(w.*s.coordField), CoordTypeTable), nullptr, s.coordNote});
  rows.push_back({"巨大化キャラの座標位置", TableCombo(s.Id(kSideGiant), &(w.*s.giantField), GiantPosTable)});
  rows.push_back({"変数", TableCombo(s.Id(kSideScope), &(w.*s.scopeField), VarScopeTable)});
  rows.push_back({nullptr, ListCombo(s.Id(kSideVar), &(w.*s.varField)), nullptr, nullptr, true});
  rows.push_back({nullptr, cButtonDesc{s.Id(kSideVarName), "_"}, nullptr, nullptr, true});
}

std::vector<cFormRow> LeftRows(cEdCond& w) {
  std::vector<cFormRow> rows = {{"種類", TableCombo(kIdCondLeftType, &w.m_nLeftType, LeftTypeTable)}};
  AppendSideRows(rows, w, kLeft);
  return rows;
}

std::vector<cFormRow> RightRows(cEdCond& w) {
  std::vector<cFormRow> rows = {
      {"種類", TableCombo(kIdCondRightType, &w.m_nRightType, RightTypeTable)},
      {"定数", cEditValDesc{kIdCondValue, &w.m_nValue, -kVarValueLimit, kVarValueLimit, kIdCondValueSpin, 1}},
      {"乱数　最小",
       cEditValDesc{kIdCondRandMin, &w.m_nRandMin, -kVarValueLimit, kVarValueLimit, kIdCondRandMinSpin, 1}},
      {"最大", cEditValDesc{kIdCondRandMax, &w.m_nRandMax, -kVarValueLimit, kVarValueLimit, kIdCondRandMaxSpin, 1},
       nullptr, nullptr, true},
  };
  AppendSideRows(rows, w, kRight);
  rows.push_back({nullptr, cCheckDesc{kIdCondPercent, &w.m_bPercent, "％で指定"}});
  return rows;
}

std::vector<cFormRow> StatusCondRows(cEdCond& w) {
  return {
      FormColumns({{FormGroup(kLeft.group, LeftRows(w))}, {FormGroup(kRight.group, RightRows(w))}}),
      {"関係", TableCombo(kIdCondRelation, &w.m_nRelation, CondRelationTable)},
  };
}

template <const cSide& S>
cComboRows StatusRows(const cEdCond& c) {
  return LabelRows(StatusListOf(c.*S.objectField));
}

// A side that names a variable lists the names of its scope; otherwise the
// list holds the character variables, which it shows while the side names
// the status キャラ変数.
template <const cSide& S>
cComboRows SideVarRows(const cEdCond& c) {
  const int scope = SideVarScope(c, S.side);
  return scope < 0 ? LabelRows(CharaVarTable) : VarRows(scope);
}

template <const cSide& S>
int SideScope(const cEdCond& c) {
  return SideVarScope(c, S.side);
}

template <const cSide& S, bool cSideEnables::*Member>
bool SideOn(const cEdCond& c) {
  return SideEnables(c, S.side).*Member;
}

template <const cSide& S>
std::vector<cRuleForm<cEdCond>::cEnable> SideEnableRules() {
  return {{S.Id(kSideObject), SideOn<S, &cSideEnables::object>}, {S.Id(kSideStatus), SideOn<S, &cSideEnables::object>},
          {S.Id(kSideCoord), SideOn<S, &cSideEnables::coord>},   {S.Id(kSideGiant), SideOn<S, &cSideEnables::giant>},
          {S.Id(kSideScope), SideOn<S, &cSideEnables::scope>},   {S.Id(kSideVar), SideOn<S, &cSideEnables::var>},
          {S.Id(kSideVarName), SideOn<S, &cSideEnables::rename>}};
}

std::vector<cRuleForm<cEdCond>::cEnable> StatusEnableRules() {
  std::vector<cRuleForm<cEdCond>::cEnable> rules = SideEnableRules<kLeft>();
  for (const auto& rule : SideEnableRules<kRight>()) rules.push_back(rule);
  const auto constant = [](const cEdCond& c) { return c.m_nRightType == 0; };
  const auto random = [](const cEdCond& c) { return c.m_nRightType == 1; };
  rules.push_back({kIdCondValue, constant});
  rules.push_back({kIdCondRandMin, random});
  rules.push_back({kIdCondRandMax, random});
  rules.push_back({kIdCondPercent, PercentAllowed, true});
  return rules;
}

}  // namespace

const cCondKindForm kStatusCondForm{
    kCondStatus,
    {
        .rows = StatusCondRows,
        // Each side's status list before its variable list, which follows
        // the status chosen.
        .lists = {{kIdCondLeftStatus, StatusRows<kLeft>},
                  {kIdCondLeftVar, SideVarRows<kLeft>},
                  {kIdCondRightStatus, StatusRows<kRight>},
                  {kIdCondRightVar, SideVarRows<kRight>}},
        .ranges = {{kIdCondValue, OperandRange}, {kIdCondRandMin, OperandRange}, {kIdCondRandMax, OperandRange}},
        .enables = StatusEnableRules(),
        .renames = {{kIdCondLeftVarName, kIdCondLeftVar, SideScope<kLeft>},
                    {kIdCondRightVarName, kIdCondRightVar, SideScope<kRight>}},
    },
};

}  // namespace velmora
