#pragma once
#include <vector>

#include "objects/CmdWork.h"
#include "objects/RefSizes.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/Descriptors.h"
#include "ui/conditions/RuleDialog.h"

namespace velmora {

// Rows and combo rows that several kinds of command share.

// 実行時間 with its "＋分身値×" when `clone`, then 並列実行.
std::vector<cFormRow> TimeRows(cCmdWork& w, bool clone);
cFormRow ParallelRow(cCmdWork& w);
// アニメ: the list Anime, row 0 "なし（変更しない）".
cFormRow AnimeRow(cCmdWork& w);
// 効果音 with its 再生 button, and the box of m_bNoSoundOffscreen with
// `offscreen` beside it unless that is null.
std::vector<cFormRow> SoundRows(cCmdWork& w, const char* offscreen);
bool HasSound(const cCmdWork& w);

// A database list from row 0, with row 0 named `rowZero` when given.
cComboRows DbRows(eDbList list, const char* rowZero = nullptr);
// A database list from row 1: the reserved row 0 can't be chosen.
cComboRows DbRowsFrom1(eDbList list);
// The entries of a palette's list from entry 1, "%03d name"; `palette` as
// SummonPaletteTable numbers it (0 common, 1 stage). Any other palette
// names no entry: the one row "なし", value 0.
cComboRows EntryRows(int palette, ePaletteList list);
// The palettes a summon may take its entry from: a common palette entry
// knows no stage palette.
cComboRows SummonPaletteRows(const cCmdWork& w);

// The group "変数（参考、リネームに）": the common and the stage variables,
// each with its "_", for reference and renaming only. The lists follow the
// names through VarReferenceLists; the renames are VarReferenceRenames.
cFormRow VarReferenceRows(cCmdWork& w);
std::vector<cRuleForm<cCmdWork>::cRows> VarReferenceLists();
std::vector<cRuleForm<cCmdWork>::cRename> VarReferenceRenames();

// A numeric edit with its spin, and its "＋分身値×" on the same line.
cFormRow NumberRow(const char* label, int id, cValueField field, int min, int max, const char* suffix = nullptr);
cFormRow CloneRow(int id, cValueField field, int min, int max);
cFormRow CheckRow(int id, cValueField field, const char* text);
cFormRow ComboRow(const char* label, int id, cValueField field, cComboRows rows);
// The same on parameter i of m_vParam.
cFormRow ParamNumber(cCmdWork& w, int i, const char* label, int min, int max, const char* suffix = nullptr);
cFormRow ParamCheck(cCmdWork& w, int i, const char* text);
cFormRow ParamCombo(cCmdWork& w, int i, const char* label, cComboRows rows);
// A row standing right of the one before it.
cFormRow SameLine(cFormRow row);
// A note under the fields.
cFormRow NoteRow(int id, const char* text);

// Rules of several kinds: a kind that always runs in parallel when it
// opens, and a control that takes part while parameter I is set.
void TakeParallel(cCmdWork& w);
template <int I>
bool ParamSet(const cCmdWork& w) { return w.P(I) != 0; }

// A list of rules with more behind it.
template <class T>
std::vector<T> Joined(std::vector<T> first, const std::vector<T>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace velmora
