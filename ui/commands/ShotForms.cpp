#include <QLabel>
#include <algorithm>

#include "core/SystemText.h"
#include "objects/CmdTable.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"
#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"
#include "ui/conditions/CondForms.h"

// ショット, ソード and the three summons: the kinds that own a cEdShot. Each
// shows the fields that the record's table marks for it.
namespace velmora {
namespace {

constexpr int kAimAtTarget = 0;          // 対象 ターゲット
constexpr int kMoveAimsTarget = 3;       // ターゲットを狙う
constexpr int kMoveHomesTarget = 6;      // ターゲットへ誘導
constexpr int kSummonErase = 1;          // ブロックを消す
constexpr int kForceByNumber = 2;        // 番号で指定
constexpr int kParamCount = 3;
constexpr int kAngleLimit = 7200;
constexpr int kDotLimit = 640;
constexpr int kSpeedLimit = 200;
constexpr int kPowerLimit = 999999;
constexpr int kLabelChars = 9;  // full-width characters the relabelled fields keep room for

const char* const kUserOffscreen = "使用者が画面外なら再生しない";

// ---- fields whose meaning follows the formation or the move type ----

// The row of a table that a stored value shows; a damaged value shows as
// the nearest row, as its combo box does.
const cParamTriple& RowOf(std::span<const cParamTriple> table, int value) {
  return table[static_cast<size_t>(std::clamp(value, 0, static_cast<int>(table.size()) - 1))];
}
const cParamTriple& FormationParams(const cCmdWork& w) { return RowOf(FormationParamTable, w.shot.m_nFormation); }
const cParamTriple& MoveParams(const cCmdWork& w) { return RowOf(ShotMoveParamTable, w.shot.m_nMoveType); }

// A label beside a field, rewritten as the field changes its meaning.
cFormRow FollowingLabel(int id) {
  return {nullptr, cCustomDesc{id, [](QWidget* parent) {
            auto* label = new QLabel(parent);
            label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QString(kLabelChars, QChar(u'\u3042'))));
            label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
            return static_cast<QWidget*>(label);
          }}};
}

std::vector<cFormRow> TripleRows(int labelId, int editId, int16_t (&values)[kParamCount]) {
  std::vector<cFormRow> rows;
  for (int i = 0; i < kParamCount; ++i) {
    const int id = editId + 2 * i;
    rows.push_back(FollowingLabel(labelId + i));
    rows.push_back(SameLine({nullptr, cEditValDesc{id, &values[i], 0, 999, SpinOf(id), 1}}));
  }
  return rows;
}

template <int I>
std::string FormationLabel(const cCmdWork& w) { return SysText(FormationParams(w)[I].label); }
template <int I>
std::string MoveLabel(const cCmdWork& w) { return SysText(MoveParams(w)[I].label); }
template <int I>
bool FormationParamShown(const cCmdWork& w) { return FormationParams(w)[I].Shown(); }
template <int I>
bool MoveParamShown(const cCmdWork& w) { return MoveParams(w)[I].Shown(); }
template <int I>
cValueRange FormationRange(const cCmdWork& w) { return {FormationParams(w)[I].min, FormationParams(w)[I].max}; }
template <int I>
cValueRange MoveRange(const cCmdWork& w) { return {MoveParams(w)[I].min, MoveParams(w)[I].max}; }

template <int I>
cCmdKindForm::cShow FormationShow() {
  const int id = kIdShotFormParam + 2 * I;
  return {{kIdShotFormLabel + I, id, SpinOf(id)}, FormationParamShown<I>};
}
template <int I>
cCmdKindForm::cShow MoveShow() {
  const int id = kIdShotMoveParam + 2 * I;
  return {{kIdShotMoveLabel + I, id, SpinOf(id)}, MoveParamShown<I>};
}

const std::vector<cCmdKindForm::cText> kFormationTexts = {
    {kIdShotFormLabel, FormationLabel<0>}, {kIdShotFormLabel + 1, FormationLabel<1>},
    {kIdShotFormLabel + 2, FormationLabel<2>}};
