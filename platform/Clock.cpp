#include "platform/Clock.h"

#include <chrono>

namespace velmora {

uint32_t NowMs() {
  using namespace std::chrono;
  return static_cast<uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

}  // namespace velmora
