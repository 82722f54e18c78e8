#include "objects/Inherit.h"

#include "core/Log.h"
#include "core/SystemText.h"
#include "objects/InheritGroups.h"
#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"

namespace velmora {
namespace {

template <class T>
void ApplyInheritTo(T& entry, std::span<const cInheritGroup<T>> groups) {
  if (entry.m_nInheritNo == 0 || entry.m_nInheritSrc == kInheritNone) return;
  const std::vector<T>* list = SourceList(entry, entry.m_nInheritSrc);
  if (!list) return;
  // A damaged file may hold any number, below 0 too.
  if (entry.m_nInheritNo < 0 || entry.m_nInheritNo >= static_cast<int>(list->size())) {
    entry.m_nInheritSrc = kInheritNone;
    return;
  }
  CopyInheritedGroups(entry, (*list)[static_cast<size_t>(entry.m_nInheritNo)], groups);
}

template <class T>
void SetInheritOf(T& entry, int source, int number, const std::vector<uint8_t>& defaultFlags, ePaletteList kind) {
  const bool sourced = source == kInheritCommon || source == kInheritStage;
  if (sourced && number >= PaletteSize(source, kind)) {
    entry.m_nInheritSrc = kInheritNone;
    entry.m_nInheritNo = 0;
    std::fill(entry.m_bbInherit.begin(), entry.m_bbInherit.end(), 0);
  } else {
    entry.m_nInheritSrc = static_cast<uint8_t>(source);
    entry.m_nInheritNo = static_cast<int16_t>(number);
    if (entry.m_bbInherit.size() != defaultFlags.size()) {
      ReportFormat("%s", SysText("lpData->m_bbInherit.size() != DefInheritCheck.size()\nデフォルトの継承設定がおかしい？"));
    }
    entry.m_bbInherit = defaultFlags;
  }
  entry.ApplyInherit();
}

template <class T>
void RefreshCells(std::vector<T>* cells, int source) {
  if (!cells) return;
  for (T& cell : *cells) {
    if (cell.m_nGraphicNo != 0 && cell.m_nInheritSrc == source) cell.ApplyInherit();
  }
}

template <class T>
void RefreshStageEntries(std::vector<T>* entries) {
  if (!entries) return;
  for (T& entry : *entries) {
    if (entry.m_nInheritNo != 0 && entry.m_nInheritSrc == kInheritCommon) entry.ApplyInherit();
  }
}

int DbSize(eDbList list) { return RefSizes().DbListSize(list); }

}  // namespace

void cEdBlock::ApplyInherit() { ApplyInheritTo<cEdBlock>(*this, BlockInheritGroups()); }
void cEdChara::ApplyInherit() { ApplyInheritTo<cEdChara>(*this, CharaInheritGroups()); }
void cEdItem::ApplyInherit() { ApplyInheritTo<cEdItem>(*this, ItemInheritGroups()); }

void SetInherit(cEdBlock& entry, int source, int number, const std::vector<uint8_t>& defaultFlags) {
  SetInheritOf(entry, source, number, defaultFlags, ePaletteList::Block);
}

void SetInherit(cEdChara& entry, int source, int number, const std::vector<uint8_t>& defaultFlags) {
  SetInheritOf(entry, source, number, defaultFlags, ePaletteList::Chara);
}

void SetInherit(cEdItem& entry, int source, int number, const std::vector<uint8_t>& defaultFlags) {
  SetInheritOf(entry, source, number, defaultFlags, ePaletteList::Item);
}

void cEdBlock::CheckRefs() {
  if (m_nInheritSrc == kInheritCommon || m_nInheritSrc == kInheritStage) {
    CheckInheritRef(PaletteSize(m_nInheritSrc, ePaletteList::Block));
  }
  if (m_nGraphicNo == 0) {
    m_nBlockType = 0;
    m_bNoSummon = 0;
  }
}

void cEdBlock::CheckItemRef() {
  if ((m_nGetItemSrc == kInheritCommon || m_nGetItemSrc == kInheritStage) &&
      m_nGetItemNo >= PaletteSize(m_nGetItemSrc, ePaletteList::Item)) {
    m_nGetItemSrc = 0;
    m_nGetItemNo = 0;
  }
}

void cEdChara::CheckRefs() {
  if (m_nInheritSrc == kInheritCommon || m_nInheritSrc == kInheritStage) {
    CheckInheritRef(PaletteSize(m_nInheritSrc, ePaletteList::Chara));
  }
  if (m_nGraphicKind == kGraphicKindOwnBmp && m_nGraphicNo >= DbSize(eDbList::BmpCharaExc)) m_nGraphicNo = 1;
  if (m_nGiant < 1) m_nGiant = 1;
  ClearBeyond(m_nAnimeSet, eDbList::AnimeSet);
  ClearBeyond(m_nStartEffect, eDbList::CharaEffect);
  ClearBeyond(m_nDeathEffect, eDbList::CharaEffect);
  ClearBeyond(m_nBodyEffect, eDbList::Effect);
  if (m_nControl == 0) {
    // A player is no block and has no clones.
    m_nBlock = 0;
    m_nCloneCount = 0;
  }
  for (cEdFlow& flow : m_vFlow) flow.CheckFlow();
  DropEmptyFlows(m_vFlow);
}

void cEdChara::CheckCmdRefs() {
  for (cEdFlow& flow : m_vFlow) {
    for (cEdCmd& cmd : flow.m_vCmd) cmd.CheckCmdRefs();
  }
}

void cEdItem::CheckRefs() {
  if (m_nInheritSrc == kInheritCommon || m_nInheritSrc == kInheritStage) {
    CheckInheritRef(PaletteSize(m_nInheritSrc, ePaletteList::Item));
  }
  if (m_nGiant < 1) m_nGiant = 1;
  ClearBeyond(m_nGetSound, eDbList::Sound);
  for (cEdCmd& cmd : m_vCmd) cmd.CheckCmd();
}

void cEdItem::CheckCmdRefs() {
  for (cEdCmd& cmd : m_vCmd) cmd.CheckCmdRefs();
}

void RefreshFromCommon(const cPaletteLists& stagePalette, const cPaletteLists& cells) {
  RefreshStageEntries(stagePalette.blocks);
  RefreshStageEntries(stagePalette.charas);
  RefreshStageEntries(stagePalette.items);
  // Cells from the stage palette come last: the stage entries may have
  // just changed.
  for (int source : {kInheritCommon, kInheritStage}) {
    RefreshCells(cells.blocks, source);
    RefreshCells(cells.charas, source);
    RefreshCells(cells.items, source);
  }
}

void RefreshBlockFromStage(std::vector<cEdBlock>& cells) { RefreshCells(&cells, kInheritStage); }
void RefreshCharaFromStage(std::vector<cEdChara>& cells) { RefreshCells(&cells, kInheritStage); }
void RefreshItemFromStage(std::vector<cEdItem>& cells) { RefreshCells(&cells, kInheritStage); }

}  // namespace velmora
