#include <gtest/gtest.h>

#include <chrono>

#include "bench/FullStage.h"
#include "stage/Stage.h"
#include "stage/StageLoader.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// The thread that waits for the worker takes its messages in rounds with
// sleeps between them: a load costs it a handful of rounds, not a processor
// of its own.
TEST(StageLoader, TheWaitingThreadSleepsBetweenRoundsOfMessages) {
  testing::cTempProject project;
  {
    cStage heavy;
    bench::FillWithBehaviour(heavy, 128);
    ASSERT_TRUE(heavy.SaveFile("heavy.stg4_950"));
  }
  int rounds = 0;
  SetMessageDropper([&rounds] {
    ++rounds;
    return true;
  });
  cStage read;
  const auto start = std::chrono::steady_clock::now();
  ASSERT_EQ(eStageLoad::Loaded, StageLoader().Run("heavy.stg4_950", read));
  const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
  SetMessageDropper(nullptr);
  EXPECT_EQ(128, read.m_nWidth);
  EXPECT_GE(rounds, 1);
  EXPECT_LE(rounds, took.count() / 5 + 2) << "in " << took.count() << " ms";
}

}  // namespace
}  // namespace velmora
