#include "support/Children.h"

#include <poll.h>
#include <unistd.h>

#include <filesystem>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>

namespace velmora::testing {

std::vector<pid_t> ChildProcesses() {
  std::vector<pid_t> children;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
    const std::string name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    std::ifstream stat(entry.path() / "stat");
    std::string line;
    if (!std::getline(stat, line)) continue;
    // pid (command) state ppid ...: the command may hold blanks and brackets.
    const size_t close = line.rfind(')');
    if (close == std::string::npos) continue;
    char state = 0;
    long parent = 0;
    if (std::sscanf(line.c_str() + close + 1, " %c %ld", &state, &parent) == 2 && parent == ::getpid()) {
      children.push_back(static_cast<pid_t>(std::stol(name)));
    }
  }
  return children;
}

bool WaitReadable(int fd, int timeoutMs) {
  pollfd watch{fd, POLLIN, 0};
  int ready;
  // An ending child's signal breaks the wait off; it starts again.
  do {
    ready = ::poll(&watch, 1, timeoutMs);
  } while (ready < 0 && errno == EINTR);
  return ready == 1;
}

}  // namespace velmora::testing
