#include "core/SystemText.h"
#include "objects/CmdStatusRules.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "objects/GValInfo.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"
#include "ui/conditions/CondForms.h"
#include "ui/conditions/VarRows.h"

// ステータスの操作, ステータスの操作2 and アレンジ: the commands that put values
// into statuses, flags and variables.
namespace velmora {
namespace {

constexpr int kValueLimit = 999999;
constexpr int kRightConstant = 0;
constexpr int kRightRandom = 1;
constexpr int kArrangeCharaVar = 2;

// ---- ステータスの操作 (215): a left side, an operator and a right side ----

constexpr eCondSide kLeft = eCondSide::Left;
constexpr eCondSide kRight = eCondSide::Right;

template <eCondSide Side>
cSideEnables Enables(const cCmdWork& w) { return SideEnables(StatusOpAsCond(w), Side); }
template <eCondSide Side>
bool ObjectOn(const cCmdWork& w) { return Enables<Side>(w).object; }
template <eCondSide Side>
bool CoordOn(const cCmdWork& w) { return Enables<Side>(w).coord; }
template <eCondSide Side>
bool GiantOn(const cCmdWork& w) { return Enables<Side>(w).giant; }
template <eCondSide Side>
bool ScopeOn(const cCmdWork& w) { return Enables<Side>(w).scope; }
template <eCondSide Side>
bool VarOn(const cCmdWork& w) { return Enables<Side>(w).var; }
template <eCondSide Side>
bool RenameOn(const cCmdWork& w) { return Enables<Side>(w).rename; }
template <eCondSide Side>
int VarScope(const cCmdWork& w) { return SideVarScope(StatusOpAsCond(w), Side); }

// A side's variable list shows the character variables while it names a
// character's status 0, and else the names of its scope.
template <eCondSide Side>
cComboRows SideVarRows(const cCmdWork& w) {
  const cEdCond cond = StatusOpAsCond(w);
  if (SideNamesCharaVar(cond, Side)) return LabelRows(CharaVarTable);
  return VarRows(Side == kLeft ? cond.m_nLeftScope : cond.m_nRightScope);
}
template <int ObjectParam>
cComboRows StatusRows(const cCmdWork& w) { return LabelRows(StatusListOf(w.P(ObjectParam))); }

bool ConstantOn(const cCmdWork& w) { return w.P(6) == kRightConstant; }
bool RandomOn(const cCmdWork& w) { return w.P(6) == kRightRandom; }
bool PercentKindOn(const cCmdWork& w) { return StatusOpPercentAllowed(w) && w.P(14); }

// Where one side's parts stand in the parameters.
struct cSideParams {
  int object, status, coord, giant, scope, var;
  int renameId;
  const char* coordNote;
};
constexpr cSideParams kLeftParams{3, 4, 18, 20, 1, 2, kIdLeftVarName, "(dot)　☆「相対座標」の原点は自分"};
constexpr cSideParams kRightParams{12, 13, 19, 21, 10, 11, kIdRightVarName, "(dot)"};

std::vector<cFormRow> SideRows(cCmdWork& w, const cSideParams& p) {
  return {
      {"オブジェクト", ComboOf(ParamId(p.object), &w.P(p.object), ObjectRows(true))},
      {"ステータス", ListCombo(ParamId(p.status), &w.P(p.status))},
      {"座標タイプ", ComboOf(ParamId(p.coord), &w.P(p.coord), LabelRows(CoordTypeTable)), nullptr, p.coordNote},
      ParamCombo(w, p.giant, "巨大化キャラの座標位置", LabelRows(GiantPosTable)),
      ParamCombo(w, p.scope, "変数", LabelRows(VarScopeTable)),
      {nullptr, ListCombo(ParamId(p.var), &w.P(p.var))},
      SameLine({nullptr, cButtonDesc{p.renameId, "_"}}),
  };
}

std::vector<cFormRow> StatusOpRows(cCmdWork& w) {
  std::vector<cFormRow> left = {ParamCombo(w, 0, "タイプ", LabelRows(LeftTypeTable)), FormRows(SideRows(w, kLeftParams))};
  std::vector<cFormRow> right = {
      ParamCombo(w, 6, "タイプ", LabelRows(RightTypeTable)),
      ParamNumber(w, 7, "定数", -kValueLimit, kValueLimit),
      ParamNumber(w, 8, "乱数", -kValueLimit, kValueLimit),
      SameLine(ParamNumber(w, 9, "～", -kValueLimit, kValueLimit)),
      FormRows(SideRows(w, kRightParams)),
  };
  return {
      FormColumns({{FormGroup("左辺", left)}, {ParamCombo(w, 5, "演算子", LabelRows(OperatorTable))},
                   {FormGroup("右辺", right)}}),
      ParamCheck(w, 14, "％で指定"),
      SameLine(ParamCombo(w, 15, nullptr, LabelRows(PercentTable))),
      ParamCheck(w, 16, "キャラの頭上にバーを表示"),
      ParamCheck(w, 17, "対象キャラ（左辺）が無敵なら無効"),
  };
}

template <eCondSide Side>
std::vector<cCmdEnable> SideEnableRules(const cSideParams& p) {
  return {{ParamId(p.object), ObjectOn<Side>}, {ParamId(p.status), ObjectOn<Side>}, {ParamId(p.coord), CoordOn<Side>},
          {ParamId(p.giant), GiantOn<Side>},   {ParamId(p.scope), ScopeOn<Side>},   {ParamId(p.var), VarOn<Side>},
          {p.renameId, RenameOn<Side>}};
}

std::vector<cCmdEnable> StatusOpEnables() {
  return Joined(Joined(SideEnableRules<kLeft>(kLeftParams), SideEnableRules<kRight>(kRightParams)),
                {
                    {ParamId(7), ConstantOn},
                    {ParamId(8), RandomOn},
                    {ParamId(9), RandomOn},
                    {ParamId(14), StatusOpPercentAllowed, true},
                    {ParamId(15), PercentKindOn},
                });
}

const cCmdKindForm kStatusOpForm{
    .kind = kCmdStatusOp,
    .rules = {.rows = StatusOpRows,
              .lists = {{ParamId(4), StatusRows<3>},
                        {ParamId(13), StatusRows<12>},
                        {ParamId(2), SideVarRows<kLeft>},
                        {ParamId(11), SideVarRows<kRight>}},
              .ranges = {{ParamId(7), StatusOpOperandRange},
                         {ParamId(8), StatusOpOperandRange},
                         {ParamId(9), StatusOpOperandRange}},
              .enables = StatusOpEnables(),
              .renames = {{kIdLeftVarName, ParamId(2), VarScope<kLeft>}, {kIdRightVarName, ParamId(11), VarScope<kRight>}}},
};

// ---- ステータスの操作2 (266): a flag and its value ----

cComboRows FlagRows(const cCmdWork& w) { return LabelRows(FlagListOf(w.P(0))); }

cComboRows FlagValueRows(const cCmdWork& w) {
  const cFlagInfo* flag = StatusOp2Flag(w);
  if (!flag) return {};
  cComboRows rows;
  rows.offset = flag->min;
  for (const char* value : flag->values) rows.texts.emplace_back(SysText(value));
  return rows;
}

const cCmdKindForm kStatusOp2Form{
    .kind = kCmdStatusOp2,
    .rules = {.rows = [](cCmdWork& w) {
                return std::vector<cFormRow>{
                    {"オブジェクト", ComboOf(ParamId(0), &w.P(0), ObjectRows(true))},
                    {"フラグ", ListCombo(ParamId(1), &w.P(1))},
                    {"値", ListCombo(ParamId(2), &w.P(2))},
                    ParamCheck(w, 3, "位置記憶：現在の位置を「圧死回避」時に戻す位置として記憶"),
                    ParamCheck(w, 4, "圧死回避"),
                };
              },
              .lists = {{ParamId(1), FlagRows}, {ParamId(2), FlagValueRows}},
              .follow = FollowStatusOp2},
};

// ---- アレンジ (279): the next command's parameter changed by a variable ----

cComboRows ArrangeParamRows(const cCmdWork& w) {
  const std::span<const cParamDef> params = ArrangeTable(w.P(0));
  if (params.empty()) return TextRows({SysText("×　非対応")});
  return LabelRows(params);
}

cComboRows ArrangeVarRows(const cCmdWork& w) {
  if (w.P(3) == kArrangeCharaVar) return LabelRows(CharaVarTable);
  return VarRows(w.P(3) == kScopeStage ? kScopeStage : kScopeCommon);
}

int ArrangeVarScope(const cCmdWork& w) { return w.P(3) == kScopeCommon || w.P(3) == kScopeStage ? w.P(3) : -1; }

const cCmdKindForm kArrangeForm{
    .kind = kCmdArrange,
    .rules = {.rows = [](cCmdWork& w) {
                return std::vector<cFormRow>{
                    NoteRow(kIdCmdNote, "※次に実行される（アレンジ以外の）コマンドの設定値を、変数の値で変更します"),
                    {"コマンド", ComboOf(ParamId(0), &w.P(0), LabelRows(CmdTable, 1))},
                    {"設定値", ListCombo(ParamId(1), &w.P(1))},
                    ParamCombo(w, 2, "演算子", LabelRows(OperatorTable)),
                    ParamCombo(w, 3, "変数の種類", LabelRows(ArrangeVarTable)),
                    {"変数", ListCombo(ParamId(4), &w.P(4))},
                    SameLine({nullptr, cButtonDesc{kIdLeftVarName, "_"}}),
                };
              },
              .lists = {{ParamId(1), ArrangeParamRows}, {ParamId(4), ArrangeVarRows}},
              .renames = {{kIdLeftVarName, ParamId(4), ArrangeVarScope}}},
};

const cCmdKindForm kForms[] = {kStatusOpForm, kStatusOp2Form, kArrangeForm};

}  // namespace

std::span<const cCmdKindForm> StatusForms() { return kForms; }

}  // namespace velmora
