#pragma once
#include <memory>

#include "core/PrjOption.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// The pages of the project options, each a table over the sheet's working
// copy of the options.
std::unique_ptr<cDialog> MakeGeneralOptionPage(cDialogManager& manager, PrjOption& work);
std::unique_ptr<cDialog> MakeInheritDefaultPage(cDialogManager& manager, PrjOption& work);

}  // namespace velmora