const std::vector<cCmdKindForm::cShow> kFormationShows = {FormationShow<0>(), FormationShow<1>(), FormationShow<2>()};
const std::vector<cCmdRange> kFormationRanges = {
    {kIdShotFormParam, FormationRange<0>}, {kIdShotFormParam + 2, FormationRange<1>},
    {kIdShotFormParam + 4, FormationRange<2>}};

void TakeDefaults(int16_t (&values)[kParamCount], const cParamTriple& params) {
  for (int i = 0; i < kParamCount; ++i) values[i] = static_cast<int16_t>(params[static_cast<size_t>(i)].def);
}

// A new formation or move type starts its fields from their defaults.
bool ResetShotParams(cCmdWork& w, const cCmdWork& before) {
  const bool formation = w.shot.m_nFormation != before.shot.m_nFormation;
  const bool move = w.shot.m_nMoveType != before.shot.m_nMoveType;
  if (formation) TakeDefaults(w.shot.m_anFormParam, FormationParams(w));
  if (move) TakeDefaults(w.shot.m_anMoveParam, MoveParams(w));
  return formation || move;
}

// ---- pieces ----

bool AimsAtTarget(const cCmdWork& w) { return w.shot.m_nAimTarget == kAimAtTarget || w.shot.m_bAimAtTarget; }
bool ForceOwn(const cCmdWork& w) { return !w.shot.m_bSameForce; }
bool GetsItem(const cCmdWork& w) { return w.shot.m_nGetItemSrc != 0; }
bool Attacks(const cCmdWork& w) { return w.shot.m_bAttack != 0; }
bool HasRange(const cCmdWork& w) { return w.shot.m_bRange != 0; }

cComboRows GetItemRows(const cCmdWork& w) { return EntryRows(w.shot.m_nGetItemSrc - 1, ePaletteList::Item); }

std::vector<cFormRow> FormationRows(cEdShot& s, const char* countLabel) {
  return {
      NumberRow(countLabel, kIdShotCount, &s.m_nCount, 1, 127),
      ComboRow("フォーメーション", kIdShotFormation, &s.m_nFormation, LabelRows(FormationTable)),
      FormRows(TripleRows(kIdShotFormLabel, kIdShotFormParam, s.m_anFormParam)),
  };
}

std::vector<cFormRow> AimRows(cEdShot& s) {
  return {
      ComboRow("対象", kIdShotAimTarget, &s.m_nAimTarget, LabelRows(AimObjectTable)),
      SameLine(ComboRow(nullptr, kIdShotTargetNo, &s.m_nTargetNo, LabelRows(Target4Table))),
      ComboRow("方向", kIdShotDir, &s.m_nDir, LabelRows(DirTable)),
  };
}

std::vector<cFormRow> ShiftRows(cEdShot& s, const char* labelX, const char* labelY, const char* flip, bool clones) {
  std::vector<cFormRow> rows = {NumberRow(labelX, kIdShotShiftX, &s.m_nShiftX, -kDotLimit, kDotLimit)};
  if (clones) rows.push_back(CloneRow(kIdShotShiftXClone, &s.m_nShiftXClone, -kDotLimit, kDotLimit));
  rows.push_back(CheckRow(kIdShotFlipX, &s.m_bFlipX, flip));
  rows.push_back(NumberRow(labelY, kIdShotShiftY, &s.m_nShiftY, -kDotLimit, kDotLimit));
  if (clones) rows.push_back(CloneRow(kIdShotShiftYClone, &s.m_nShiftYClone, -kDotLimit, kDotLimit));
  rows.push_back(CheckRow(kIdShotFlipY, &s.m_bFlipY, flip));
  return rows;
}

