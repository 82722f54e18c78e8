#include "platform/Process.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

extern char** environ;

namespace velmora {
namespace {

std::vector<pid_t>& Started() {
  static std::vector<pid_t> pids;
  return pids;
}

}  // namespace

void CollectEndedProcesses() {
  std::vector<pid_t>& pids = Started();
  std::erase_if(pids, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) != 0; });
}

bool StartProcess(const std::vector<std::string>& argv, const std::string& workDir, bool searchPath) {
  CollectEndedProcesses();
  if (argv.empty()) {
    errno = EINVAL;
    return false;
  }
  std::vector<char*> args;
  for (const std::string& arg : argv) args.push_back(const_cast<char*>(arg.c_str()));
  args.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  if (posix_spawn_file_actions_init(&actions) != 0) return false;
  int error = posix_spawn_file_actions_addchdir_np(&actions, workDir.c_str());
  pid_t pid = 0;
  if (error == 0) {
    error = searchPath ? posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ)
                       : posix_spawn(&pid, args[0], &actions, nullptr, args.data(), environ);
  }
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    errno = error;
    return false;
  }
  Started().push_back(pid);
  return true;
}

}  // namespace velmora
