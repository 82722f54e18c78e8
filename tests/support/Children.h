#pragma once
#include <sys/types.h>

#include <vector>

namespace velmora::testing {

// The processes whose parent is this one, running or defunct, as the
// process table lists them.
std::vector<pid_t> ChildProcesses();

// Waits up to `timeoutMs` (more when signals break the wait off) for `fd`
// to turn readable.
bool WaitReadable(int fd, int timeoutMs);

}  // namespace velmora::testing
