#include "stage/PaletteOps.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

#include "core/CheckedAccess.h"
#include "core/PrjOption.h"
#include "objects/Inherit.h"
#include "objects/Palette.h"
#include "objects/PaletteTables.h"
#include "stage/Stage.h"
#include "stage/StageBrush.h"
#include "stage/StageEdit.h"

namespace velmora {
namespace {

// Everything of one kind of record that a palette command touches.
template <class T>
struct cKindParts {
  std::vector<T>& list;
  std::vector<T>& cells;
  std::vector<T>& brush;
  std::shared_ptr<T>& clip;
  const T& defaultEntry;
  eEntryKind kind;
};

template <class Fn>
void WithSide(cPaletteSide side, Fn&& fn) {
  const cPaletteLists lists = side.stagePlt ? EditStage().Palette() : CommonPalette().Lists();
  cStage& stage = EditStage();
  cStageEdit& edit = StageEdit();
  const PrjOption& option = ProjectOption();
  if (side.kind == kKindBlock) {
    fn(cKindParts<cEdBlock>{*lists.blocks, stage.m_vecBlockCell, edit.m_vecBrushBlock, edit.m_pClipBlock,
                            option.m_DefBlock, kKindBlock});
  } else if (side.kind == kKindChara) {
    fn(cKindParts<cEdChara>{*lists.charas, stage.m_vecCharaCell, edit.m_vecBrushChara, edit.m_pClipChara,
                            option.m_DefChara, kKindChara});
  } else if (side.kind == kKindItem) {
    fn(cKindParts<cEdItem>{*lists.items, stage.m_vecItemCell, edit.m_vecBrushItem, edit.m_pClipItem,
                           option.m_DefItem, kKindItem});
  }
}

template <class T>
int Count(const std::vector<T>& list) {
  return static_cast<int>(list.size());
}

// A real entry: inside the list and not the blank entry.
template <class T>
bool IsEditable(const std::vector<T>& list, int index) {
  return index >= 1 && index < Count(list);
}

template <class T>
void SetMomentInherit(T& entry, eInheritMoment moment, eEntryKind kind, int number) {
  const PrjOption& option = ProjectOption();
  SetInherit(entry, option.m_anDefSrc[moment][kind], number, option.m_vDefFlags[moment][kind]);
}

// A new entry of a stage palette inherits by the project's defaults from
// the common entry of its own number.
template <class T>
void InheritAsNewStageEntry(cPaletteSide side, T& entry, eEntryKind kind, int number) {
  if (side.stagePlt) SetMomentInherit(entry, kMomentStage, kind, number);
}

bool ClipIsIn(cPaletteSide side) {
  const cStageEdit& edit = StageEdit();
  return edit.m_bClip && edit.m_iClipSource == side.stagePlt;
}

bool SelectionIsIn(cPaletteSide side) { return StageEdit().m_iPltSource == side.stagePlt; }

void RefreshCellsFromStage(std::vector<cEdBlock>& cells) { RefreshBlockFromStage(cells); }
void RefreshCellsFromStage(std::vector<cEdChara>& cells) { RefreshCharaFromStage(cells); }
void RefreshCellsFromStage(std::vector<cEdItem>& cells) { RefreshItemFromStage(cells); }

// The cells (and, from the common palette, the stage entries) that follow
// a changed list copy their inherited groups again.
template <class T>
void RefreshCellsOf(const cKindParts<T>& parts, cPaletteSide side) {
  if (side.stagePlt) {
    RefreshCellsFromStage(parts.cells);
    return;
  }
  cPaletteLists stageEntries;
  cPaletteLists cells;
  if constexpr (std::is_same_v<T, cEdBlock>) {
    stageEntries.blocks = &EditStage().m_vecBlockPlt;
    cells.blocks = &parts.cells;
  } else if constexpr (std::is_same_v<T, cEdChara>) {
    stageEntries.charas = &EditStage().m_vecCharaPlt;
    cells.charas = &parts.cells;
  } else {
    stageEntries.items = &EditStage().m_vecItemPlt;
    cells.items = &parts.cells;
  }
  RefreshFromCommon(stageEntries, cells);
}

void MarkChanged(cPaletteSide side) {
  cStageEdit& edit = StageEdit();
  (side.stagePlt ? edit.m_bStageChanged : edit.m_bCommonChanged) = 1;
}

template <class T>
void ChecksFirstPass(std::vector<T>& list) {
  for (T& entry : list) entry.CheckRefs();
}

void SecondCheck(cEdBlock& block) { block.CheckItemRef(); }
void SecondCheck(cEdChara& chara) { chara.CheckCmdRefs(); }
void SecondCheck(cEdItem& item) { item.CheckCmdRefs(); }

template <class T>
void ChecksSecondPass(std::vector<T>& list) {
  for (T& entry : list) SecondCheck(entry);
}

// All first checks of the given lists in order, then all second checks.
void CheckPasses(std::initializer_list<cPaletteLists> all) {
  for (const cPaletteLists& lists : all) {
    ChecksFirstPass(*lists.blocks);
    ChecksFirstPass(*lists.charas);
    ChecksFirstPass(*lists.items);
  }
  for (const cPaletteLists& lists : all) {
    ChecksSecondPass(*lists.blocks);
    ChecksSecondPass(*lists.charas);
    ChecksSecondPass(*lists.items);
  }
}

// The clipboard's record over an entry, whether it was cut or copied.
bool PasteClip(cPaletteSide side, int index) {
  bool pasted = false;
  WithSide(side, [&](const auto& parts) {
    if (!StageEdit().m_bClip || !parts.clip || Count(parts.list) < 2) return;
    index = std::min(index, Count(parts.list) - 1);
    if (index < 1) return;
    auto& entry = VecAt(parts.list, index);
    entry = *parts.clip;
    if (!side.stagePlt || entry.m_nInheritSrc == kInheritStage) entry.m_nInheritSrc = kInheritNone;
    pasted = true;
  });
  return pasted;
}

bool HasClipFor(cPaletteSide side) {
  bool has = false;
  WithSide(side, [&](const auto& parts) { has = StageEdit().m_bClip && parts.clip; });
  return has;
}

}  // namespace

int PaletteCount(cPaletteSide side) {
  int count = 0;
  WithSide(side, [&](const auto& parts) { count = Count(parts.list); });
  return count;
}

void SelectEntry(cPaletteSide side, int index) {
  if (index < 0 || index >= PaletteCount(side)) return;
  cStageEdit& edit = StageEdit();
  edit.m_iPltSource = side.stagePlt;
  edit.m_iPltIndex = index;
  TakeBrush(side);
}

void TakeBrush(cPaletteSide side) {
  cStageEdit& edit = StageEdit();
  if (edit.m_iPltIndex == -1) return;
  WithSide(side, [&](const auto& parts) {
    if (parts.list.empty()) return;
    parts.brush.resize(1);
    edit.m_iBrushW = 1;
    edit.m_iBrushH = 1;
    if (edit.m_iPltIndex >= Count(parts.list)) {
      edit.m_iPltIndex = 0;
      parts.brush[0] = parts.list[0];
      return;
    }
    parts.brush[0] = VecAt(parts.list, edit.m_iPltIndex);
    const eInheritMoment moment = side.stagePlt ? kMomentStagePlaced : kMomentCommonPlaced;
    SetMomentInherit(parts.brush[0], moment, parts.kind, edit.m_iPltIndex);
  });
}

bool CopyEntry(cPaletteSide side, int index, bool cut) {
  bool copied = false;
  WithSide(side, [&](const auto& parts) {
    if (!IsEditable(parts.list, index)) return;
    using T = typename std::decay_t<decltype(parts.list)>::value_type;
    parts.clip = std::make_shared<T>(VecAt(parts.list, index));
    cStageEdit& edit = StageEdit();
    edit.m_bClip = 1;
    edit.m_iClipIndex = index;
    edit.m_iClipSource = side.stagePlt;
    edit.m_bClipCut = cut;
    copied = true;
  });
  return copied;
}

bool PasteEntry(cPaletteSide side, int index) {
  // A cut entry goes only where it is inserted, never over another one.
  if (StageEdit().m_bClipCut) return false;
  return PasteClip(side, index);
}

bool InsertEntry(cPaletteSide side, int index) {
  WithSide(side, [&](const auto& parts) {
    const int at = EntryInsertPosition(std::max(index, 1), Count(parts.list));
    parts.list.insert(parts.list.begin() + at, parts.defaultEntry);
    InheritAsNewStageEntry(side, VecAt(parts.list, at), parts.kind, at);
    cStageEdit& edit = StageEdit();
    if (ClipIsIn(side) && edit.m_iClipIndex >= at) ++edit.m_iClipIndex;
  });
  return true;
}

bool InsertCopied(cPaletteSide side, int index) {
  cStageEdit& edit = StageEdit();
  if (!HasClipFor(side)) return false;
  const int count = PaletteCount(side);
  const int at = EntryInsertPosition(std::max(index, 1), count);
  InsertEntry(side, at);
  if (!PasteClip(side, at)) return true;
  if (edit.m_bClipCut) {
    DeleteEntry({edit.m_iClipSource, side.kind}, edit.m_iClipIndex);
    edit.m_bClipCut = 0;
    edit.m_bClip = 0;
  }
  return true;
}

bool DeleteEntry(cPaletteSide side, int index) {
  bool deleted = false;
  WithSide(side, [&](const auto& parts) {
    if (!IsEditable(parts.list, index)) return;
    parts.list.erase(parts.list.begin() + index);
    deleted = true;
  });
  if (!deleted) return false;
  cStageEdit& edit = StageEdit();
  if (ClipIsIn(side) && edit.m_iClipIndex == index) {
    edit.m_bClip = 0;
    edit.m_bClipCut = 0;
  } else if (ClipIsIn(side) && edit.m_iClipIndex > index) {
    --edit.m_iClipIndex;
  }
  if (edit.m_iPltIndex >= 1 && SelectionIsIn(side) && edit.m_iPltIndex >= index) {
    // The same entry stays selected; the deleted one gives way to the blank.
    edit.m_iPltIndex = edit.m_iPltIndex == index ? 0 : edit.m_iPltIndex - 1;
    TakeBrush(side);
  }
  return true;
}

bool SetEntryCount(cPaletteSide side, int count) {
  if (count < 1 || count > kMaxPaletteEntries) return false;
  WithSide(side, [&](const auto& parts) {
    const int before = Count(parts.list);
    parts.list.resize(static_cast<size_t>(count) + 1, parts.defaultEntry);
    for (int i = before; i < Count(parts.list); ++i) InheritAsNewStageEntry(side, VecAt(parts.list, i), parts.kind, i);
  });
  MarkChanged(side);
  EmptyPaletteClipboard();
  return true;
}

bool MoveEntries(cPaletteSide side, const cMoveRequest& request) {
  bool moved = false;
  WithSide(side, [&](const auto& parts) {
    if (!MoveEntries(parts.list, request)) return;
    cStageEdit& edit = StageEdit();
    if (SelectionIsIn(side)) edit.m_iPltIndex = SelectionAfterMove(edit.m_iPltIndex, Count(parts.list));
    RefreshCellsOf(parts, side);
    moved = true;
  });
  if (!moved) return false;
  EmptyPaletteClipboard();
  MarkChanged(side);
  return true;
}

void RefreshAfterListChange(cPaletteSide side) {
  WithSide(side, [&](const auto& parts) { RefreshCellsOf(parts, side); });
  RefreshRefs();
  TakeBrush({StageEdit().m_iPltSource, side.kind});
}

void RefreshRefs() {
  cStage& stage = EditStage();
  cStagePaletteScope scope(stage);
  CheckPasses({stage.Palette(), stage.Cells()});
  CheckPasses({CommonPalette().Lists()});
}

}  // namespace velmora
