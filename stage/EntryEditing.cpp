#include "stage/EntryEditing.h"

#include <algorithm>
#include <cstdio>

#include "core/CheckedAccess.h"
#include "objects/Flow.h"
#include "objects/Palette.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"

namespace velmora {
namespace {

// The edit state's pointer and the project's default entry of each kind.
cEdBlock*& EditPointer(cEdBlock*) { return StageEdit().m_pEditBlock; }
cEdChara*& EditPointer(cEdChara*) { return StageEdit().m_pEditChara; }
cEdItem*& EditPointer(cEdItem*) { return StageEdit().m_pEditItem; }
cEdBlock& DefaultEntry(cEdBlock*) { return ProjectOption().m_DefBlock; }
cEdChara& DefaultEntry(cEdChara*) { return ProjectOption().m_DefChara; }
cEdItem& DefaultEntry(cEdItem*) { return ProjectOption().m_DefItem; }
std::vector<cEdBlock>* ListOf(const cPaletteLists& lists, cEdBlock*) { return lists.blocks; }
std::vector<cEdChara>* ListOf(const cPaletteLists& lists, cEdChara*) { return lists.charas; }
std::vector<cEdItem>* ListOf(const cPaletteLists& lists, cEdItem*) { return lists.items; }

cPaletteLists ListsOfTarget(int target) {
  if (target == kEditStageEntry) return EditStage().Palette();
  if (target == kEditCommonEntry) return CommonPalette().Lists();
  return {};
}

bool IsPaletteTarget(int target) { return target == kEditStageEntry || target == kEditCommonEntry; }

template <class T>
int SizeOf(const std::vector<T>* list) {
  return list ? static_cast<int>(list->size()) : 0;
}

int ListSizeOf(const cEditPlace& place) {
  const cPaletteLists lists = ListsOfTarget(place.target);
  if (place.kind == kKindBlock) return SizeOf(lists.blocks);
  return place.kind == kKindChara ? SizeOf(lists.charas) : SizeOf(lists.items);
}

// The list element of a palette entry; entry 0 is the blank entry and is
// never edited.
template <class Entry>
Entry* PaletteEntry(const cEditPlace& place) {
  std::vector<Entry>* list = ListOf(ListsOfTarget(place.target), static_cast<Entry*>(nullptr));
  if (!list || place.index < 1 || place.index >= static_cast<int>(list->size())) return nullptr;
  return &(*list)[static_cast<size_t>(place.index)];
}

template <class T>
bool CutList(std::vector<T>& list, int limit) {
  if (static_cast<int>(list.size()) <= limit) return false;
  list.resize(static_cast<size_t>(limit));
  return true;
}

template <class Entry>
bool FitHead(Entry& entry) {
  entry.m_bbInherit.resize(static_cast<size_t>(InheritGroupCount(kEntryKindOf<Entry>)));
  return CutList(entry.m_vCond, kMaxEntryConds);
}

bool FitFlow(cEdFlow& flow) {
  bool cut = CutList(flow.m_vCond, kMaxFlowConds);
  cut = CutList(flow.m_vKeyCond, kMaxFlowKeyConds) || cut;
  return CutList(flow.m_vCmd, kMaxFlowCmds) || cut;
}

void SecondCheck(cEdBlock& block) { block.CheckItemRef(); }
void SecondCheck(cEdChara& chara) { chara.CheckCmdRefs(); }
void SecondCheck(cEdItem& item) { item.CheckCmdRefs(); }

template <class Entry>
bool StoreEntry(const cEditPlace& place, const Entry& entry) {
  Entry* at = EditedEntry<Entry>();
  if (!at) return false;
  cStageEdit& edit = StageEdit();
  switch (place.target) {
    case kEditCell:
      RecordStep(LayerBit(place.kind));
      NoteCellWrite(*at);
      *at = entry;
      edit.m_bStageChanged = 1;
      break;
    case kEditStageEntry:
    case kEditCommonEntry:
      *at = entry;
      RefreshAfterListChange(SideOfPlace(place));
      edit.m_bStageChanged = 1;
      if (place.target == kEditCommonEntry) edit.m_bCommonChanged = 1;
      break;
    default: *at = entry; break;
  }
  return true;
}

}  // namespace

ePalette PaletteOfPlace(const cEditPlace& place) {
  return place.target == kEditCommonEntry || place.target == kEditDefaultEntry ? ePalette::Common : ePalette::Stage;
}

cPaletteSide SideOfPlace(const cEditPlace& place) { return {place.target == kEditStageEntry ? 1 : 0, place.kind}; }

template <class Entry>
bool PointEditAt(const cEditPlace& place, Entry* cell) {
  Entry* record = nullptr;
  if (place.target == kEditCell) record = cell;
  else if (place.target == kEditDefaultEntry) record = &DefaultEntry(static_cast<Entry*>(nullptr));
  else if (IsPaletteTarget(place.target)) record = PaletteEntry<Entry>(place);
  if (!record) return false;
  EditPointer(record) = record;
  StageEdit().m_iEditTarget = place.target;
  return true;
}

template <class Entry>
Entry* EditedEntry() {
  return EditPointer(static_cast<Entry*>(nullptr));
}

int NeighbourIndex(const cEditPlace& place, int step) {
  if (!IsPaletteTarget(place.target)) return -1;
  const int index = place.index + step;
  return index >= 1 && index < ListSizeOf(place) ? index : -1;
}

std::string EntryNumberText(const cEditPlace& place) {
  if (!IsPaletteTarget(place.target)) return {};
  char text[32];
  std::snprintf(text, sizeof text, "No.%d", place.index);
  return text;
}

bool FitForEditing(cEdBlock& entry) { return FitHead(entry); }

bool FitForEditing(cEdChara& entry) {
  bool cut = FitHead(entry);
  cut = CutList(entry.m_vFlow, kMaxFlows) || cut;
  for (cEdFlow& flow : entry.m_vFlow) cut = FitFlow(flow) || cut;
  return cut;
}

bool FitForEditing(cEdItem& entry) {
  const bool cut = FitHead(entry);
  return CutList(entry.m_vCmd, kMaxItemCmds) || cut;
}

template <class Entry>
bool FitsItsEditor(const Entry& entry) {
  Entry fitted = entry;
  return !FitForEditing(fitted);
}

template <class Entry>
void LoadEntryWork(cEntryWork<Entry>& work, const Entry& entry, const cEditPlace& place) {
  work.entry = entry;
  work.place = place;
  FitForEditing(work.entry);
  work.inherit.fill(0);
  std::copy(work.entry.m_bbInherit.begin(), work.entry.m_bbInherit.end(), work.inherit.begin());
}

template <class Entry>
void SyncInheritFlags(cEntryWork<Entry>& work) {
  for (size_t group = 0; group < work.entry.m_bbInherit.size(); ++group) {
    work.entry.m_bbInherit[group] = work.inherit[group] ? 1 : 0;
  }
}

template <class Entry>
void InheritNow(cEntryWork<Entry>& work) {
  if (work.entry.m_nInheritSrc == kInheritNone) work.inherit.fill(0);
  SyncInheritFlags(work);
  work.entry.ApplyInherit();
}

template <class Entry>
Entry FinishedEntry(const cEntryWork<Entry>& work) {
  cEntryWork<Entry> finished = work;
  SyncInheritFlags(finished);
  finished.entry.CheckRefs();
  SecondCheck(finished.entry);
  return finished.entry;
}

bool StoreEditedEntry(const cEditPlace& place, const cEdBlock& entry) { return StoreEntry(place, entry); }
bool StoreEditedEntry(const cEditPlace& place, const cEdChara& entry) { return StoreEntry(place, entry); }
bool StoreEditedEntry(const cEditPlace& place, const cEdItem& entry) { return StoreEntry(place, entry); }

int OfferedInheritSources(int target) {
  if (target == kEditCell) return kInheritStage + 1;
  return target == kEditStageEntry ? kInheritCommon + 1 : kInheritNone + 1;
}

#define VELMORA_ENTRY_EDITING(Entry)                                        \
  template bool PointEditAt<Entry>(const cEditPlace&, Entry*);              \
  template Entry* EditedEntry<Entry>();                                     \
  template bool FitsItsEditor(const Entry&);                                \
  template void LoadEntryWork(cEntryWork<Entry>&, const Entry&, const cEditPlace&); \
  template void SyncInheritFlags(cEntryWork<Entry>&);                       \
  template void InheritNow(cEntryWork<Entry>&);                             \
  template Entry FinishedEntry(const cEntryWork<Entry>&);
VELMORA_ENTRY_EDITING(cEdBlock)
VELMORA_ENTRY_EDITING(cEdChara)
VELMORA_ENTRY_EDITING(cEdItem)
#undef VELMORA_ENTRY_EDITING

}  // namespace velmora
