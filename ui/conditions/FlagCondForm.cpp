#include "objects/CondTables.h"
#include "ui/conditions/CondForms.h"
#include "ui/conditions/CondIds.h"

namespace velmora {
namespace {

// ステータス条件2 (274): a flag of a character or of the system and one of
// its values. The flag list follows the object and the value list the flag.

cComboRows FlagRows(const cEdCond& c) { return LabelRows(FlagListOf(c.m_nLeftObject), FirstFlagRow(c.m_nLeftObject)); }

// The values run from the flag's smallest on, so a stored 1 is the first
// label of 巨大化.
cComboRows FlagValueRows(const cEdCond& c) {
  const cFlagInfo* flag = ChosenFlag(c);
  return flag ? LabelRows(cLabelTable{flag->values, flag->min}) : cComboRows{};
}

std::vector<cFormRow> FlagCondRows(cEdCond& w) {
  return {
      {"オブジェクト", ComboOf(kIdCondLeftObject, &w.m_nLeftObject, ObjectRows(true))},
      {"フラグ", ListCombo(kIdCondLeftStatus, &w.m_nLeftStatus)},
      {"値", ListCombo(kIdCondLeftVar, &w.m_nLeftVar)},
      {nullptr, TableCombo(kIdCondRelation, &w.m_nRelation, CondRelationTable), nullptr, nullptr, true},
  };
}

}  // namespace

const cCondKindForm kFlagCondForm{
    kCondStatus2,
    {
        .rows = FlagCondRows,
        .lists = {{kIdCondLeftStatus, FlagRows}, {kIdCondLeftVar, FlagValueRows}},
        .follow = FollowFlagChoice,
    },
};

}  // namespace velmora
