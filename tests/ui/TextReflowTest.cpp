#include "ui/controls/TextReflow.h"

#include <gtest/gtest.h>

#include "core/SystemText.h"

namespace velmora {
namespace {

cTextLimits Limits(int width, int lines, bool countChars = false, int bytes = 4096) {
  cTextLimits limits;
  limits.width = width;
  limits.lineLimit = lines;
  limits.countChars = countChars;
  limits.byteLimit = bytes;
  return limits;
}

TEST(TextReflow, LongLineWrapsAndCaretFollowsItsCharacter) {
  const std::string text(30, 'a');
  int caret = 25;
  const std::string flowed = ReflowText(text, Limits(20, 4), caret);
  EXPECT_EQ(flowed, std::string(20, 'a') + "\r\n" + std::string(10, 'a'));
  EXPECT_EQ(caret, 27);
  int atBreak = 20;
  ReflowText(text, Limits(20, 4), atBreak);
  EXPECT_EQ(atBreak, 20);  // still behind the 20th character
}

TEST(TextReflow, RestFlowsOnAndExtraLinesAreCut) {
  int caret = 0;
  EXPECT_EQ(ReflowText("abcdefgh\r\nxy", Limits(3, 2), caret), "abc\r\ndef");
  EXPECT_EQ(ReflowText("ab\r\ncd\r\nef", Limits(0, 2), caret), "ab\r\ncd");
}

TEST(TextReflow, CharacterCountingTreatsTwoBytesAsOne) {
  const std::string kana = SysText("あいうえお");
  int caret = 0;
  EXPECT_EQ(ReflowText(kana, Limits(5, 2, true), caret), kana);
  const std::string flowed = ReflowText(kana, Limits(4, 2, false), caret);
  EXPECT_EQ(flowed, std::string(SysText("あい")) + "\r\n" + SysText("うえ"));  // never splits a character
  EXPECT_EQ(LineWidth(kana, true), 5);
  EXPECT_EQ(LineWidth(kana, false), 10);
}

TEST(TextReflow, ByteLimitCutsAtACharacterBoundary) {
  int caret = 7;
  const std::string text = std::string("ab") + SysText("あい");
  EXPECT_EQ(ReflowText(text, Limits(0, 1, false, 5), caret), std::string("ab") + SysText("あ"));
  EXPECT_EQ(caret, 4);
}

TEST(TextReflow, BackspaceJoinThatPassesTheWidth) {
  const cTextLimits limits = Limits(5, 3);
  EXPECT_TRUE(JoinPassesWidth("abcd\r\nef", "abcdef", limits));
  EXPECT_FALSE(JoinPassesWidth("ab\r\ncd", "abcd", limits));
  EXPECT_FALSE(JoinPassesWidth("abcdef", "abcde", limits));  // not a join
}

}  // namespace
}  // namespace velmora
