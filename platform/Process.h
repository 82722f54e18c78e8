#pragma once
#include <string>
#include <vector>

namespace velmora {

// Starts `argv[0]` (a host path; with `searchPath` looked up on PATH like a
// shell would) with the other entries as its arguments, in `workDir`, and
// returns without waiting. False, with errno kept, when it can't be
// started. Children that have ended since are collected on each call, so a
// run of test plays leaves no defunct processes behind. `pid`, when given,
// receives the started process's id.
bool StartProcess(const std::vector<std::string>& argv, const std::string& workDir, bool searchPath,
                  int* pid = nullptr);

// Collects started children that have ended, and empties the descriptor
// of ChildEndedFd; gives the ids of those collected.
std::vector<int> CollectEndedProcesses();

// Whether PATH holds an executable file of this name, as a shell would
// find it.
bool FoundOnPath(const std::string& name);

// A descriptor that turns readable when a child of this process ends, so
// an event loop can collect it at once instead of at the next start; -1
// when it can't be set up. Made on the first call, with a SIGCHLD handler
// that passes the signal on to a handler installed before it.
int ChildEndedFd();

}  // namespace velmora
