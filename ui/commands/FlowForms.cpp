#include <climits>

#include "core/SystemText.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"
#include "ui/conditions/CondForms.h"
#include "ui/list/RecordListControl.h"

// 向き変更, ジャンプ, フローの操作, ステージクリア, ゲームウエイト, ターゲットの
// 設定, 消滅, アイテムの取得, ループ, and the item's own フローの変更.
namespace velmora {
namespace {

constexpr int kFlowRangeById = 2;
constexpr int kClearByNumber = 1;
constexpr int kClearByPath = 2;
constexpr int kPathLimit = 260;
constexpr int kStatusValueLimit = 999999;

const char* const kCharaOffscreen = "キャラが画面外なら再生しない";

// ---- 向き変更 (263) ----

std::vector<cFormRow> TurnRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "向き", LabelRows(TurnTable)),
      FormRows(TimeRows(w, true)),
      AnimeRow(w),
      FormRows(SoundRows(w, nullptr)),
  };
}

// ---- ジャンプ (243) ----

bool AdjustsHeight(const cCmdWork& w) { return w.P(0) != 0; }

std::vector<cFormRow> JumpRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "ジャンプタイプ", LabelRows(JumpTable)),
      FormGroup("最大ジャンプ", {ParamNumber(w, 1, "慣性移動速度", 0, 200), ParamNumber(w, 2, "高さ(hbl)", 1, 20)}),
      FormGroup("最小ジャンプ", {ParamNumber(w, 3, "慣性移動速度", 0, 200), ParamNumber(w, 4, "高さ(hbl)", 1, 20)}),
      AnimeRow(w),
      FormRows(SoundRows(w, kCharaOffscreen)),
  };
}

// ---- フローの操作 (225) ----

bool ById(const cCmdWork& w) { return w.P(1) == kFlowRangeById; }
bool HasConditions(const cCmdWork& w) { return w.condList.m_bEnabled != 0; }

std::vector<cFormRow> FlowOpRows(cCmdWork& w) {
  return {
      ParamCombo(w, 3, "対象", LabelRows(ObjectSelfTable)),
      ParamCombo(w, 1, "範囲", LabelRows(FlowRangeTable)),
      SameLine(ParamCombo(w, 2, "ID", LabelRows(FlowIdTable))),
      ParamCombo(w, 0, "操作", LabelRows(FlowOpTable)),
      FormGroup("条件", {
          CheckRow(kIdCondEnabled, &w.condList.m_bEnabled, "条件あり"),
          ComboRow("判定タイプ", kIdCondJudge, &w.condList.m_nJudge, LabelRows(CondJudgeTable)),
          RecordListRows({kIdCondList, kIdCondInsert, kIdCondEdit, kIdCondDelete, 1}),
      }),
  };
}

const std::vector<cCmdEnable> kFlowOpEnables = {
    {ParamId(2), ById},
    {kIdCondJudge, HasConditions},
    {kIdCondList, HasConditions},
    {kIdCondInsert, HasConditions},
    {kIdCondEdit, HasConditions},
    {kIdCondDelete, HasConditions},
};

// ---- ステージクリア (245) ----

bool ClearsByNumber(const cCmdWork& w) { return w.P(0) == kClearByNumber; }
bool ClearsByPath(const cCmdWork& w) { return w.P(0) == kClearByPath; }

std::vector<cFormRow> StageClearRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "ステージの移行", LabelRows(ClearNextTable)),
      ParamNumber(w, 1, "番号", 1, 99),
      {"パス", EditStrLine(kIdCmdText, &w.cmd.m_strText, kPathLimit)},
      SameLine({nullptr, cButtonDesc{kIdStageBrowse, "参照"}}),
      ParamCheck(w, 2, "ワールドマップの位置を変更"),
      SameLine(ParamNumber(w, 3, "X", 0, 999)),
      SameLine(ParamNumber(w, 4, "Y", 0, 999)),
      ParamCheck(w, 5, "次のステージの初期位置を強制的に変更"),
      SameLine(ParamNumber(w, 6, "X(bl)", 0, 999)),
      SameLine(ParamNumber(w, 7, "Y(bl)", 0, 999)),
      ParamCombo(w, 8, "主人公の向き", LabelRows(ClearFaceTable)),
      ParamCheck(w, 9, "次のステージ開始前にオートセーブを実行"),
      ParamCheck(w, 10, "リプレイ"),
  };
}