std::vector<cFormRow> ForceRows(cEdShot& s) {
  return {
      NumberRow("Z座標", kIdShotZ, &s.m_nZ, 0, 7),
      CheckRow(kIdShotTransparent, &s.m_bTransparent, "透明"),
      NumberRow("勢力", kIdShotForce, &s.m_nForce, 0, 7),
      SameLine(CheckRow(kIdShotSameForce, &s.m_bSameForce, "使用者と同じ")),
      ComboRow("巨大化", kIdShotGiant, &s.m_nGiant, LabelRows(GiantTable)),
  };
}

std::vector<cFormRow> HitRows(cEdShot& s) {
  return {
      NumberRow("威力", kIdShotPower, &s.m_nPower, -kPowerLimit, kPowerLimit),
      NumberRow("衝撃(hbl)", kIdShotImpact, &s.m_nImpact, -20, 20),
      ComboRow("エフェクト", kIdShotEffect, &s.m_nEffect, DbRows(eDbList::Effect)),
      ComboRow("取得アイテム", kIdShotGetItemSrc, &s.m_nGetItemSrc, LabelRows(ItemRefTable)),
      SameLine({nullptr, ListCombo(kIdShotGetItemNo, &s.m_nGetItemNo)}),
  };
}

std::vector<cFormRow> AttackRows(cEdShot& s) {
  return {
      CheckRow(kIdShotAttack, &s.m_bAttack, "アタック（使用者のアタック関連のタイミングを有効化）"),
      ComboRow("有効なフロー(ID)", kIdShotAttackFlow, &s.m_nAttackFlow, LabelRows(FlowLetterTable)),
  };
}

std::vector<cFormRow> CommandRows(cCmdWork& w) {
  std::vector<cFormRow> rows = TimeRows(w, true);
  for (cFormRow& row : SoundRows(w, kUserOffscreen)) rows.push_back(std::move(row));
  rows.push_back(AnimeRow(w));
  return rows;
}

const std::vector<cCmdEnable> kShotCommonEnables = {
    {kIdShotTargetNo, AimsAtTarget},
    {kIdCmdNoSoundOffscreen, HasSound},
};

// ---- ショット (209) ----

bool MoveUsesTarget(const cCmdWork& w) {
  return w.shot.m_nMoveType == kMoveAimsTarget || w.shot.m_nMoveType == kMoveHomesTarget;
}
bool Accelerates(const cCmdWork& w) { return w.shot.m_bAccel != 0; }
bool HasLife(const cCmdWork& w) { return w.shot.m_bLife != 0; }
bool VanishesByShot(const cCmdWork& w) { return w.shot.m_bShotVanish != 0; }

