#pragma once
#include "objects/Cmd.h"
#include "objects/RefSizes.h"

class QWidget;

namespace velmora {

class cDialogManager;

// Edits one command of a flow or of an item (m_bItemCmd tells which
// numbering it follows). A new command chooses its kind in the selector,
// 205 for a character's flow or 216 for an item, which sets the kind and
// the values of a new command of that kind and opens the kind's dialog;
// an existing one opens in its kind's dialog at once. True on OK, with the
// command changed; false on Cancel, with an existing command as it was
// (the caller takes a new one out again). `entryPalette` is the palette of
// the entry the command belongs to: an entry of the common palette can
// summon from the common palette only.
bool EditFlowCommand(cEdCmd& cmd, bool isNew, cDialogManager& manager, QWidget* parent,
                     ePalette entryPalette = ePalette::Stage);

// The dialog of the command's own kind. A kind without a dialog, as a
// damaged file may hold, opens nothing and is told in the report log.
bool EditCommand(cEdCmd& cmd, cDialogManager& manager, QWidget* parent, ePalette entryPalette = ePalette::Stage);

}  // namespace velmora
