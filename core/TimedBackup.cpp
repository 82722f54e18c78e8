#include "core/TimedBackup.h"

namespace velmora {

bool IsBackupDue(int64_t nowMinutes, int32_t lastBackupMinute, int32_t intervalHours) {
  const int64_t limit = static_cast<int64_t>(lastBackupMinute) + 60 * static_cast<int64_t>(intervalHours);
  return !(nowMinutes >= lastBackupMinute && nowMinutes < limit);
}

}  // namespace velmora