std::vector<cFormRow> ShotRows(cCmdWork& w) {
  cEdShot& s = w.shot;
  return {FormColumns({
      {
          FormGroup("発射", {
              NumberRow("グラフィック", kIdShotGraphic, &s.m_nGraphic, 1, 120),
              FormRows(FormationRows(s, "発射数")),
              NumberRow("分身数", kIdShotCloneCount, &s.m_nCloneCount, 0, 20, "(発射数に対する分身数)"),
          }),
          FormGroup("方向", {
              FormRows(AimRows(s)),
              CheckRow(kIdShotAimAtTarget, &s.m_bAimAtTarget, "ターゲットを狙って角度を設定"),
              NumberRow("角度のズレ", kIdShotAngleShift, &s.m_nAngleShift, -kAngleLimit, kAngleLimit),
              CloneRow(kIdShotAngleShiftClone, &s.m_nAngleShiftClone, -kAngleLimit, kAngleLimit),
              CheckRow(kIdShotAngleMirror, &s.m_bAngleMirror, "使用者が右向きなら逆回転\n(左右対称になる)"),
              NumberRow("分散角度", kIdShotSpread, &s.m_nSpread, 0, 180),
              CheckRow(kIdShotPosByAngle, &s.m_bPosByAngle, "角度に応じて発射位置を変更"),
          }),
          FormGroup("発射位置", ShiftRows(s, "発射位置のズレX(dot)", "発射位置のズレY(dot)", "使用者が右向きなら反転", true)),
      },
      {
          FormGroup("移動", {
              ComboRow("移動タイプ", kIdShotMoveType, &s.m_nMoveType, LabelRows(ShotMoveTable)),
              FormRows(TripleRows(kIdShotMoveLabel, kIdShotMoveParam, s.m_anMoveParam)),
              ComboRow("ターゲット", kIdShotMoveTarget, &s.m_nMoveTarget, LabelRows(Target4Table)),
              CheckRow(kIdShotAutoScrollSync, &s.m_bAutoScrollSync,
                       "オートスクロールとシンクロ（移動タイプが誘導移動系なら推奨）"),
              NumberRow("速度", kIdShotSpeed, &s.m_nSpeed, -kSpeedLimit, kSpeedLimit),
              CloneRow(kIdShotSpeedClone, &s.m_nSpeedClone, -kSpeedLimit, kSpeedLimit),
              CheckRow(kIdShotAccelOn, &s.m_bAccel, "加速度"),
              SameLine(NumberRow(nullptr, kIdShotAccel, &s.m_nAccel, -kSpeedLimit, kSpeedLimit)),
              CloneRow(kIdShotAccelClone, &s.m_nAccelClone, -kSpeedLimit, kSpeedLimit),
              CheckRow(kIdShotRangeOn, &s.m_bRange, "飛距離(hbl)"),
              SameLine(NumberRow(nullptr, kIdShotRange, &s.m_nRange, 0, 64)),
              CloneRow(kIdShotRangeClone, &s.m_nRangeClone, -40, 40),
              CheckRow(kIdShotLifeOn, &s.m_bLife, "存在時間(1/10s)"),
              SameLine(NumberRow(nullptr, kIdShotLife, &s.m_nLife, 1, 999)),
              CloneRow(kIdShotLifeClone, &s.m_nLifeClone, -99, 99),
              CheckRow(kIdShotNoVanishAtEnd, &s.m_bNoVanishAtEnd, "最後に消滅しない"),
          }),
          FormGroup("コマンド", CommandRows(w)),
      },
      {
          FormGroup("当たり", {
              CheckRow(kIdShotPierceBlock, &s.m_bPierceBlock, "ブロックを貫通"),
              CheckRow(kIdShotPierceChara, &s.m_bPierceChara, "キャラを貫通"),
              CheckRow(kIdShotPierceBlockChara, &s.m_bPierceBlockChara, "ブロックキャラを貫通"),
              CheckRow(kIdShotShotVanish, &s.m_bShotVanish, "ショットに当たると消滅"),
              SameLine(NumberRow("消滅値", kIdShotVanishValue, &s.m_nVanishValue, 1, 9)),
              FormRows(HitRows(s)),
          }),
          FormGroup("その他", ForceRows(s)),
          FormGroup("アタック", AttackRows(s)),
      },
  })};
}

std::vector<cCmdEnable> ShotEnables() {
  return Joined(kShotCommonEnables, {
      {kIdShotMoveTarget, MoveUsesTarget}, {kIdShotAccel, Accelerates},     {kIdShotAccelClone, Accelerates},
      {kIdShotRange, HasRange},            {kIdShotRangeClone, HasRange},   {kIdShotLife, HasLife},
      {kIdShotLifeClone, HasLife},         {kIdShotVanishValue, VanishesByShot}, {kIdShotForce, ForceOwn},
      {kIdShotGetItemNo, GetsItem},        {kIdShotAttackFlow, Attacks},
  });
}

std::vector<cCmdRange> ShotRanges() {
  return Joined(kFormationRanges, {{kIdShotMoveParam, MoveRange<0>},
                                   {kIdShotMoveParam + 2, MoveRange<1>},
                                   {kIdShotMoveParam + 4, MoveRange<2>}});
}

// ---- ソード (224) ----
// Its time is the sword type's and is shown, not edited; its parallel
// flag stays the author's, as nothing says what a sword type would make of
// it.

