#include <gtest/gtest.h>

#include "graphics/AnimeRunner.h"

namespace velmora {
namespace {

std::vector<int32_t> Ticks(cAnimeRunner& runner, int count) {
  std::vector<int32_t> values;
  for (int i = 0; i < count; ++i) values.push_back(runner.Tick());
  return values;
}

TEST(AnimeRunnerTest, PreviewOfFramesLoopsThroughEachFrameForItsTime) {
  std::vector<cEdAnimeFrame> frames(2);
  frames[0].m_iCell = 3;
  frames[0].m_iTime = 1;  // six ticks
  frames[1].m_iCell = 7;
  frames[1].m_iTime = 2;  // twelve ticks
  cAnimeRunner runner;
  runner.Assign({PreviewPattern(frames)});
  EXPECT_EQ(runner.Peek(), 3);
  std::vector<int32_t> expected(5, 3);
  expected.insert(expected.end(), 12, 7);
  expected.push_back(3);  // the closing mark starts again
  EXPECT_EQ(Ticks(runner, 18), expected);
  EXPECT_EQ(PreviewCell(10, runner.Peek()), 13);
}

TEST(AnimeRunnerTest, MarksStopRestartAndJump) {
  cAnimeRunner runner;
  runner.Assign({
      {{1, 1, 0}, {2, 1, 0}, {kAnimeStop, 0, 0}},
      {{5, 1, 0}, {kAnimeJump, 0, 0}},
  });
  EXPECT_EQ(Ticks(runner, 4), (std::vector<int32_t>{2, 2, 2, 2}));  // stays on its last picture
  ASSERT_EQ(runner.Select(1, false), 1);
  EXPECT_EQ(runner.Peek(), 5);
  EXPECT_EQ(runner.Tick(), 1);  // jumped to pattern 0 from its start
  EXPECT_EQ(runner.CurrentPattern(), 0);

  // A jump to a pattern that doesn't exist, or a pattern without an end,
  // starts its own pattern again instead of leaving the steps.
  runner.Assign({{{4, 1, 0}, {kAnimeJump, 9, 0}}, {{6, 1, 0}}});
  EXPECT_EQ(Ticks(runner, 2), (std::vector<int32_t>{4, 4}));
  runner.Select(1, true);
  EXPECT_EQ(Ticks(runner, 2), (std::vector<int32_t>{6, 6}));
}

TEST(AnimeRunnerTest, LockedStepRefusesAnUnforcedSelect) {
  cAnimeRunner runner;
  EXPECT_EQ(runner.Tick(), 0);
  EXPECT_EQ(runner.Select(0, true), 0);  // no patterns at all
  runner.Assign({{{1, 2, 1}, {kAnimeRestart, 0, 0}}, {{8, 1, 0}}});
  runner.Tick();
  EXPECT_EQ(runner.Select(1, false), 0);
  EXPECT_EQ(runner.CurrentPattern(), 0);
  EXPECT_EQ(runner.Select(1, true), 1);
  EXPECT_EQ(runner.Peek(), 8);
  EXPECT_EQ(runner.Select(-1, true), 0);
}

}  // namespace
}  // namespace velmora
