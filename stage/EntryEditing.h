#pragma once
#include <array>
#include <cstdint>
#include <string>

#include <type_traits>

#include "core/PrjOption.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"
#include "stage/PaletteOps.h"

namespace velmora {

// Where an open entry editor writes back to, as StageEdit().m_iEditTarget
// holds it.
enum eEditTarget : int { kEditCell = 0, kEditStageEntry = 1, kEditCommonEntry = 2, kEditDefaultEntry = 3 };

// The entry an editor works on.
struct cEditPlace {
  int target = kEditCell;
  int kind = kKindBlock;
  int index = -1;  // the entry's number in its palette; -1 for a cell or a default entry
};

template <class Entry>
inline constexpr eEntryKind kEntryKindOf = std::is_same_v<Entry, cEdBlock>  ? kKindBlock
                                           : std::is_same_v<Entry, cEdChara> ? kKindChara
                                                                              : kKindItem;

// The palette an entry of `place` lies in, for the editors of its commands:
// a common or a default entry knows no stage palette.
ePalette PaletteOfPlace(const cEditPlace& place);
cPaletteSide SideOfPlace(const cEditPlace& place);

// Points the edit state at the record of `place`: the list element of a
// palette entry, the project's default entry, or `cell` for a placed
// object. False, with the state left alone, when the place holds no entry
// (entry 0, an index beyond its list, no cell).
template <class Entry>
bool PointEditAt(const cEditPlace& place, Entry* cell = nullptr);
// The record the edit state points at; null when none.
template <class Entry>
Entry* EditedEntry();

// The entry `step` places along the same palette, keeping to real entries;
// -1 when there is none, and always for a cell or a default entry.
int NeighbourIndex(const cEditPlace& place, int step);
// "No.%d" with the entry's number; "" for a cell or a default entry.
std::string EntryNumberText(const cEditPlace& place);

// The copy an editor works on, with the boxes "継承→" as the controls see
// them: one byte per group, at addresses that don't move while the copy
// takes other entries.
template <class Entry>
struct cEntryWork {
  Entry entry;
  std::array<uint8_t, kCharaInheritGroups> inherit{};
  cEditPlace place;
};

// Brings an entry into the shape its editor shows: one inherit flag per
// group and no list longer than its editor takes, as a damaged file may
// have left them. True when something had to be cut.
bool FitForEditing(cEdBlock& entry);
bool FitForEditing(cEdChara& entry);
bool FitForEditing(cEdItem& entry);

// Whether an entry fits its editor as it stands. A list longer than the
// editor takes, as only a damaged or foreign file holds, would lose its
// tail on OK, so such an entry is not opened at all.
template <class Entry>
bool FitsItsEditor(const Entry& entry);

template <class Entry>
void LoadEntryWork(cEntryWork<Entry>& work, const Entry& entry, const cEditPlace& place);
// The boxes into the copy's flags.
template <class Entry>
void SyncInheritFlags(cEntryWork<Entry>& work);
// The copy takes the groups its boxes name from its source entry, as a set
// box or a new source asks; without a source every box is cleared.
template <class Entry>
void InheritNow(cEntryWork<Entry>& work);
// The copy as the entry is to be stored: its flags from the boxes and the
// reference checks that loading would run.
template <class Entry>
Entry FinishedEntry(const cEntryWork<Entry>& work);

// Writes an edited entry back where the edit state points, by the target:
// a cell (one undo step), a stage palette entry (the cells that follow it
// copy again), a common palette entry (the stage entries and cells that
// follow it copy again), or the project's default entry. The stage and
// palette are then marked as changed. False when the state points at none.
bool StoreEditedEntry(const cEditPlace& place, const cEdBlock& entry);
bool StoreEditedEntry(const cEditPlace& place, const cEdChara& entry);
bool StoreEditedEntry(const cEditPlace& place, const cEdItem& entry);

// The rows of 継承パレット that an entry of `target` may choose, from row 0
// of InheritSrcTable on: a cell inherits from either palette, a stage entry
// from the common palette only, and a common or default entry from none.
int OfferedInheritSources(int target);

}  // namespace velmora