void TakeSwordTime(cCmdWork& w) {
  if (const std::optional<int> time = RefSizes().SwordTypeTime(w.shot.m_nMoveType)) {
    w.cmd.m_nTime = static_cast<int16_t>(*time);
  }
}

std::string SwordTimeText(const cCmdWork& w) {
  std::string text;
  AppendFormat(text, SysText("実行時間(1/10s)　%d　（ソードタイプに従う）"), w.cmd.m_nTime);
  return text;
}

std::vector<cFormRow> SwordRows(cCmdWork& w) {
  cEdShot& s = w.shot;
  std::vector<cFormRow> command = {NoteRow(kIdCmdNote, ""), ParallelRow(w)};
  for (cFormRow& row : SoundRows(w, kUserOffscreen)) command.push_back(std::move(row));
  command.push_back(AnimeRow(w));
  return {FormColumns({
      {
          ComboRow("ソードタイプ", kIdShotMoveType, &s.m_nMoveType, DbRows(eDbList::SwordType)),
          FormGroup("当たり", HitRows(s)),
          FormGroup("アタック", AttackRows(s)),
      },
      {FormGroup("その他", ForceRows(s)), FormGroup("コマンド", command)},
  })};
}

// ---- ブロック召喚 (258), キャラ召喚 (256), アイテム召喚 (257) ----

bool PlacesBlock(const cCmdWork& w) { return w.shot.m_nSummonType != kSummonErase; }
bool ForceByNumber(const cCmdWork& w) { return w.shot.m_nForceMode == kForceByNumber; }

template <ePaletteList List>
cComboRows SummonRows(const cCmdWork& w) { return EntryRows(w.shot.m_nSummonSrc, List); }

std::vector<cFormRow> SummonedRows(cCmdWork& w, const char* entryLabel) {
  cEdShot& s = w.shot;
  return {
      ComboRow("パレット", kIdShotSummonSrc, &s.m_nSummonSrc, SummonPaletteRows(w)),
      {entryLabel, ListCombo(kIdShotSummonNo, &s.m_nSummonNo)},
  };
}

std::vector<cFormRow> PlacingRows(cEdShot& s) {
  return {
      FormGroup("配置", {
          FormRows(FormationRows(s, "数")),
          FormRows(AimRows(s)),
          FormRows(ShiftRows(s, "召喚位置のズレX(dot)", "召喚位置のズレY(dot)", "右向きなら反転", false)),
      }),
  };
}

std::vector<cFormRow> SummonBlockRows(cCmdWork& w) {
  cEdShot& s = w.shot;
  return {FormColumns({
      {
          ComboRow("召喚タイプ", kIdShotSummonType, &s.m_nSummonType, LabelRows(SummonBlockTable)),
          FormRows(SummonedRows(w, "ブロック")),
          CheckRow(kIdShotFailOnHero, &s.m_bFailOnHero, "召喚先に、ブロックに当たる主人公がいれば失敗"),
          CheckRow(kIdShotFailOnEnemy, &s.m_bFailOnEnemy, "召喚先に、ブロックに当たる敵がいれば失敗"),
          FormGroup("コマンド", CommandRows(w)),
      },
      PlacingRows(s),
  })};
}

std::vector<cFormRow> LifeRows(cEdShot& s) {
  return {
      CheckRow(kIdShotRangeOn, &s.m_bRange, "存在時間(1/10s)"),
      SameLine(NumberRow(nullptr, kIdShotRange, &s.m_nRange, 1, 9999)),
  };
}

