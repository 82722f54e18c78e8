#include "platform/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace velmora {
namespace {

bool IsDirectoryPath(const char* path) {
  struct stat info;
  return path && *path && ::stat(path, &info) == 0 && S_ISDIR(info.st_mode);
}

// The runtime folder belongs to the user alone; /tmp is shared, so the name
// there carries the user id.
std::string LockFilePath(const std::string& utf8Name) {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (IsDirectoryPath(runtime)) return std::string(runtime) + "/velmora-" + utf8Name + ".lock";
  return "/tmp/velmora-" + std::to_string(::getuid()) + "-" + utf8Name + ".lock";
}

}  // namespace

cInstanceLock::cInstanceLock(const std::string& utf8Name) : m_strPath(LockFilePath(utf8Name)) {
  // A link planted under the shared /tmp name is not followed.
  m_fd = ::open(m_strPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (m_fd < 0) return;
  int result;
  do {
    result = ::flock(m_fd, LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result == 0) return;
  m_bHeldElsewhere = errno == EWOULDBLOCK;
  ::close(m_fd);
  m_fd = -1;
}

cInstanceLock::~cInstanceLock() { Release(); }

void cInstanceLock::Release() {
  if (m_fd < 0) return;
  // The file stays: removing it could split a later pair of starts onto
  // two different files.
  ::flock(m_fd, LOCK_UN);
  ::close(m_fd);
  m_fd = -1;
}

}  // namespace velmora
