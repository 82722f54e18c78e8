#include "platform/FileSync.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/HostPath.h"

namespace velmora {

bool SyncFile(const std::string& stored) {
  const int fd = ::open(HostPath(stored).c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return false;
  const bool synced = ::fsync(fd) == 0;
  return ::close(fd) == 0 && synced;
}

}  // namespace velmora
