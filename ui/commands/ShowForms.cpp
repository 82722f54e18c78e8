#include "objects/CmdTable.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"
#include "objects/PaletteTables.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"

// メッセージ and the commands on graphics, animations, effects, pictures,
// the screen's colour, backgrounds, sounds and music.
namespace velmora {
namespace {

constexpr int kScreenLimit = 16383;
constexpr int kShiftLimit = 999;
constexpr int kLongTime = 9999;
constexpr int kShowForTime = 2;
constexpr int kMsgPosByCoord = 7;     // MsgPosTable: 画面座標 and ステージ座標 from here on
constexpr int kEffectPosByCoord = 3;  // EffectPosTable: the same

// Where parameters stand that place a message, an effect or a picture.
struct cPlaceParams {
  int pos, x, unit, shiftX;
};

// The place on the screen or the stage that messages, effects and
// pictures share: x and y, their shifts one behind the other.
std::vector<cFormRow> PlaceRows(cCmdWork& w, const cLabelTable& table, const cPlaceParams& p) {
  const auto [pos, x, unit, shiftX] = p;
  return {
      ParamCombo(w, pos, "表示位置", LabelRows(table)),
      ParamNumber(w, x, "座標X", 0, kScreenLimit),
      SameLine(ParamNumber(w, x + 1, "座標Y", 0, kScreenLimit)),
      SameLine(ParamCombo(w, unit, nullptr, LabelRows(BlDotTable))),
      ParamNumber(w, shiftX, "表示位置のズレX(dot)", -kShiftLimit, kShiftLimit),
      ParamNumber(w, shiftX + 1, "表示位置のズレY(dot)", -kShiftLimit, kShiftLimit),
  };
}

cFormRow ScaleRow(cCmdWork& w, int i) { return ParamNumber(w, i, "表示倍率(%)", 1, 1000); }

// ---- メッセージ (239): erasing a message needs its ID only ----

bool MsgShows(const cCmdWork& w) { return !w.P(15); }
bool MsgByCoord(const cCmdWork& w) { return MsgShows(w) && w.P(0) >= kMsgPosByCoord; }
bool MsgForTime(const cCmdWork& w) { return MsgShows(w) && w.P(6) == kShowForTime; }
bool MsgUpdates(const cCmdWork& w) { return MsgShows(w) && w.P(11); }

std::vector<cFormRow> MessageRows(cCmdWork& w) {
  return {FormColumns({
      {
          {"メッセージ", cEditStrDesc{kIdCmdText, &w.cmd.m_strText, 0, 0, 0, false}},
          ParamCheck(w, 9, "#C1～999. でコモン変数、 #S1～999. でステージ変数を表示"),
          VarReferenceRows(w),
      },
      {
          FormGroup("表示位置", {
              FormRows(PlaceRows(w, MsgPosTable, {0, 1, 18, 3})),
              ParamCheck(w, 5, "画面からはみ出ないように自動調整"),
              ParamCheck(w, 10, "画面に追従する（スクロールしても位置が変わらない）"),
          }),
          FormGroup("表示時間", {
              ParamCombo(w, 6, "表示時間", LabelRows(ShowTimeTable)),
              ParamNumber(w, 7, "時間(1/10s)", 1, kLongTime),
              ParamCheck(w, 8, "一時停止"),
              ParamCheck(w, 17, "瞬間表示(1/60s)"),
          }),
          ParamCheck(w, 11, "自動で更新（変数の変化に対応）"),
          SameLine(ParamNumber(w, 16, "更新間隔（1/60s）", 1, kLongTime)),
          ParamCheck(w, 12, "メッセージID"),
          SameLine(ParamNumber(w, 13, nullptr, 0, 999)),
          ParamCheck(w, 14, "ウインドウの表示"),
          ParamCheck(w, 15, "メッセージの消去(メッセージIDが非設定なら消去は失敗)"),
      },
  })};
}

std::vector<cCmdEnable> MessageEnables() {
  std::vector<cCmdEnable> enables = {
      {ParamId(1), MsgByCoord},  {ParamId(2), MsgByCoord},   {ParamId(18), MsgByCoord}, {ParamId(7), MsgForTime},
      {ParamId(16), MsgUpdates}, {ParamId(13), ParamSet<12>}, {kIdCmdText, MsgShows},
  };
  for (int i : {0, 3, 4, 5, 6, 8, 9, 10, 11, 14, 17}) enables.push_back({ParamId(i), MsgShows});
  return enables;
}

// ---- エフェクトの実行 (234): row 0 clears the effects and needs nothing else ----

bool EffectShown(const cCmdWork& w) { return w.P(0) != 0; }
bool EffectByCoord(const cCmdWork& w) { return EffectShown(w) && w.P(1) >= kEffectPosByCoord; }

std::vector<cFormRow> EffectRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "エフェクト", DbRows(eDbList::Effect, "エフェクトの消去")),
      FormRows(PlaceRows(w, EffectPosTable, {1, 2, 8, 4})),
      ScaleRow(w, 6),
      ParamCheck(w, 7, "一時停止"),
  };
}

