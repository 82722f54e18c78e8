#pragma once
#include <vector>

#include "objects/GraphicRule.h"
#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"
#include "stage/EntryEditing.h"
#include "ui/commands/CmdRows.h"
#include "ui/conditions/CondForms.h"
#include "ui/entries/EntryIds.h"
#include "ui/entries/EntryPage.h"

namespace velmora {

// Rows and rules that the pages of the three editors share.

template <class Entry>
inline constexpr ePaletteList kPaletteListOf = std::is_same_v<Entry, cEdBlock>  ? ePaletteList::Block
                                               : std::is_same_v<Entry, cEdChara> ? ePaletteList::Chara
                                                                                  : ePaletteList::Item;

// A name or memo of at most `chars` characters on one line.
cEditStrDesc CharsLine(int id, std::string* field, int chars);

// "←", the entry's number and "→", at the head of every page.
cFormRow EntryNavRow();

// A row with the box "継承→" of a group in front of it.
cFormRow Boxed(int box, uint8_t* flag, cFormRow row);
// Rows under one box: the box on a line of its own, the rows below it.
cFormRow BoxedRows(int box, uint8_t* flag, std::vector<cFormRow> rows);

// The entries of the palette that an inherit or item source names (1
// common, 2 stage), "%s %s" of number and name, stored from 1; none
// without a source.
cComboRows SourceEntryRows(int source, ePaletteList list);

// The group "継承": 継承パレット and 継承データ.
template <class Entry>
cFormRow InheritChoiceRows(cEntryWork<Entry>& w) {
  return FormGroup("継承", {
      {"継承パレット", ListCombo(kIdInheritSrc, &w.entry.m_nInheritSrc)},
      {"継承データ", ListCombo(kIdInheritNo, &w.entry.m_nInheritNo)},
  });
}

// 出現条件 with its buttons, 判定タイプ and the latch, under the box of
// their group.
template <class Entry>
std::vector<cFormRow> CondRows(cEntryWork<Entry>& w, int group, int box);

// The graphic of a block or an item: kind, number, frame, "一覧" and the
// picture of what it shows.
template <class Entry>
cFormRow GraphicRows(cEntryWork<Entry>& w, int group, int box);

// マーク: whether it shows and its number.
template <class Entry>
cFormRow MarkRows(cEntryWork<Entry>& w, int group, int box) {
  return FormRows({
      Boxed(box, &w.inherit[group], {"マーク", TableCombo(kIdMarkShow, &w.entry.m_nMarkShow, MarkShowTable)}),
      SameLine({nullptr, cEditValDesc{kIdMarkNo, &w.entry.m_nMarkNo, 0, 119, kIdMarkSpin, 1}}),
  });
}

// The rules of the rows above, for a page's form.
template <class Entry>
std::vector<typename cEntryRules<Entry>::cRows> InheritChoiceLists();
template <class Entry>
std::vector<typename cEntryRules<Entry>::cRange> GraphicRanges();
template <class Entry>
std::vector<typename cEntryRules<Entry>::cEnable> GraphicEnables();

}  // namespace velmora
