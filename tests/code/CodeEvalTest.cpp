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

TEST(CodeEvalTest, OperatorsBindByPriorityAndLeftToRight) {
  EXPECT_EQ(7, Eval("1 + 2 * 3"));
  EXPECT_EQ(5, Eval("10 - 3 - 2"));
  EXPECT_EQ(7, Eval("8 - 2 + 1"));
  EXPECT_EQ(14, Eval("C1 = 2 + 3 * 4"));
  EXPECT_EQ(0, Eval("7 % 2 + 0"));
  // Values wrap at 32 bits; an overlong number saturates.
  EXPECT_EQ(-2, Eval("2147483647 * 2"));
  EXPECT_EQ(INT32_MIN, Eval("2147483647 + 1"));
  EXPECT_EQ(INT32_MAX, Eval("99999999999"));
  EXPECT_EQ(INT32_MIN, Eval("-99999999999"));
}

TEST(CodeEvalTest, SignsBelongToNumbersOnlyWithoutABlank) {
  EXPECT_EQ(-6, Eval("2 * -3"));
  EXPECT_EQ(6, Eval("1 - -5"));
  EXPECT_EQ(7, Eval("+7"));
  // "hp -5" is two operands and no operator: the last token read counts.
  EXPECT_EQ(-5, Eval("hp -5"));
}

TEST(CodeEvalTest, TheResultIsTheLastOperationOverTheLastTokenRead) {
  EXPECT_EQ(3, Eval("1 + 2 7"));
  EXPECT_EQ(2, Eval("1 2"));
  EXPECT_EQ(0, Eval(""));
}

TEST(CodeEvalTest, ParenthesesAreSubstitutedAsText) {
  EXPECT_EQ(9, Eval("(1 + 2) * 3"));
  EXPECT_EQ(14, Eval("(1 + (2 * 3)) * 2"));
  EXPECT_EQ(2, Eval("((2))"));
  EXPECT_EQ(0, Eval("() + 0"));
  // A negative value lands in the text as a signed number.
  EXPECT_EQ(-15, Eval("5 * (0 - 3)"));
  EXPECT_EQ(2, Eval("5 - (3)"));
}

TEST(CodeEvalTest, AssignmentClampsToTheTargetsLimits) {
  EXPECT_EQ(999999, Eval("C1 = 1000000"));
  EXPECT_EQ(-999999, Eval("S1 = 0 - 1000000"));
  EXPECT_EQ(2147483647, Eval("hp = 2147483647"));
  EXPECT_EQ(0, Eval("score = -1"));
  EXPECT_EQ(6, Eval("C1 = 5 + 1"));
}

TEST(CodeEvalTest, RandTakesTwoArgumentsInEitherOrder) {
  EXPECT_EQ(3, Eval("rand(3,3)"));
  EXPECT_EQ(4, Eval("rand(rand(4,4),(2 + 2))"));
  // An empty argument is no argument, wherever it stands.
  EXPECT_EQ(1, Eval("rand(,1,1)"));
  for (int i = 0; i < 50; ++i) {
    const int32_t value = Eval("rand(5,0)");
    EXPECT_GE(value, 0);
    EXPECT_LE(value, 5);
  }
  const int32_t wide = Eval("rand(-2147483648,2147483647)");
  EXPECT_GE(wide, INT32_MIN);
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
  const std::string deep = std::string(200000, '(') + "1" + std::string(200000, ')');
  const cValidation tooDeep = Validate(deep);
  EXPECT_FALSE(tooDeep.passed);
  EXPECT_EQ(std::vector<std::string>{"括弧の入れ子が深すぎます！"}, tooDeep.messages);
  std::string calls;
  for (int i = 0; i < 20000; ++i) calls += "rand(";
  EXPECT_FALSE(Validate(calls + "1,1" + std::string(20000, ')')).passed);
  // Long but sound text is linear work: a million characters.
  std::string wide;
  for (int i = 0; i < 125000; ++i) wide += "(1 + 2) ";
  EXPECT_TRUE(Validate(wide).passed);
  EXPECT_FALSE(Validate(std::string(1000000, '(')).passed);
  EXPECT_FALSE(Validate(std::string(1000000, ')')).passed);
}

}  // namespace
}  // namespace velmora
