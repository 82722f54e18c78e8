#include "ui/entries/EntryRows.h"

#include "objects/CondTables.h"
#include "objects/RefNames.h"
#include "objects/code/VarCombo.h"
#include "ui/list/RecordListControl.h"

namespace velmora {
namespace {

constexpr int kGraphicPreviewSize = 64;
constexpr const char* kInheritBox = "継承→";

template <class Entry>
cComboRows InheritSourceRows(const cEntryWork<Entry>& w) {
  return LabelRows(InheritSrcTable, 0, OfferedInheritSources(w.place.target));
}

template <class Entry>
cComboRows InheritEntryRows(const cEntryWork<Entry>& w) {
  return SourceEntryRows(w.entry.m_nInheritSrc, kPaletteListOf<Entry>);
}

// A graphic rule applied to the kind the copy shows.
template <class Entry, auto Rule>
auto ByGraphicKind(const cEntryWork<Entry>& w) {
  return Rule(w.entry.m_nGraphicKind);
}

}  // namespace

cEditStrDesc CharsLine(int id, std::string* field, int chars) {
  // A character takes at most two bytes of CP932.
  cEditStrDesc desc = EditStrLine(id, field, chars * 2, true);
  desc.width = chars;
  return desc;
}

cFormRow EntryNavRow() {
  return FormRows({
      {nullptr, cButtonDesc{kIdEntryPrev, "←"}},
      SameLine({nullptr, cButtonDesc{kIdEntryNext, "→"}}),
      SameLine({nullptr, cStaticDesc{kIdEntryNumber, ""}}),
  });
}

cFormRow Boxed(int box, uint8_t* flag, cFormRow row) {
  return FormRows({{nullptr, cCheckDesc{box, flag, kInheritBox}}, SameLine(std::move(row))});
}

cFormRow BoxedRows(int box, uint8_t* flag, std::vector<cFormRow> rows) {
  cFormRow boxRow{nullptr, cCheckDesc{box, flag, kInheritBox}};
  std::vector<cFormRow> boxed(1, std::move(boxRow));
  boxed.insert(boxed.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
  return FormRows(std::move(boxed));
}

cComboRows SourceEntryRows(int source, ePaletteList list) {
  cComboRows rows;
  if (source != kInheritCommon && source != kInheritStage) return rows;
  const ePalette palette = source == kInheritCommon ? ePalette::Common : ePalette::Stage;
  rows.offset = 1;
  for (int number = 1; number < RefSizes().PaletteListSize(palette, list); ++number) {
    rows.texts.push_back(VarComboRowText(number, RefNames().EntryName(palette, list, number)));
  }
  return rows;
}

template <class Entry>
std::vector<cFormRow> CondRows(cEntryWork<Entry>& w, int group, int box) {
  return {
      BoxedRows(box, &w.inherit[group], {
          RecordListRows({kIdAppearList, kIdAppearInsert, kIdAppearEdit, kIdAppearDelete, 1}),
          {"判定タイプ", TableCombo(kIdAppearJudge, &w.entry.m_nCondJudge, CondJudgeTable)},
          CheckRow(kIdAppearLatch, &w.entry.m_bCondLatch, "一度条件が成立すると、以後無条件で成立"),
      }),
  };
}

template <class Entry>
cFormRow GraphicRows(cEntryWork<Entry>& w, int group, int box) {
  return BoxedRows(box, &w.inherit[group], {
      {"グラフィック", TableCombo(kIdGraphicKind, &w.entry.m_nGraphicKind, GraphicKindTable)},
      SameLine(NumberRow(nullptr, kIdGraphicNo, &w.entry.m_nGraphicNo, 1, 119)),
      SameLine({nullptr, cButtonDesc{kIdGraphicPick, "一覧"}}),
      NumberRow("コマ", kIdGraphicFrame, &w.entry.m_nGraphicFrame, 0, 999),
      {nullptr, cPictureDesc{kIdGraphicPreview, kGraphicPreviewSize, kGraphicPreviewSize}},
  });
}

template <class Entry>
std::vector<typename cEntryRules<Entry>::cRows> InheritChoiceLists() {
  return {{kIdInheritSrc, InheritSourceRows<Entry>}, {kIdInheritNo, InheritEntryRows<Entry>}};
}

template <class Entry>
std::vector<typename cEntryRules<Entry>::cRange> GraphicRanges() {
  return {{kIdGraphicNo, ByGraphicKind<Entry, GraphicNumberRange>}, {kIdGraphicFrame, ByGraphicKind<Entry, GraphicFrameRange>}};
}

template <class Entry>
std::vector<typename cEntryRules<Entry>::cEnable> GraphicEnables() {
  return {{kIdGraphicFrame, ByGraphicKind<Entry, HasFrame>}, {kIdGraphicPick, ByGraphicKind<Entry, CanPickGraphic>}};
}

#define VELMORA_ENTRY_ROWS(Entry)                                                        \
  template std::vector<cFormRow> CondRows(cEntryWork<Entry>&, int, int);                 \
  template std::vector<cEntryRules<Entry>::cRows> InheritChoiceLists<Entry>();           \
  template std::vector<cEntryRules<Entry>::cRange> GraphicRanges<Entry>();       \
  template std::vector<cEntryRules<Entry>::cEnable> GraphicEnables<Entry>();
VELMORA_ENTRY_ROWS(cEdBlock)
VELMORA_ENTRY_ROWS(cEdChara)
VELMORA_ENTRY_ROWS(cEdItem)
#undef VELMORA_ENTRY_ROWS
template cFormRow GraphicRows(cEntryWork<cEdBlock>&, int, int);
template cFormRow GraphicRows(cEntryWork<cEdItem>&, int, int);

}  // namespace velmora
