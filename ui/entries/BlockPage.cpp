#include "ui/entries/EntryEditor.h"
#include "ui/entries/EntryRows.h"

#include <algorithm>

// "ブロックデータ": the one page of the block editor.
namespace velmora {
namespace {

using cWork = cEntryWork<cEdBlock>;

constexpr int kActionWithoutX[] = {0, 2};  // なし, ジャンプ禁止

cComboRows NoHitForceRows() {
  // Stored as the row less one, so that -1 is なし.
  cComboRows rows{SysTexts({"なし", "0", "1", "2", "3", "4", "5", "6", "7"}), -1};
  return rows;
}

std::vector<cFormRow> BlockRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdBlock& b = w.entry;
  return {FormColumns({
      {
          Boxed(1024, &box[0], {"ブロック名", CharsLine(kIdEntryName, &b.m_strName, kMaxEntryNameChars)}),
          InheritChoiceRows(w),
          FormGroup("出現", CondRows(w, 1, 1025)),
      },
      {
          FormGroup("表示", {
              GraphicRows(w, 2, 1026),
              Boxed(1027, &box[3], CheckRow(kIdFront, &b.m_bFront, "キャラより手前に表示")),
              Boxed(1028, &box[4], {"透明", TableCombo(kIdTransparent, &b.m_nTransparent, OnOffTable)}),
              MarkRows(w, 5, 1029),
          }),
          FormGroup("性質", {
              Boxed(1030, &box[6], {"ブロックタイプ", TableCombo(kIdBlockType, &b.m_nBlockType, BlockTypeTable)}),
              Boxed(1031, &box[7], {"無効勢力", ComboOf(kIdNoHitForce, &b.m_nNoHitForce, NoHitForceRows())}),
              Boxed(1032, &box[8], {"アクション", TableCombo(kIdAction, &b.m_nAction, BlockActionTable)}),
              SameLine(NumberRow("X", kIdActionX, &b.m_nActionX, -999, 999)),
              Boxed(1033, &box[9], {"取得アイテム", TableCombo(kIdGetItemSrc, &b.m_nGetItemSrc, ItemRefTable)}),
              SameLine({nullptr, ListCombo(kIdGetItemNo, &b.m_nGetItemNo)}),
              Boxed(1034, &box[10], CheckRow(kIdNoSummon, &b.m_bNoSummon,
                                             "ブロック召喚を無効化（ブロック召喚による変更を許可しない）")),
          }),
      },
  })};
}

cComboRows GetItemRows(const cWork& w) { return SourceEntryRows(w.entry.m_nGetItemSrc, ePaletteList::Item); }
bool GivesItem(const cWork& w) { return w.entry.m_nGetItemSrc != 0; }
bool ShowsMark(const cWork& w) { return w.entry.m_nMarkShow != 0; }
bool ActionHasX(const cWork& w) {
  return std::find(std::begin(kActionWithoutX), std::end(kActionWithoutX), w.entry.m_nAction) == std::end(kActionWithoutX);
}

cEntryPageForm<cEdBlock> BlockPageForm() {
  return {
    {
        .rows = BlockRows,
        .lists = Joined(InheritChoiceLists<cEdBlock>(), {{kIdGetItemNo, GetItemRows}}),
        .ranges = GraphicRanges<cEdBlock>(),
        .enables = Joined(GraphicEnables<cEdBlock>(),
                          {{kIdActionX, ActionHasX}, {kIdGetItemNo, GivesItem}, {kIdMarkNo, ShowsMark}}),
    },
    // The eleven groups of the block, each with the controls of its fields.
    {
        {0, 1024, {kIdEntryName}},
        {1, 1025, {kIdAppearList, kIdAppearInsert, kIdAppearEdit, kIdAppearDelete, kIdAppearJudge, kIdAppearLatch}},
        {2, 1026, {kIdGraphicKind, kIdGraphicNo, kIdGraphicFrame, kIdGraphicPick}},
        {3, 1027, {kIdFront}},
        {4, 1028, {kIdTransparent}},
        {5, 1029, {kIdMarkShow, kIdMarkNo, kIdMarkSpin}},
        {6, 1030, {kIdBlockType}},
        {7, 1031, {kIdNoHitForce}},
        {8, 1032, {kIdAction, kIdActionX}},
        {9, 1033, {kIdGetItemSrc, kIdGetItemNo}},
        {10, 1034, {kIdNoSummon}},
    },
  };
}

const cEntryPageForm<cEdBlock> kBlockPage = BlockPageForm();

const cEditorPages<cEdBlock> kBlockEditor{"ブロックデータ", {{MakeEntryPage<cEntryPage<cEdBlock>, cEdBlock, kBlockPage>, "ブロックデータ"}}};

}  // namespace

const cEditorPages<cEdBlock>& EditorPages(const cEdBlock*) { return kBlockEditor; }

}  // namespace velmora
