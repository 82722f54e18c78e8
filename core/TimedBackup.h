#pragma once
#include <cstdint>

namespace velmora {

// Whether the backup taken once per start is due. `nowMinutes` counts from
// the machine's start, so a value below the stored minute means the machine
// restarted since, and a backup is due.
bool IsBackupDue(int64_t nowMinutes, int32_t lastBackupMinute, int32_t intervalHours);

}  // namespace velmora
