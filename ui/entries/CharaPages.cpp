#include "objects/RefSizes.h"
#include "ui/entries/EntryEditor.h"
#include "ui/entries/EntryRows.h"
#include "ui/entries/FlowPage.h"

// "キャラデータ": the pages 基本, 表示 and 能力, and 行動, the flow editor.
namespace velmora {
namespace {

using cWork = cEntryWork<cEdChara>;

constexpr int kPlayer = 0;  // ControlTable
constexpr int kOffsetLimit = 640;
constexpr int kStatusLimit = 999999;

const char* const kPlayerNumbers[] = {"1"};
const cLabelTable kPlayerNoTable{kPlayerNumbers};

// A row and the line "＋分身値×" and "右向き配置なら反転" of one offset.
cFormRow OffsetRows(int box, uint8_t* flag, const char* label, int id, int16_t* offset, int cloneId,
                    int16_t* clone, int flipId, uint8_t* flip) {
  return FormRows({
      Boxed(box, flag, NumberRow(label, id, offset, -kOffsetLimit, kOffsetLimit)),
      NumberRow("＋分身値×", cloneId, clone, -kOffsetLimit, kOffsetLimit),
      SameLine(CheckRow(flipId, flip, "右向き配置なら反転")),
  });
}

// ---- 基本 (140) ----

std::vector<cFormRow> BasicRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdChara& c = w.entry;
  std::vector<cFormRow> appear = CondRows(w, 4, 1028);
  appear.push_back(Boxed(1029, &box[5], CheckRow(kIdFaceRight, &c.m_bFaceRight, "右向き")));
  appear.push_back(Boxed(1030, &box[6], NumberRow("分身数", kIdCloneCount, &c.m_nCloneCount, 0, 32)));
  appear.push_back(OffsetRows(1031, &box[7], "初期位置のズレX(dot)", kIdOffsetX, &c.m_nOffsetX, kIdOffsetXClone,
                              &c.m_nOffsetXClone, kIdOffsetXFlip, &c.m_bOffsetXFlip));
  appear.push_back(OffsetRows(1032, &box[8], "初期位置のズレY(dot)", kIdOffsetY, &c.m_nOffsetY, kIdOffsetYClone,
                              &c.m_nOffsetYClone, kIdOffsetYFlip, &c.m_bOffsetYFlip));
  return {FormColumns({
      {
          FormGroup("基本", {
              Boxed(1024, &box[0], {"キャラ名", CharsLine(kIdEntryName, &c.m_strName, kMaxEntryNameChars)}),
              Boxed(1025, &box[1], {"操作", TableCombo(kIdControl, &c.m_nControl, ControlTable)}),
              SameLine({"プレイヤー番号", TableCombo(kIdPlayerNo, &c.m_nPlayerNo, kPlayerNoTable)}),
              Boxed(1026, &box[2], NumberRow("勢力", kIdForce, &c.m_nForce, 0, 7)),
              Boxed(1027, &box[3], NumberRow("キャラID", kIdCharaId, &c.m_nCharaId, 0, 99)),
          }),
          InheritChoiceRows(w),
      },
      {FormGroup("出現", std::move(appear))},
  })};
}

bool IsPlayer(const cWork& w) { return w.entry.m_nControl == kPlayer; }
// A player is never a block and has no clones.
bool IsComputer(const cWork& w) { return w.entry.m_nControl != kPlayer; }

const cEntryPageForm<cEdChara> kBasicPage{
    {
        .rows = BasicRows,
        .lists = InheritChoiceLists<cEdChara>(),
        .enables = {{kIdPlayerNo, IsPlayer}, {kIdCloneCount, IsComputer}},
    },
    {
        {0, 1024, {kIdEntryName}},
        {1, 1025, {kIdControl, kIdPlayerNo}},
        {2, 1026, {kIdForce}},
        {3, 1027, {kIdCharaId}},
        {4, 1028, {kIdAppearList, kIdAppearInsert, kIdAppearEdit, kIdAppearDelete, kIdAppearJudge, kIdAppearLatch}},
        {5, 1029, {kIdFaceRight}},
        {6, 1030, {kIdCloneCount}},
        {7, 1031, {kIdOffsetX, kIdOffsetXClone, kIdOffsetXFlip}},
        {8, 1032, {kIdOffsetY, kIdOffsetYClone, kIdOffsetYFlip}},
    },
};

// ---- 表示 (200) ----

std::vector<cFormRow> ShowRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdChara& c = w.entry;
  return {FormColumns({
      {FormGroup("表示", {
          BoxedRows(1024, &box[9], {
              {"グラフィック", TableCombo(kIdGraphicKind, &c.m_nGraphicKind, GraphicKindTable)},
              SameLine(NumberRow(nullptr, kIdGraphicNo, &c.m_nGraphicNo, 1, 119)),
              SameLine({nullptr, cButtonDesc{kIdGraphicPick, "一覧"}}),
              NumberRow("ズレ", kIdGraphicShift, &c.m_nGraphicShift, -999, 999),
              {nullptr, cPictureDesc{kIdGraphicPreview, 64, 64}},
          }),
          Boxed(1025, &box[10], ComboRow("アニメセット", kIdAnimeSet, &c.m_nAnimeSet, DbRows(eDbList::AnimeSet))),
          SameLine({nullptr, cButtonDesc{kIdAnimeSetPick, "一覧"}}),
          Boxed(1026, &box[11], NumberRow("Z座標", kIdZ, &c.m_nZ, 0, 7)),
          NoteRow(kIdZNote, "※値が大きいほど手前に表示されます"),
          Boxed(1027, &box[12], {"透明", TableCombo(kIdTransparent, &c.m_nTransparent, OnOffTable)}),
          MarkRows(w, 15, 1028),
          BoxedRows(1029, &box[13], {
              ComboRow("初期のキャラエフェクト", kIdStartEffect, &c.m_nStartEffect, DbRows(eDbList::CharaEffect, "なし")),
              {"実行タイプ", TableCombo(kIdStartEffectMode, &c.m_nStartEffectMode, RunModeTable)},
              SameLine(CheckRow(kIdStartEffectLoop, &c.m_bStartEffectLoop, "ループ実行")),
          }),
          BoxedRows(1030, &box[14], {
              ComboRow("死亡時のキャラエフェクト", kIdDeathEffect, &c.m_nDeathEffect, DbRows(eDbList::CharaEffect, "なし")),
              {"実行タイプ", TableCombo(kIdDeathEffectMode, &c.m_nDeathEffectMode, RunModeTable)},
          }),
          {"無敵エフェクト", TableCombo(kIdInvincibleFx, &c.m_nInvincibleFx, InvincibleFxTable)},
          NoteRow(kIdInvincibleFxNote, "↑※Direct3D使用時のみ有効"),
      })},
      {FormGroup("状態", {
          Boxed(1031, &box[18], {"無敵", TableCombo(kIdInvincible, &c.m_nInvincible, InvincibleTable)}),
          Boxed(1032, &box[19], {"ブロック", TableCombo(kIdBlock, &c.m_nBlock, OnOffTable)}),
          Boxed(1033, &box[17], {"飛行", TableCombo(kIdFly, &c.m_nFly, FlyTable)}),
          Boxed(1034, &box[20], {"巨大化", TableCombo(kIdGiant, &c.m_nGiant, GiantTable)}),
          Boxed(1035, &box[22], {"視界", TableCombo(kIdSightType, &c.m_nSightType, SightTable)}),
          NumberRow("範囲(hbl)", kIdSightRange, &c.m_nSightRange, 0, 40),
          Boxed(1040, &box[16], CheckRow(kIdFixDir, &c.m_bFixDir, "向き固定（自動で進行方向へ向かない）")),
          Boxed(1041, &box[21], CheckRow(kIdAutoScrollSync, &c.m_bAutoScrollSync,
                                         "オートスクロールとシンクロ（飛行の主人公か飛行で誘導移動する敵なら推奨）")),
      })},
  })};
}

