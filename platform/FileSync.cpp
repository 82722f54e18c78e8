#include "platform/FileSync.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/HostPath.h"

namespace velmora {
namespace {

bool SyncHost(const std::string& host) {
  const int fd = ::open(host.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return false;
  const bool synced = ::fsync(fd) == 0;
  return ::close(fd) == 0 && synced;
}

}  // namespace

bool SyncFile(const std::string& stored) { return SyncHost(HostPath(stored)); }

bool SyncFolderOf(const std::string& stored) {
  const std::string host = HostPath(stored);
  const size_t cut = host.find_last_of('/');
  if (cut == std::string::npos) return SyncHost(".");
  return SyncHost(cut == 0 ? "/" : host.substr(0, cut));
}

}  // namespace velmora
