#pragma once
#include <cstdint>

namespace velmora {

// Milliseconds from an arbitrary start, monotonic; wraps like the 32-bit
// tick count the timing rules were written against.
uint32_t NowMs();

}  // namespace velmora