const std::vector<cCmdEnable> kEffectEnables = {
    {ParamId(1), EffectShown},   {ParamId(2), EffectByCoord}, {ParamId(3), EffectByCoord},
    {ParamId(8), EffectByCoord}, {ParamId(4), EffectShown},   {ParamId(5), EffectShown},
    {ParamId(6), EffectShown},   {ParamId(7), EffectShown},
};

// ---- キャラエフェクトの実行 (213), 画面エフェクトの実行 (231) ----

template <eDbList List>
std::vector<cFormRow> RunEffectRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, List == eDbList::CharaEffect ? "キャラエフェクト" : "画面エフェクト", DbRows(List)),
      ParamCombo(w, 1, "実行タイプ", LabelRows(RunModeTable)),
      ParamCheck(w, 2, "ループ実行"),
  };
}

const std::vector<cCmdEnable> kRunEffectEnables = {{ParamId(1), ParamSet<0>}, {ParamId(2), ParamSet<0>}};

// It lasts as long as the effect runs, whatever the command held.
void OpenScrEffect(cCmdWork& w) {
  TakeParallel(w);
  w.cmd.m_nTime = 0;
}

// ---- ピクチャーの表示 (233): row 0 erases, by ID when one is set ----

bool PictureShown(const cCmdWork& w) { return w.P(0) != 0; }
bool PictureByCoord(const cCmdWork& w) { return PictureShown(w) && w.P(1) >= kEffectPosByCoord; }
bool PictureForTime(const cCmdWork& w) { return PictureShown(w) && w.P(8) == kShowForTime; }

std::vector<cFormRow> PictureRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "ピクチャー", DbRows(eDbList::Picture, "ピクチャーの消去(ID非設定なら全消去)")),
      FormRows(PlaceRows(w, EffectPosTable, {1, 2, 15, 4})),
      ScaleRow(w, 7),
      ParamCheck(w, 6, "キャラより手前に表示"),
      ParamCombo(w, 8, "表示時間", LabelRows(ShowTimeTable)),
      ParamNumber(w, 9, "時間(1/10s)", 1, kLongTime),
      ParamCheck(w, 10, "一時停止"),
      ParamCheck(w, 11, "画面に追従する（スクロールしても位置が変わらない）"),
      ParamCheck(w, 12, "ピクチャーID"),
      SameLine(ParamNumber(w, 13, nullptr, 0, 999)),
      ParamCheck(w, 14, "瞬間表示(1/60s)"),
  };
}

std::vector<cCmdEnable> PictureEnables() {
  std::vector<cCmdEnable> enables = {
      {ParamId(2), PictureByCoord}, {ParamId(3), PictureByCoord}, {ParamId(15), PictureByCoord},
      {ParamId(9), PictureForTime}, {ParamId(13), ParamSet<12>},
  };
  for (int i : {1, 4, 5, 6, 7, 8, 10, 11, 14}) enables.push_back({ParamId(i), PictureShown});
  return enables;
}

// ---- 画面の色を変更 (238) ----

bool ChangesColour(const cCmdWork& w) { return !w.P(4); }

cFormRow ColourRow(cCmdWork& w, int i, const char* label) {
  return {label, cSliderDesc{ParamId(i), &w.P(i), 0, 255, ParamId(i) + 1}};
}
cFormRow ColourEdit(cCmdWork& w, int i) { return SameLine({nullptr, cEditValDesc{ParamId(i) + 1, &w.P(i), 0, 255}}); }

