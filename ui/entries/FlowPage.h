#pragma once
#include <memory>

#include "ui/entries/EntryPage.h"

namespace velmora {

// 行動, the fourth page of the character editor: the flows of the
// character, and beside them the fields of the selected flow with its
// conditions, key conditions and commands.
std::unique_ptr<cDialog> MakeFlowPage(cDialogManager& manager, cEntryWork<cEdChara>& work, cEntryEditorHost& host);

}  // namespace velmora
