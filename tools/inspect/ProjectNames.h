#pragma once
#include "objects/RefSizes.h"

namespace velmora::inspect {

// Lines name variables and common palette entries as the project has them,
// when the inspector runs inside one. With `shown` the common palette, the
// caller installs the palette it reads itself.
void LoadProjectNames(ePalette shown);

}  // namespace velmora::inspect