std::vector<cFormRow> ScreenColourRows(cCmdWork& w) {
  return {
      ColourRow(w, 0, "R"), ColourEdit(w, 0),
      ColourRow(w, 1, "G"), ColourEdit(w, 1),
      ColourRow(w, 2, "B"), ColourEdit(w, 2),
      ParamNumber(w, 3, "%", 0, 100),
      ParamCheck(w, 4, "元の色に戻す"),
      ParamNumber(w, 5, "変更に要する時間(1/10s)", 0, 999),
      ParamCheck(w, 6, "瞬間表示"),
      SameLine(ParamNumber(w, 7, "瞬間表示回数", 1, 99)),
  };
}

// ---- 効果音の再生 (228), BGMの再生 (229) ----

std::vector<cFormRow> SoundPlayRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "効果音", DbRowsFrom1(eDbList::Sound)),
      SameLine({nullptr, cSoundPreviewDesc{kIdCmdSoundPlay, eDbList::Sound, ParamId(0)}}),
      CheckRow(kIdCmdNoSoundOffscreen, &w.cmd.m_bNoSoundOffscreen, "キャラが画面外なら再生しない"),
  };
}

std::vector<cFormRow> BgmRows(cCmdWork& w) {
  return {
      ParamCombo(w, 0, "BGM", DbRows(eDbList::Bgm, "BGMの停止")),
      SameLine({nullptr, cSoundPreviewDesc{kIdCmdSoundPlay, eDbList::Bgm, ParamId(0)}}),
      ParamCheck(w, 1, "ループ再生"),
  };
}

const cCmdKindForm kForms[] = {
    {.kind = kCmdMessage,
     .rules = {.rows = MessageRows,
               .lists = VarReferenceLists(),
               .enables = MessageEnables(),
               .renames = VarReferenceRenames()}},
    {.kind = kCmdGraphic, .rules = {.rows = [](cCmdWork& w) {
       return std::vector<cFormRow>{
           ParamCombo(w, 0, "種類", LabelRows(GraphicKindTable)),
           ParamNumber(w, 1, "グラフィック", 1, 999),
           ParamNumber(w, 2, "ズレ", -kShiftLimit, kShiftLimit),
       };
     }}},
    {.kind = kCmdAnimeSet,
     .rules = {.rows = [](cCmdWork& w) {
       return std::vector<cFormRow>{ParamCombo(w, 0, "アニメセット", DbRows(eDbList::AnimeSet))};
     }},
     .open = TakeParallel},
    {.kind = kCmdAnime, .rules = {.rows = [](cCmdWork& w) {
       return std::vector<cFormRow>{
           ParamCombo(w, 0, "アニメ", DbRowsFrom1(eDbList::Anime)),
           ParamCheck(w, 1, "このアニメを終了する"),
       };
     }}},
    {.kind = kCmdEffect, .rules = {.rows = EffectRows, .enables = kEffectEnables}},
    {.kind = kCmdCharaEffect, .rules = {.rows = RunEffectRows<eDbList::CharaEffect>, .enables = kRunEffectEnables}},
    {.kind = kCmdScrEffect,
     .rules = {.rows = RunEffectRows<eDbList::ScrEffect>, .enables = kRunEffectEnables},
     .open = OpenScrEffect},
    {.kind = kCmdPicture, .rules = {.rows = PictureRows, .enables = PictureEnables()}},
    {.kind = kCmdScreenColor,
     .rules = {.rows = ScreenColourRows,
               .enables = {{ParamId(0), ChangesColour},
                           {ParamId(1), ChangesColour},
                           {ParamId(2), ChangesColour},
                           {ParamId(3), ChangesColour},
                           {ParamId(7), ParamSet<6>}}},
     .open = TakeParallel},
    {.kind = kCmdBack, .rules = {.rows = [](cCmdWork& w) {
       return std::vector<cFormRow>{
           ParamNumber(w, 0, "背景番号", 1, 8),
           SameLine(ParamCombo(w, 1, nullptr, LabelRows(ShowToggleTable))),
       };
     }}},
    {.kind = kCmdSound, .rules = {.rows = SoundPlayRows}},
    {.kind = kCmdBgm,
     .rules = {.rows = BgmRows, .enables = {{ParamId(1), ParamSet<0>}, {kIdCmdSoundPlay, ParamSet<0>}}}},
};

}  // namespace

std::span<const cCmdKindForm> ShowForms() { return kForms; }

}  // namespace velmora
