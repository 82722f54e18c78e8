#pragma once
#include <cstdint>

namespace velmora {

class cEdSystem;

// Brings a system record read from a file of `fileVersion` (below the
// current one) up to date: fields the file lacked take the values that
// keep the old behaviour, and the parts that grew since get their new
// entries in place.
void RepairOldSystemFile(cEdSystem& system, uint32_t fileVersion);

}  // namespace velmora
