#include "ui/commands/CmdRows.h"

#include "core/SystemText.h"
#include "objects/MoveTables.h"
#include "objects/PaletteSources.h"
#include "objects/RefNames.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/GValInfo.h"
#include "objects/Item.h"
#include "objects/code/VarCombo.h"
#include "project/Database.h"
#include "ui/commands/CmdIds.h"
#include "ui/conditions/CondForms.h"
#include "ui/conditions/VarRows.h"

namespace velmora {
namespace {

constexpr int kTimeMin = 1;
constexpr int kTimeMax = 9999;
constexpr int kTimeCloneLimit = 500;

int PaletteListCount(ePalette palette, ePaletteList list) {
  const cPaletteLists& lists = InstalledPaletteLists(palette);
  switch (list) {
    case ePaletteList::Block: return lists.blocks ? static_cast<int>(lists.blocks->size()) : 0;
    case ePaletteList::Chara: return lists.charas ? static_cast<int>(lists.charas->size()) : 0;
    case ePaletteList::Item: return lists.items ? static_cast<int>(lists.items->size()) : 0;
  }
  return 0;
}

}  // namespace

std::vector<cFormRow> TimeRows(cCmdWork& w, bool clone) {
  std::vector<cFormRow> rows = {NumberRow("実行時間(1/10s)", kIdCmdTime, &w.cmd.m_nTime, kTimeMin, kTimeMax)};
  if (clone) rows.push_back(CloneRow(kIdCmdTimeClone, &w.cmd.m_nTimeClone, -kTimeCloneLimit, kTimeCloneLimit));
  rows.push_back(ParallelRow(w));
  return rows;
}

cFormRow ParallelRow(cCmdWork& w) { return CheckRow(kIdCmdParallel, &w.cmd.m_bParallel, "並列実行"); }

cFormRow AnimeRow(cCmdWork& w) {
  return ComboRow("アニメ", kIdCmdAnime, &w.cmd.m_nAnime, DbRows(eDbList::Anime, "なし（変更しない）"));
}

std::vector<cFormRow> SoundRows(cCmdWork& w, const char* offscreen) {
  std::vector<cFormRow> rows = {
      ComboRow("効果音", kIdCmdSound, &w.cmd.m_nSound, DbRows(eDbList::Sound, "なし")),
      SameLine({nullptr, cSoundPreviewDesc{kIdCmdSoundPlay, eDbList::Sound, kIdCmdSound}}),
  };
  if (offscreen) rows.push_back(CheckRow(kIdCmdNoSoundOffscreen, &w.cmd.m_bNoSoundOffscreen, offscreen));
  return rows;
}

bool HasSound(const cCmdWork& w) { return w.cmd.m_nSound != 0; }

cComboRows DbRows(eDbList list, const char* rowZero) {
  std::vector<std::string> texts = Database().ChoiceLabels(list);
  if (rowZero) {
    if (texts.empty()) texts.emplace_back();
    texts.front() = SysText(rowZero);
  }
  return TextRows(texts);
}

cComboRows DbRowsFrom1(eDbList list) { return TextRows(Database().ChoiceLabels(list), 1); }

cComboRows EntryRows(int palette, ePaletteList list) {
  cComboRows rows;
  if (palette != 0 && palette != 1) {
    rows.texts.emplace_back(SysText("なし"));
    return rows;
  }
  const ePalette which = palette == 0 ? ePalette::Common : ePalette::Stage;
  rows.offset = 1;
  for (int number = 1; number < PaletteListCount(which, list); ++number) {
    rows.texts.push_back(VarComboRowText(number, RefNames().EntryName(which, list, number)));
  }
  return rows;
}

cComboRows SummonPaletteRows(const cCmdWork& w) { return LabelRows(SummonPaletteTable, 0, w.commonEntry ? 1 : kAllRows); }

cFormRow VarReferenceRows(cCmdWork& w) {
  return FormGroup("変数（参考、リネームに）", {
      {"コモン変数", ListCombo(kIdCommonVarList, &w.shownVar[kScopeCommon])},
      SameLine({nullptr, cButtonDesc{kIdCommonVarName, "_"}}),
      {"ステージ変数", ListCombo(kIdStageVarList, &w.shownVar[kScopeStage])},
      SameLine({nullptr, cButtonDesc{kIdStageVarName, "_"}}),
  });
}

template <int Scope>
cComboRows ScopeRows(const cCmdWork&) { return VarRows(Scope); }
template <int Scope>
int ScopeOf(const cCmdWork&) { return Scope; }

std::vector<cRuleForm<cCmdWork>::cRows> VarReferenceLists() {
  return {{kIdCommonVarList, ScopeRows<kScopeCommon>}, {kIdStageVarList, ScopeRows<kScopeStage>}};
}

std::vector<cRuleForm<cCmdWork>::cRename> VarReferenceRenames() {
  return {{kIdCommonVarName, kIdCommonVarList, ScopeOf<kScopeCommon>},
          {kIdStageVarName, kIdStageVarList, ScopeOf<kScopeStage>}};
}

cFormRow NumberRow(const char* label, int id, cValueField field, int min, int max, const char* suffix) {
  return {label, cEditValDesc{id, field, static_cast<double>(min), static_cast<double>(max), SpinOf(id), 1}, nullptr,
          suffix};
}

cFormRow CloneRow(int id, cValueField field, int min, int max) {
  return SameLine(NumberRow("＋分身値×", id, field, min, max));
}

cFormRow CheckRow(int id, cValueField field, const char* text) { return {nullptr, cCheckDesc{id, field, text}}; }

cFormRow ComboRow(const char* label, int id, cValueField field, cComboRows rows) {
  return {label, ComboOf(id, field, std::move(rows))};
}

cFormRow ParamNumber(cCmdWork& w, int i, const char* label, int min, int max, const char* suffix) {
  return NumberRow(label, ParamId(i), &w.P(i), min, max, suffix);
}

cFormRow ParamCheck(cCmdWork& w, int i, const char* text) { return CheckRow(ParamId(i), &w.P(i), text); }

cFormRow ParamCombo(cCmdWork& w, int i, const char* label, cComboRows rows) {
  return ComboRow(label, ParamId(i), &w.P(i), std::move(rows));
}

cFormRow SameLine(cFormRow row) {
  row.sameLine = true;
  return row;
}

cFormRow NoteRow(int id, const char* text) { return {nullptr, cStaticDesc{id, text}}; }

void TakeParallel(cCmdWork& w) { w.cmd.m_bParallel = 1; }

}  // namespace velmora