bool HasSightRange(const cWork& w) { return w.entry.m_nSightType != 0; }

const cEntryPageForm<cEdChara> kShowPage{
    {
        .rows = ShowRows,
        .ranges = GraphicRanges<cEdChara>(),
        .enables = Joined(GraphicEnables<cEdChara>(), {{kIdBlock, IsComputer}, {kIdSightRange, HasSightRange}}),
    },
    {
        {9, 1024, {kIdGraphicKind, kIdGraphicNo, kIdGraphicPick, kIdGraphicShift}},
        {10, 1025, {kIdAnimeSet, kIdAnimeSetPick}},
        {11, 1026, {kIdZ}},
        {12, 1027, {kIdTransparent}},
        {15, 1028, {kIdMarkShow, kIdMarkNo, kIdMarkSpin}},
        {13, 1029, {kIdStartEffect, kIdStartEffectMode, kIdStartEffectLoop}},
        {14, 1030, {kIdDeathEffect, kIdDeathEffectMode}},
        {18, 1031, {kIdInvincible, kIdInvincibleFx}},
        {19, 1032, {kIdBlock}},
        {17, 1033, {kIdFly}},
        {20, 1034, {kIdGiant}},
        {22, 1035, {kIdSightType, kIdSightRange}},
        {16, 1040, {kIdFixDir}},
        {21, 1041, {kIdAutoScrollSync}},
    },
};

