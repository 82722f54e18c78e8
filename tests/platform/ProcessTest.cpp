#include <gtest/gtest.h>
#include <signal.h>

#include "platform/Process.h"
#include "support/Children.h"

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
    ASSERT_TRUE(StartProcess({"true"}, ".", true));
    ASSERT_TRUE(WaitReadable(fd, 10000)) << "round " << round;
    CollectEndedProcesses();
    EXPECT_TRUE(ChildProcesses().empty()) << "round " << round;
    EXPECT_FALSE(WaitReadable(fd, 0)) << "the collection empties the descriptor";
  }
  EXPECT_EQ(3, g_earlierHandlerCalls);

  EXPECT_FALSE(StartProcess({"velmora-no-such-program"}, ".", true));
  EXPECT_FALSE(StartProcess({}, ".", false));
  EXPECT_TRUE(ChildProcesses().empty());
}

}  // namespace
}  // namespace velmora
