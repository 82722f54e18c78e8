#include "ui/controls/NumericEntry.h"

#include <gtest/gtest.h>

#include "core/SystemText.h"

namespace velmora {
namespace {

std::string Shown(const cNumericEntry& entry, double value, bool force = false) {
  return entry.Display(value, force).value_or("<kept>");
}

TEST(NumericEntry, MinusAloneShowsMinusAndReadsZero) {
  cNumericEntry entry(eValueType::Short, -100, 100, 1);
  const double value = entry.Parse("-");
  EXPECT_EQ(value, 0);
  EXPECT_EQ(Shown(entry, value), "-");
}

TEST(NumericEntry, MinusZeroStaysUntilTheNextDigit) {
  cNumericEntry entry(eValueType::Int, -100, 100, 1);
  double value = entry.Parse("-0");
  EXPECT_EQ(Shown(entry, value), "-0");
  value = entry.Parse("-05");
  EXPECT_EQ(value, -5);
  EXPECT_EQ(Shown(entry, value), "-5");
}

TEST(NumericEntry, TypeLimitsThenControlLimits) {
  cNumericEntry entry(eValueType::Short, 0, 1000, 1);
  const double value = entry.Parse("99999");
  EXPECT_EQ(value, 32767);
  EXPECT_EQ(Shown(entry, value), "1000");  // the control's own maximum applies after the type's
  cNumericEntry uchar(eValueType::UChar, 0, 255, 1);
  EXPECT_EQ(uchar.Parse("-7"), 0);
}

TEST(NumericEntry, EmptyBoxFallsBackToMinimumOrZero) {
  cNumericEntry positive(eValueType::Int, 5, 10, 1);
  EXPECT_EQ(positive.Parse(""), 5);
  EXPECT_TRUE(positive.IsEmpty());
  EXPECT_FALSE(positive.Display(5, true).has_value());  // an empty box stays empty while typing
  cNumericEntry negative(eValueType::Int, -3, 10, 1);
  EXPECT_EQ(negative.Parse(""), 0);
}

TEST(NumericEntry, CleanKeepsDigitsLeadingMinusAndPoint) {
  EXPECT_EQ(cNumericEntry::Clean("1a2-3.4"), "123.4");
  EXPECT_EQ(cNumericEntry::Clean("-12"), "-12");
  EXPECT_EQ(cNumericEntry::Clean(std::string(SysText("１")) + "7"), "7");
  cNumericEntry entry(eValueType::Int, 0, 100, 1);
  EXPECT_EQ(entry.Parse("4.9"), 4);  // the conversion stops at the point
}

TEST(NumericEntry, AcceptedCharacters) {
  for (unsigned code : {unsigned('0'), unsigned('9'), unsigned('-'), unsigned('.'), 8u, 39u}) {
    EXPECT_TRUE(cNumericEntry::IsAcceptedChar(code)) << code;
  }
  for (unsigned code : {unsigned('a'), unsigned('('), unsigned('+'), 0u, 0x3042u}) {
    EXPECT_FALSE(cNumericEntry::IsAcceptedChar(code)) << code;
  }
}

TEST(NumericEntry, FullWidthDigitsBecomeKeys) {
  const std::string typed = std::string(SysText("１２")) + SysText("あ") + SysText("－．") + "x";
  EXPECT_EQ(cNumericEntry::FullWidthToKeys(typed), "12-.");
}

TEST(NumericEntry, DecimalsFollowTheStep) {
  EXPECT_EQ(cNumericEntry::DecimalsFromStep(0.25), 2);
  EXPECT_EQ(cNumericEntry::DecimalsFromStep(1), 0);
  EXPECT_EQ(cNumericEntry::DecimalsFromStep(0.1), 1);
  cNumericEntry entry(eValueType::Double, 0, 10, 0.25);
  const double value = entry.Parse("1.234");
  EXPECT_DOUBLE_EQ(value, 1.23);
  EXPECT_EQ(Shown(entry, value), "1.234");  // the typed text stays while typing
  EXPECT_EQ(Shown(entry, value, true), "1.23");
  cNumericEntry whole(eValueType::Double, 0, 10, 1);
  EXPECT_EQ(Shown(whole, 3, true), "3");
}

}  // namespace
}  // namespace velmora
