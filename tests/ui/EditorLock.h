#pragma once
#include <QTest>

#include <memory>

#include "core/DoubleStart.h"
#include "platform/InstanceLock.h"

namespace velmora::testing {

// The editor's lock as another editor would hold it. Tests that start the
// editor run in several processes at once and take turns on it; holding it
// makes every start meet the double-start question, whatever runs beside.
inline std::unique_ptr<cInstanceLock> HoldEditorLock() {
  for (int attempt = 0; attempt < 1000; ++attempt) {
    auto lock = std::make_unique<cInstanceLock>(kEditorLockName);
    if (!lock->HeldElsewhere()) return lock;
    QTest::qWait(20);
  }
  return nullptr;
}

}  // namespace velmora::testing
