#include "stage/StageHooks.h"

#include "platform/SystemMemory.h"

namespace velmora {

cStageHooks& StageHooks() {
  static cStageHooks hooks;
  return hooks;
}

void CallHook(const std::function<void()>& hook) {
  if (hook) hook();
}

uint64_t FreeMemoryForStage() {
  const cStageHooks& hooks = StageHooks();
  return hooks.freeMemory ? hooks.freeMemory() : FreePhysicalMemory();
}

}  // namespace velmora