std::vector<cFormRow> SummonCharaRows(cCmdWork& w) {
  cEdShot& s = w.shot;
  return {FormColumns({
      {
          FormRows(SummonedRows(w, "キャラ")),
          ComboRow("勢力", kIdShotForceMode, &s.m_nForceMode, LabelRows(SummonForceTable)),
          SameLine(NumberRow(nullptr, kIdShotForce, &s.m_nForce, 0, 7)),
          FormRows(LifeRows(s)),
          CheckRow(kIdShotZeroScore, &s.m_bZeroScore, "獲得スコアを0にする"),
          CheckRow(kIdShotFlipDir, &s.m_bFlipDir, "向き反転（使用者の逆の向きになる）"),
          FormRows(AttackRows(s)),
          FormGroup("コマンド", CommandRows(w)),
      },
      PlacingRows(s),
  })};
}

std::vector<cFormRow> SummonItemRows(cCmdWork& w) {
  return {FormColumns({
      {FormRows(SummonedRows(w, "アイテム")), FormRows(LifeRows(w.shot)), FormGroup("コマンド", CommandRows(w))},
      PlacingRows(w.shot),
  })};
}

template <ePaletteList List>
cRuleForm<cCmdWork> SummonRules(std::vector<cFormRow> (*rows)(cCmdWork&), const std::vector<cCmdEnable>& own) {
  return {.rows = rows,
          .lists = {{kIdShotSummonNo, SummonRows<List>}},
          .ranges = kFormationRanges,
          .enables = Joined(kShotCommonEnables, own)};
}

cCmdKindForm SummonForm(int kind, cRuleForm<cCmdWork> rules) {
  return {.kind = kind,
          .rules = std::move(rules),
          .reset = ResetShotParams,
          .texts = kFormationTexts,
          .shows = kFormationShows};
}

const cCmdKindForm kForms[] = {
    {.kind = kCmdShot,
     .rules = {.rows = ShotRows,
               .lists = {{kIdShotGetItemNo, GetItemRows}},
               .ranges = ShotRanges(),
               .enables = ShotEnables()},
     .reset = ResetShotParams,
     .texts = Joined(kFormationTexts, {{kIdShotMoveLabel, MoveLabel<0>},
                                       {kIdShotMoveLabel + 1, MoveLabel<1>},
                                       {kIdShotMoveLabel + 2, MoveLabel<2>}}),
     .shows = Joined(kFormationShows, {MoveShow<0>(), MoveShow<1>(), MoveShow<2>()})},
    // The family's list of dialogs names the sword type, 威力 and 勢力; the
    // shot record marks also Z座標, 透明, 巨大化, 衝撃, エフェクト, 取得アイテム
    // and アタック for ソード, and the record's own marks decide: all shown.
    {.kind = kCmdSword,
     .rules = {.rows = SwordRows,
               .lists = {{kIdShotGetItemNo, GetItemRows}},
               .enables = {{kIdShotForce, ForceOwn},
                           {kIdShotGetItemNo, GetsItem},
                           {kIdShotAttackFlow, Attacks},
                           {kIdCmdNoSoundOffscreen, HasSound}},
               .follow = [](cCmdWork& w, const cCmdWork& before) {
                 if (w.shot.m_nMoveType != before.shot.m_nMoveType) TakeSwordTime(w);
               }},
     .open = TakeSwordTime,
     .texts = {{kIdCmdNote, SwordTimeText}}},
    SummonForm(kCmdSummonBlock, SummonRules<ePaletteList::Block>(
                                    SummonBlockRows, {{kIdShotSummonSrc, PlacesBlock},
                                                      {kIdShotSummonNo, PlacesBlock},
                                                      {kIdShotFailOnHero, PlacesBlock},
                                                      {kIdShotFailOnEnemy, PlacesBlock}})),
    SummonForm(kCmdSummonChara, SummonRules<ePaletteList::Chara>(SummonCharaRows, {{kIdShotForce, ForceByNumber},
                                                                                   {kIdShotRange, HasRange},
                                                                                   {kIdShotAttackFlow, Attacks}})),
    SummonForm(kCmdSummonItem, SummonRules<ePaletteList::Item>(SummonItemRows, {{kIdShotRange, HasRange}})),
};

}  // namespace

std::span<const cCmdKindForm> ShotForms() { return kForms; }

}  // namespace velmora
