#pragma once
#include "project/whereused/Use.h"
#include "ui/entries/EditorStart.h"

namespace velmora {

// Where the editor of a use's entry opens: the flow and command or
// condition the use lies in, or the field that a field use names by its
// label.
cEditorStart EntryStartOfUse(const cUse& use);

}  // namespace velmora
