#pragma once
#include <cstdint>

namespace velmora {

// Physical memory the system could hand out now, in bytes. The undo history
// sizes itself from this figure.
uint64_t FreePhysicalMemory();
uint64_t TotalPhysicalMemory();

}  // namespace velmora
