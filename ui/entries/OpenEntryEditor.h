#pragma once
#include <functional>

#include "stage/EntryEditing.h"
#include "ui/entries/EditorStart.h"

class QWidget;

namespace velmora {

class cDialogManager;
class cEntryEditorBase;

// The entry editor that is open, or null. Every other window is out of
// the author's reach while it is.
cEntryEditorBase* OpenEntryEditor();

// What runs when an editor that stays open beside the windows closed,
// with 1 after OK.
using cEditorClosed = std::function<void(int result)>;

// Opens the editor of the entry at `place` (a cell is `cell`). Without
// `closed` the editor is modal and this returns when it closed; with it
// the editor stays open beside the windows, which are out of reach until
// it closes and `closed` runs. False, with a message, when the place holds
// no entry; entry 0 of a palette opens nothing. The editor opens at
// `start`.
template <class Entry>
bool EditEntryAt(cDialogManager& manager, QWidget* owner, const cEditPlace& place, Entry* cell, cEditorClosed closed,
                 const cEditorStart& start = {});

// 編集 of a palette window: the editor of entry `index` of the palette,
// beside the windows.
bool EditPaletteEntry(cDialogManager& manager, QWidget* owner, cPaletteSide side, int index, cEditorClosed closed,
                      const cEditorStart& start = {});

// The editor of the project's default entry of a layer, as the project
// options open it: modal, and nothing but that entry changes on OK.
bool EditDefaultEntry(cDialogManager& manager, QWidget* owner, int kind);

}  // namespace velmora
