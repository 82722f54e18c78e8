#include "ui/conditions/CondForms.h"

#include <iterator>

#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "ui/conditions/CondIds.h"

namespace velmora {
namespace {

// ---- コモン変数条件 (196), ステージ変数条件 (197), キャラ変数条件 (218) ----

std::vector<cFormRow> NamedVarRows(cEdCond& w) {
  std::vector<cFormRow> rows = {
      {"変数", ListCombo(kIdCondLeftVar, &w.m_nLeftVar)},
      {nullptr, cButtonDesc{kIdCondLeftVarName, "_"}, nullptr, nullptr, true},
  };
  for (cFormRow& row : ValueRelationRows(w)) rows.push_back(std::move(row));
  return rows;
}

template <int Scope>
cRuleForm<cEdCond> NamedVarRules() {
  return {
      .rows = NamedVarRows,
      .lists = {{kIdCondLeftVar, [](const cEdCond&) { return VarRows(Scope); }}},
      .renames = {{kIdCondLeftVarName, kIdCondLeftVar, [](const cEdCond&) { return Scope; }}},
  };
}

const cCondKindForm kCommonVarCondForm{kCondCommonVar, NamedVarRules<kScopeCommon>()};
const cCondKindForm kStageVarCondForm{kCondStageVar, NamedVarRules<kScopeStage>()};

std::vector<cFormRow> CharaVarRows(cEdCond& w) {
  std::vector<cFormRow> rows = {{"キャラ変数", TableCombo(kIdCondLeftVar, &w.m_nLeftVar, CharaVarTable)}};
  for (cFormRow& row : ValueRelationRows(w)) rows.push_back(std::move(row));
  return rows;
}

const cCondKindForm kCharaVarCondForm{kCondCharaVar, {.rows = CharaVarRows}};

// ---- ステータス条件3 (275) ----

std::vector<cFormRow> StateRows(cEdCond& w) {
  return {
      {"オブジェクト", ComboOf(kIdCondLeftObject, &w.m_nLeftObject, ObjectRows(false))},
      {"状態", TableCombo(kIdCondLeftStatus, &w.m_nLeftStatus, CharaStateTable)},
      {nullptr, TableCombo(kIdCondRelation, &w.m_nRelation, CondBoolTable), nullptr, nullptr, true},
  };
}

const cCondKindForm kStateCondForm{kCondStatus3, {.rows = StateRows}};

// ---- 距離条件 (219): several fields stand for the range display ----

constexpr const char* kDisplay = "範囲の表示";

std::vector<cFormRow> DistanceRows(cEdCond& w) {
  return {
      {"対象", TableCombo(kIdCondLeftObject, &w.m_nLeftObject, DistTargetTable)},
      {"までの距離が", TableCombo(kIdCondDistAxis, &w.m_nDistAxis, DistAxisTable), nullptr, nullptr, true},
      {"距離", cEditValDesc{kIdCondValue, &w.m_nValue, 0, 40, kIdCondValueSpin, 1}, nullptr, "(hbl)"},
      {"＋", cEditValDesc{kIdCondRightVar, &w.m_nRightVar, -15, 15, kIdCondRightVarSpin, 1}, nullptr, "(dot)", true},
      {nullptr, TableCombo(kIdCondRelation, &w.m_nRelation, DistRangeTable), nullptr, nullptr, true},
      {"表示", TableCombo(kIdCondLeftType, &w.m_nLeftType, DistShowTable), kDisplay},
      {"色", TableCombo(kIdCondLeftStatus, &w.m_nLeftStatus, DistColorTable), kDisplay},
      {nullptr, cCheckDesc{kIdCondRightType, &w.m_nRightType, "自分が出現していなくても表示"}, kDisplay},
      {nullptr, cCheckDesc{kIdCondRightObject, &w.m_nRightObject, "自分が透明でも表示"}, kDisplay},
      {nullptr, cStaticDesc{kIdCondNote, "※「円」は描画速度が遅い。特に円が大きい場合は注意"}, kDisplay},
  };
}

// The colour and the two boxes only tell how a shown range is drawn.
bool DisplayShown(const cEdCond& c) { return c.m_nLeftType != 0; }

const cCondKindForm kDistanceCondForm{
    kCondDistance,
    {
        .rows = DistanceRows,
        .enables = {{kIdCondLeftStatus, DisplayShown},
                    {kIdCondRightType, DisplayShown},
                    {kIdCondRightObject, DisplayShown}},
    },
};

// By kind, in the order of CondKindTable.
const cCondKindForm* const kForms[] = {
    nullptr,          &kCommonVarCondForm, &kStageVarCondForm, &kCharaVarCondForm,
    &kStatusCondForm, &kFlagCondForm,      &kStateCondForm,    &kDistanceCondForm,
};

}  // namespace

const cCondKindForm* CondKindForm(int kind) {
  if (kind < 0 || kind >= static_cast<int>(std::size(kForms))) return nullptr;
  return kForms[kind];
}

cComboDesc TableCombo(int id, cValueField field, const cLabelTable& table) {
  return ComboOf(id, field, LabelRows(table));
}

cComboDesc ListCombo(int id, cValueField field) { return ComboOf(id, field, {}, false); }

cComboRows ObjectRows(bool withSystem) {
  cComboRows rows;
  for (const char* label : ObjectList(CurrentObjectContext(), withSystem)) rows.texts.emplace_back(label);
  return rows;
}

std::vector<cFormRow> ValueRelationRows(cEdCond& w) {
  return {
      {"値", cEditValDesc{kIdCondValue, &w.m_nValue, -kVarValueLimit, kVarValueLimit, kIdCondValueSpin, 1}},
      {nullptr, TableCombo(kIdCondRelation, &w.m_nRelation, CondRelationTable), nullptr, nullptr, true},
  };
}

}  // namespace velmora
