#pragma once
#include "core/ListMove.h"

namespace velmora {

// One of the six palettes: the common or the stage palette of a layer.
struct cPaletteSide {
  int stagePlt = 0;  // 0 common palette, 1 stage palette
  int kind = 0;      // 0 blocks, 1 characters, 2 items
};

// Where the popup's insert commands put an entry to append it.
inline constexpr int kAppendIndex = 9999;
inline constexpr int kMaxPaletteEntries = 9999;  // besides the blank entry 0

int PaletteCount(cPaletteSide side);

// Picking an entry makes it the brush; entry 0 is the blank entry that
// erases.
void SelectEntry(cPaletteSide side, int index);
// The brush from the selection: a selection beyond a shortened list falls
// back to entry 0.
void TakeBrush(cPaletteSide side);

// The palette clipboard. Entry 0 is never copied, replaced or deleted:
// these give false for it and for an index outside the list.
bool CopyEntry(cPaletteSide side, int index, bool cut);
bool PasteEntry(cPaletteSide side, int index);
// A default entry before `index`, or at the end from there on.
bool InsertEntry(cPaletteSide side, int index);
// The clipboard's entry inserted; a cut entry leaves its own palette.
bool InsertCopied(cPaletteSide side, int index);
bool DeleteEntry(cPaletteSide side, int index);

// The list gets `count` entries besides entry 0 (1 to 9999).
bool SetEntryCount(cPaletteSide side, int count);

// The move dialog's operation on the list: false when it changed nothing.
// The selection stays inside the list, the cells that follow the list take
// their inheritance again, the clipboard is emptied and the palette marked
// changed.
bool MoveEntries(cPaletteSide side, const cMoveRequest& request);

// What every list command is followed by: the cells and stage entries
// that follow the changed list copy again, every reference is checked, and
// the brush is taken anew.
void RefreshAfterListChange(cPaletteSide side);
// Reference checks of the stage palette, the cells and the common palette.
void RefreshRefs();

}  // namespace velmora