// The path names a stage file of the project, as the stage list stores it.
bool ChooseStageFile(cCmdWork& w, OwnerWindow owner) {
  cFilePrompt request;
  request.title = SysText("ステージファイルの選択");
  request.folder = "data\\stg4";
  request.filter = std::string("StageFile ( *.stg4_* )") + '\0' + "*.stg4_*" + '\0';
  request.defaultExt = "stg4_*";
  std::string chosen;
  if (!Prompt().OpenFile(owner, request, chosen) || chosen.empty()) return false;
  // A file outside the project can't be named by a relative path.
  if (chosen[0] == '\\' || chosen.find(':') != std::string::npos) return false;
  w.cmd.m_strText = chosen.substr(0, kPathLimit);
  return true;
}

const std::vector<cCmdEnable> kStageClearEnables = {
    {ParamId(1), ClearsByNumber}, {kIdCmdText, ClearsByPath}, {kIdStageBrowse, ClearsByPath},
    {ParamId(3), ParamSet<2>},    {ParamId(4), ParamSet<2>},  {ParamId(6), ParamSet<5>},
    {ParamId(7), ParamSet<5>},
};

// ---- ターゲットの設定 (265): the filters of a search ----

constexpr int kSetNearest = 2;
constexpr int kSetById = 3;
constexpr int kSetChildByCondition = 6;

bool Searches(const cCmdWork& w) {
  return w.P(1) == kSetNearest || w.P(1) == kSetById || w.P(1) == kSetChildByCondition;
}
bool SearchesAForce(const cCmdWork& w) { return Searches(w) && !w.P(3); }
template <int I>
bool SearchFilterSet(const cCmdWork& w) { return Searches(w) && w.P(I) != 0; }

std::vector<cFormRow> TargetSetRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "ターゲット", LabelRows(Target4Table)),
      ParamCombo(w, 1, "設定", LabelRows(TargetSetTable)),
      FormGroup("対象の条件", {
          ParamNumber(w, 2, "対象勢力", 0, 7),
          SameLine(ParamCheck(w, 3, "全勢力")),
          ParamCombo(w, 4, "対象範囲", LabelRows(TargetRangeTable)),
          ParamCheck(w, 5, "自分は対象外"),
          ParamCheck(w, 6, "無敵（ショットが当たる）キャラは対象外"),
          ParamCheck(w, 7, "無敵（ショットがすり抜ける）キャラは対象外"),
          ParamCheck(w, 8, "ブロックキャラは対象外"),
          ParamCheck(w, 9, "対象キャラID"),
          SameLine(ParamNumber(w, 10, nullptr, 0, 99)),
          ParamCheck(w, 11, "キャラ変数条件"),
          SameLine(ParamCombo(w, 12, nullptr, LabelRows(CharaVarTable))),
          SameLine(ParamNumber(w, 13, nullptr, -kStatusValueLimit, kStatusValueLimit)),
          SameLine(ParamCombo(w, 14, nullptr, LabelRows(CondRelationTable))),
      }),
      ParamCombo(w, 15, "該当者無しなら", LabelRows(TargetNoneTable)),
  };
}

const std::vector<cCmdEnable> kTargetSetEnables = {
    {ParamId(2), SearchesAForce},         {ParamId(3), Searches},  {ParamId(4), Searches},
    {ParamId(5), Searches},               {ParamId(6), Searches},  {ParamId(7), Searches},
    {ParamId(8), Searches},               {ParamId(9), Searches},  {ParamId(10), SearchFilterSet<9>},
    {ParamId(11), Searches},              {ParamId(12), SearchFilterSet<11>}, {ParamId(13), SearchFilterSet<11>},
    {ParamId(14), SearchFilterSet<11>},
};

