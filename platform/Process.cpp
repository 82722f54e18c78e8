#include "platform/Process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string_view>

extern char** environ;

namespace velmora {
namespace {

std::vector<pid_t>& Started() {
  static std::vector<pid_t> pids;
  return pids;
}

// The self-pipe of SIGCHLD: the handler may only write, the loop reads.
int g_childPipe[2] = {-1, -1};
struct sigaction g_previousChildAction {};

void OnChildEnded(int signal, siginfo_t* info, void* context) {
  const int savedErrno = errno;
  const char byte = 0;
  // A full pipe already says what this byte would.
  [[maybe_unused]] const ssize_t written = ::write(g_childPipe[1], &byte, 1);
  errno = savedErrno;
  if (g_previousChildAction.sa_flags & SA_SIGINFO) {
    if (g_previousChildAction.sa_sigaction) g_previousChildAction.sa_sigaction(signal, info, context);
  } else if (g_previousChildAction.sa_handler != SIG_DFL && g_previousChildAction.sa_handler != SIG_IGN) {
    g_previousChildAction.sa_handler(signal);
  }
}

int InstallChildWatch() {
  if (::pipe2(g_childPipe, O_NONBLOCK | O_CLOEXEC) != 0) return -1;
  struct sigaction action {};
  action.sa_sigaction = OnChildEnded;
  action.sa_flags = SA_SIGINFO | SA_RESTART | SA_NOCLDSTOP;
  sigemptyset(&action.sa_mask);
  if (::sigaction(SIGCHLD, &action, &g_previousChildAction) != 0) {
    ::close(g_childPipe[0]);
    ::close(g_childPipe[1]);
    g_childPipe[0] = g_childPipe[1] = -1;
  }
  return g_childPipe[0];
}

void DrainChildPipe() {
  if (g_childPipe[0] < 0) return;
  char bytes[64];
  while (::read(g_childPipe[0], bytes, sizeof bytes) > 0) {
  }
}

}  // namespace

int ChildEndedFd() {
  static const int fd = InstallChildWatch();
  return fd;
}

std::vector<int> CollectEndedProcesses() {
  // Emptied first: a child that ends after this is signalled afresh.
  DrainChildPipe();
  std::vector<int> ended;
  std::erase_if(Started(), [&](pid_t pid) {
    if (::waitpid(pid, nullptr, WNOHANG) == 0) return false;
    ended.push_back(pid);
    return true;
  });
  return ended;
}

bool FoundOnPath(const std::string& name) {
  const char* path = std::getenv("PATH");
  std::string_view rest = path ? path : "";
  while (true) {
    const size_t colon = rest.find(':');
    // An empty entry is the current directory, as for a shell.
    const std::string folder(rest.substr(0, colon).empty() ? "." : rest.substr(0, colon));
    const std::string candidate = folder + "/" + name;
    struct stat st {};
    if (::stat(candidate.c_str(), &st) == 0 && S_ISREG(st.st_mode) && ::access(candidate.c_str(), X_OK) == 0) return true;
    if (colon == std::string_view::npos) return false;
    rest.remove_prefix(colon + 1);
  }
}

bool StartProcess(const std::vector<std::string>& argv, const std::string& workDir, bool searchPath, int* startedPid) {
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
  if (startedPid) *startedPid = pid;
  return true;
}

}  // namespace velmora
