#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Log.h"
#include "objects/code/CodeErrors.h"
#include "objects/code/CodeEval.h"
#include "platform/TextCodec.h"
#include "support/ScriptedPrompt.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;

struct cValidation {
  bool passed;
  std::vector<std::string> messages;  // UTF-8, in the order shown
};

cValidation Validate(const std::string& utf8Code) {
  cScriptedPrompt prompt;
  cValidation result{ValidateCode(ToCp932(utf8Code)), {}};
  for (const auto& shown : prompt.Shown()) result.messages.push_back(shown.text);
  return result;
}

int32_t Eval(const std::string& code) {
  cScriptedPrompt prompt;
  ClearCodeError();
  const int32_t value = EvalCode(code);
  EXPECT_FALSE(CodeErrorRaised()) << code;
  return value;
}

TEST(CodeEvalTest, TheDialogsExamplesAndEmptyCodePass) {
  for (const char* code : {"", "   ", "hp = hp + 10", "sys.time = tg1.v3", "C5 = rand(0,5)", "C5 = rand(5,0)",
                           "Cabc = 1", "sys.hp", "my.time", "my.tg.hp = 1", "10 / 0", "1 2", "hp 5"}) {
    const cValidation validation = Validate(code);
    EXPECT_TRUE(validation.passed) << code;
    EXPECT_TRUE(validation.messages.empty()) << code;
  }
}

TEST(CodeEvalTest, ValuesFollowPrioritySubstitutionAndLimits) {
  const struct {
    const char* code;
    int32_t value;
  } cases[] = {
      // "*" "/" "%" before "+" "-" before "=", each left to right.
      {"1 + 2 * 3", 7}, {"10 - 3 - 2", 5}, {"8 - 2 + 1", 7}, {"C1 = 2 + 3 * 4", 14}, {"7 % 2", 0},
      // Values wrap at 32 bits; an overlong number saturates.
      {"2147483647 * 2", -2}, {"2147483647 + 1", INT32_MIN}, {"99999999999", INT32_MAX}, {"-99999999999", INT32_MIN},
      // A sign with no blank behind it belongs to the number: "hp -5" is two operands.
      {"2 * -3", -6}, {"1 - -5", 6}, {"+7", 7}, {"hp -5", -5},
      // The last operation made outranks the last token read.
      {"1 + 2 7", 3}, {"1 2", 2}, {"", 0},
      // Parentheses become text; a negative value, a signed number.
      {"(1 + 2) * 3", 9}, {"(1 + (2 * 3)) * 2", 14}, {"((2))", 2}, {"() + 0", 0}, {"5 * (0 - 3)", -15},
      // "=" clamps to the target's limits.
      {"C1 = 1000000", 999999}, {"S1 = 0 - 1000000", -999999}, {"hp = 2147483647", INT32_MAX}, {"score = -1", 0},
      // An empty argument is no argument, wherever it stands.
      {"rand(3,3)", 3}, {"rand(rand(4,4),(2 + 2))", 4}, {"rand(,1,1)", 1},
  };
  for (const auto& each : cases) EXPECT_EQ(each.value, Eval(each.code)) << each.code;
}

TEST(CodeEvalTest, RandTakesExactlyTwoArgumentsInEitherOrder) {
  for (int i = 0; i < 50; ++i) {
    const int32_t value = Eval("rand(5,0)");
    EXPECT_TRUE(value >= 0 && value <= 5) << value;
  }
  Eval("rand(-2147483648,2147483647)");
  for (const char* code : {"rand(1)", "rand()", "rand(1,)", "rand(1,2,3)"}) {
    const cValidation validation = Validate(code);
    EXPECT_FALSE(validation.passed) << code;
    EXPECT_EQ(std::vector<std::string>{"関数 rand の引数が不正です！"}, validation.messages) << code;
  }
}

TEST(CodeEvalTest, EachRefusalShowsItsMessage) {
  const struct {
    const char* code;
    const char* message;
  } cases[] = {
      {"(1 + 2", "\")\"が見つかりません！"},
      {"rand(1, (2)", "\")\"が見つかりません！"},
      {"hp=hp+10", "定数 \"hp=hp+10\" が認識できません！"},
      {"cabc = 1", "定数 \"cabc\" が認識できません！"},
      {"5 -(3)", "定数 \"-(3)\" が認識できません！"},
      {"xrand(1,2)", "定数 \"xrand(1,2)\" が認識できません！"},
      {"1.5", "オブジェクト \"1.\" が認識できません！"},
      {"tg5.hp", "オブジェクト \"tg5.\" が認識できません！"},
      {".hp", "オブジェクト \".\" が認識できません！"},
      {"hp = ", "演算子 \"=\" の使い方が不正です！"},
      {"= 5", "演算子 \"=\" の使い方が不正です！"},
      {"hp * ", "演算子 \"*\" の使い方が不正です！"},
      {"2 + 3 = C1", "代入先が不正です！"},
      {"C1 = C2 = 5", "代入先が不正です！"},
  };
  for (const auto& each : cases) {
    const cValidation validation = Validate(each.code);
    EXPECT_FALSE(validation.passed) << each.code;
    EXPECT_EQ(std::vector<std::string>{each.message}, validation.messages) << each.code;
  }
}

TEST(CodeEvalTest, AnInnerErrorGivesZeroAndTheOuterStageGoesOn) {
  // The blank makes a plain parenthesis; its "0,5" fails, and then "rand 0".
  const cValidation validation = Validate("rand (0,5)");
  EXPECT_FALSE(validation.passed);
  EXPECT_EQ((std::vector<std::string>{"定数 \"0,5\" が認識できません！", "定数 \"rand\" が認識できません！"}),
            validation.messages);
  EXPECT_EQ(2u, Validate("(x) + (y)").messages.size());
  // A later validation starts clean.
  EXPECT_TRUE(Validate("1").passed);
}

TEST(CodeEvalTest, UndefinedOperatorIsBoxedOnlyWithDebugMessagesOn) {
  cScriptedPrompt prompt;
  ClearCodeError();
  RaiseCodeError(eCodeError::UndefinedOperator);
  EXPECT_TRUE(CodeErrorRaised());
  EXPECT_TRUE(prompt.Shown().empty());
  SetDebugLog("", true);
  RaiseCodeError(eCodeError::UndefinedOperator);
  SetDebugLog("", false);
  EXPECT_EQ("演算子のエラー（未定義？）", prompt.LastText());
}

TEST(CodeEvalTest, DamagedTextEndsQuicklyInBoundedDepth) {
  const std::string fifty = std::string(50, '(') + "1" + std::string(50, ')');
  EXPECT_TRUE(Validate(fifty).passed);
  const std::string deep = std::string(100000, '(') + "1" + std::string(100000, ')');
  const cValidation tooDeep = Validate(deep);
  EXPECT_FALSE(tooDeep.passed);
  EXPECT_EQ(std::vector<std::string>{"括弧の入れ子が深すぎます！"}, tooDeep.messages);
  std::string calls;
  for (int i = 0; i < 20000; ++i) calls += "rand(";
  EXPECT_FALSE(Validate(calls + "1,1" + std::string(20000, ')')).passed);
  // Long but sound text is linear work.
  std::string wide;
  for (int i = 0; i < 25000; ++i) wide += "(1 + 2) ";
  EXPECT_TRUE(Validate(wide).passed);
  EXPECT_FALSE(Validate(std::string(1000000, '(')).passed);
}

}  // namespace
}  // namespace velmora