// ---- 消滅 (281): a force and a range only for キャラ and ショット ----

bool VanishesByForce(const cCmdWork& w) { return w.P(0) == 0 || w.P(0) == 1; }

std::vector<cFormRow> VanishRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "対象", LabelRows(VanishTable)),
      ParamNumber(w, 1, "対象勢力", 0, 7),
      ParamCombo(w, 2, "対象範囲", LabelRows(VanishRangeTable)),
  };
}

// ---- アイテムの取得 (268) ----

cComboRows GotItemRows(const cCmdWork& w) { return EntryRows(w.P(0), ePaletteList::Item); }

std::vector<cFormRow> GetItemRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "パレット", LabelRows(SummonPaletteTable)),
      {"取得アイテム", ListCombo(ParamId(1), &w.P(1))},
  };
}

// ---- ループ (280): the left field is P1, the right one P0 ----

std::vector<cFormRow> LoopRows(cCmdWork& w) {
  return {
      ParamNumber(w, 1, "後続", 1, 999, "個のコマンドを"),
      SameLine(ParamNumber(w, 0, nullptr, 1, 99, "回繰り返す")),
      NoteRow(kIdCmdNote, "※後続のコマンドや繰り返す回数が多いと、処理が重くなる場合があります"),
  };
}

// ---- フローの変更, the item's kind 1 ----
// No table tells what its two parameters mean: they are edited as plain
// numbers over the whole range of their stored type, and a value the
// author leaves alone is stored as it was.

std::vector<cFormRow> FlowChangeRows(cCmdWork& w) {
  return {
      ParamNumber(w, 0, "パラメータ1", INT_MIN, INT_MAX),
      ParamNumber(w, 1, "パラメータ2", INT_MIN, INT_MAX),
  };
}

const cCmdKindForm kStageClearForm{
    .kind = kCmdStageClear,
    .rules = {.rows = StageClearRows, .enables = kStageClearEnables},
    .presses = {{kIdStageBrowse, ChooseStageFile}},
};

const cCmdKindForm kForms[] = {
    {.kind = kCmdTurn, .rules = {.rows = TurnRows}},
    // The family's list of dialogs shows 効果音 in 向き変更 and from ショット
    // to アイテム召喚 only; the command's own field list gives ジャンプ its
    // m_nSound beside m_nAnime and m_bNoSoundOffscreen (and アレンジ reaches
    // its 効果音), and the command's own list decides: the jump shows it.
    {.kind = kCmdJump,
     .rules = {.rows = JumpRows,
               .enables = {{ParamId(3), AdjustsHeight},
                           {ParamId(4), AdjustsHeight},
                           {kIdCmdNoSoundOffscreen, HasSound}}}},
    {.kind = kCmdFlowOp, .rules = {.rows = FlowOpRows, .enables = kFlowOpEnables}, .open = TakeParallel, .condList = true},
    kStageClearForm,
    {.kind = kCmdGameWait, .rules = {.rows = [](cCmdWork& w) {
       return std::vector<cFormRow>{ParamNumber(w, 0, "実行時間(1/10s)", 0, 999)};
     }}},
    {.kind = kCmdTargetSet, .rules = {.rows = TargetSetRows, .enables = kTargetSetEnables}},
    {.kind = kCmdVanish,
     .rules = {.rows = VanishRows, .enables = {{ParamId(1), VanishesByForce}, {ParamId(2), VanishesByForce}}}},
    {.kind = kCmdGetItem, .rules = {.rows = GetItemRows, .lists = {{ParamId(1), GotItemRows}}}, .open = TakeParallel},
    {.kind = kCmdLoop, .rules = {.rows = LoopRows}},
};

const cCmdKindForm kFlowChangeForm{.title = "フローの変更", .rules = {.rows = FlowChangeRows}};

}  // namespace

std::span<const cCmdKindForm> FlowForms() { return kForms; }
const cCmdKindForm& ItemFlowChangeForm() { return kFlowChangeForm; }

}  // namespace velmora
