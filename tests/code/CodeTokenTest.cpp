#include <gtest/gtest.h>

#include <vector>

#include "objects/code/CodeToken.h"
#include "support/ScriptedPrompt.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;

std::vector<cCodeToken> Split(const char* code, int32_t& cell) {
  cScriptedPrompt prompt;
  std::vector<cCodeToken> tokens;
  EXPECT_TRUE(SplitCodeTokens(code, cell, tokens)) << code;
  return tokens;
}

TEST(CodeTokenTest, WordsBecomeTokensOfTheirKindWithLimitsAndObject) {
  int32_t cell = 0;
  const std::vector<cCodeToken> tokens = Split("  tg.hp   =  C7 + sys.score - -5 Sfoo % getsc", cell);
  ASSERT_EQ(10u, tokens.size());
  const struct {
    eCodeToken kind;
    int32_t index;
    int32_t object;
    bool hasCell;
  } expected[] = {
      {eCodeToken::CharaStatus, 8, 1, true}, {eCodeToken::Operator, 0, 0, false},
      {eCodeToken::Variable, 0, 0, true},    {eCodeToken::Operator, 1, 0, false},
      {eCodeToken::SystemStatus, 3, 7, true}, {eCodeToken::Operator, 2, 0, false},
      {eCodeToken::Number, 0, 0, false},     {eCodeToken::Variable, 0, 0, true},
      {eCodeToken::Operator, 5, 0, false},   {eCodeToken::CharaStatus, 27, 0, true},
  };
  for (size_t i = 0; i < tokens.size(); ++i) {
    EXPECT_EQ(expected[i].kind, tokens[i].kind) << i;
    EXPECT_EQ(expected[i].index, tokens[i].index) << i;
    EXPECT_EQ(expected[i].object, tokens[i].object) << i;
    EXPECT_EQ(expected[i].hasCell, tokens[i].target == &cell) << i;
    EXPECT_EQ(4, tokens[i].targetWidth);
  }
  EXPECT_EQ(-5, tokens[6].value);
  EXPECT_EQ(0, tokens[0].minValue);
  EXPECT_EQ(2147483647, tokens[0].maxValue);
  EXPECT_EQ(-999999, tokens[2].minValue);
  EXPECT_EQ(999999, tokens[2].maxValue);
}

TEST(CodeTokenTest, AStoreWritesOnlyTheCellsWidth) {
  int32_t cell = 0x11111111;
  cCodeToken token;
  token.target = &cell;
  token.targetWidth = 2;
  StoreInCell(token, 0x12345678);
  EXPECT_EQ(0x11115678, cell);
  token.targetWidth = 1;
  StoreInCell(token, -1);
  EXPECT_EQ(0x111156FF, cell);
  token.targetWidth = 4;
  StoreInCell(token, -1);
  EXPECT_EQ(-1, cell);
}

// The search for uses reads variables as the tokens do, through
// parentheses and arguments, with no box for what the language refuses.
TEST(CodeTokenTest, VariablesAreFoundInEveryPlaceOfALine) {
  cScriptedPrompt prompt;
  std::vector<std::pair<int, int>> found;
  ForEachCodeVariable("C12 = rand(C012,S3)+(tg1.S40 * 2) Cabc C S1234567 hp=C9 x",
                      [&](int scope, int number) { found.emplace_back(scope, number); });
  const std::vector<std::pair<int, int>> expected = {{0, 12}, {0, 12}, {1, 3}, {1, 40}};
  EXPECT_EQ(expected, found);
  EXPECT_TRUE(prompt.Shown().empty());
}

}  // namespace
}  // namespace velmora
