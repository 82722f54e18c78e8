#pragma once
#include "platform/InstanceLock.h"

namespace velmora {

// The name every editor of the user locks at start (UTF-8).
inline constexpr const char* kEditorLockName = "エディター";

// When another editor already runs, asks whether to start a second one
// anyway. False when the author declines: the lock is released and the start
// ends. A second editor that goes on runs with no further guard.
bool ConfirmDoubleStart(cInstanceLock& lock);

}  // namespace velmora
