#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <cstdlib>

#include "platform/Process.h"
#include "support/Children.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::ChildProcesses;
using testing::WaitReadable;

int g_earlierHandlerCalls = 0;
void EarlierHandler(int) { ++g_earlierHandlerCalls; }

// A child that ends is announced on the descriptor and collected at once,
// and a SIGCHLD handler that was there before still hears of it.
TEST(Process, AnEndedChildIsAnnouncedAndCollectedLeavingNoDefunctProcess) {
  struct sigaction earlier {};
  earlier.sa_handler = EarlierHandler;
  sigemptyset(&earlier.sa_mask);
  struct sigaction before {};
  ASSERT_EQ(0, ::sigaction(SIGCHLD, &earlier, &before));
  const int fd = ChildEndedFd();
  ASSERT_GE(fd, 0);
  EXPECT_EQ(fd, ChildEndedFd()) << "made once";

  for (int round = 0; round < 3; ++round) {
    int pid = -1;
    ASSERT_TRUE(StartProcess({"true"}, ".", true, &pid));
    ASSERT_TRUE(WaitReadable(fd, 10000)) << "round " << round;
    EXPECT_EQ(std::vector<int>{pid}, CollectEndedProcesses()) << "round " << round;
    EXPECT_TRUE(ChildProcesses().empty()) << "round " << round;
    EXPECT_FALSE(WaitReadable(fd, 0)) << "the collection empties the descriptor";
  }
  EXPECT_EQ(3, g_earlierHandlerCalls);

  EXPECT_FALSE(StartProcess({"velmora-no-such-program"}, ".", true));
  EXPECT_FALSE(StartProcess({}, ".", false));
  EXPECT_TRUE(ChildProcesses().empty());
}

TEST(Process, OnlyExecutableFilesOnThePathAreFound) {
  testing::cTempProject folder;
  testing::WriteText("plain", "");
  testing::WriteText("program", "");
  ::chmod("program", 0755);
  testing::MakeDirs("folder");
  const std::string path = std::getenv("PATH");
  ::setenv("PATH", ("/nonexistent::" + folder.Path()).c_str(), 1);
  EXPECT_TRUE(FoundOnPath("program"));
  EXPECT_FALSE(FoundOnPath("plain"));
  EXPECT_FALSE(FoundOnPath("folder"));
  EXPECT_FALSE(FoundOnPath("velmora-no-such-program"));
  ::setenv("PATH", path.c_str(), 1);
}

}  // namespace
}  // namespace velmora