// ---- 能力 (143) ----

std::vector<cFormRow> AbilityRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdChara& c = w.entry;
  return {FormColumns({
      {FormGroup("能力", {
          Boxed(1024, &box[23], NumberRow("HP", kIdHp, &c.m_nHp, 1, kStatusLimit)),
          Boxed(1025, &box[24], NumberRow("SP", kIdSp, &c.m_nSp, 0, kStatusLimit)),
          Boxed(1026, &box[29], NumberRow("防御力", kIdDefense, &c.m_nDefense, 0, kStatusLimit)),
          Boxed(1027, &box[26], NumberRow("体当たりの威力", kIdBodyPower, &c.m_nBodyPower, -kStatusLimit, kStatusLimit)),
          Boxed(1028, &box[27], NumberRow("体当たりの衝撃(hbl)", kIdBodyImpact, &c.m_nBodyImpact, -20, 20)),
          Boxed(1029, &box[28], ComboRow("体当たりのエフェクト", kIdBodyEffect, &c.m_nBodyEffect, DbRows(eDbList::Effect, "なし"))),
          Boxed(1030, &box[25], {"体当たりの当たり判定範囲", TableCombo(kIdBodyHitRange, &c.m_nBodyHitRange, BodyHitTable)}),
          Boxed(1031, &box[30], NumberRow("衝撃耐性", kIdImpactResist, &c.m_nImpactResist, 0, 20)),
          Boxed(1032, &box[31], NumberRow("慣性移動時の止まりやすさ", kIdStopEase, &c.m_nStopEase, 0, 200)),
      })},
      {
          FormGroup("獲得", {
              Boxed(1033, &box[34], NumberRow("スコア", kIdScore, &c.m_nScore, -kStatusLimit, kStatusLimit)),
              Boxed(1034, &box[35], CheckRow(kIdHoldItem, &c.m_bHoldItem, "キャラと同位置のアイテムを所持")),
          }),
          FormGroup("行動条件", {
              BoxedRows(1035, &box[32], {
                  {"範囲", TableCombo(kIdActRange, &c.m_nActRange, ActRangeTable)},
                  {"判定タイプ", TableCombo(kIdActJudge, &c.m_nActJudge, ActJudgeTable)},
              }),
              BoxedRows(1040, &box[33], {
                  CheckRow(kIdGroup, &c.m_bGroup, "グループあり"),
                  NumberRow("グループ番号", kIdGroupNo, &c.m_nGroupNo, 0, 59),
              }),
          }),
      },
  })};
}

bool InGroup(const cWork& w) { return w.entry.m_bGroup != 0; }

const cEntryPageForm<cEdChara> kAbilityPage{
    {.rows = AbilityRows, .enables = {{kIdGroupNo, InGroup}}},
    {
        {23, 1024, {kIdHp}},
        {24, 1025, {kIdSp}},
        {29, 1026, {kIdDefense}},
        {26, 1027, {kIdBodyPower}},
        {27, 1028, {kIdBodyImpact}},
        {28, 1029, {kIdBodyEffect}},
        {25, 1030, {kIdBodyHitRange}},
        {30, 1031, {kIdImpactResist}},
        {31, 1032, {kIdStopEase}},
        {34, 1033, {kIdScore}},
        {35, 1034, {kIdHoldItem}},
        {32, 1035, {kIdActRange, kIdActJudge}},
        {33, 1040, {kIdGroup, kIdGroupNo}},
    },
};

const cEditorPages<cEdChara> kCharaEditor{
    "キャラデータ",
    {
        {MakeEntryPage<cEntryPage<cEdChara>, cEdChara, kBasicPage>, "基本"},
        {MakeEntryPage<cEntryPage<cEdChara>, cEdChara, kShowPage>, "表示"},
        {MakeEntryPage<cEntryPage<cEdChara>, cEdChara, kAbilityPage>, "能力"},
        {MakeFlowPage, "行動"},
    },
};

}  // namespace

const cEditorPages<cEdChara>& EditorPages(const cEdChara*) { return kCharaEditor; }

}  // namespace velmora
