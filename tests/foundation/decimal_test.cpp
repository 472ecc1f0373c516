#include "foundation/decimal.h"

#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace velmar {
namespace {

struct ParseCase {
  const char* name;
  std::string text;
  std::optional<double> value;
};

class ParseDecimalTest : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseDecimalTest, ReadsWhatAPersonTypes) {
  EXPECT_EQ(ParseDecimal(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseDecimalTest,
    testing::Values(
        ParseCase{"Comma", "1,5", 1.5}, ParseCase{"Point", "1.5", 1.5}, ParseCase{"Blanks", " 12 ", 12.0},
        ParseCase{"Plus", "+3", 3.0}, ParseCase{"Exponent", "1E-3", 0.001},
        ParseCase{"LeadingComma", ",5", 0.5}, ParseCase{"TrailingComma", "5,", 5.0},
        ParseCase{"TooSmallIsZero", "1e-400", 0.0}, ParseCase{"Empty", "", std::nullopt},
        ParseCase{"LoneComma", ",", std::nullopt}, ParseCase{"TwoCommas", "1,2,3", std::nullopt},
        ParseCase{"TooLarge", "1e999", std::nullopt}, ParseCase{"NotANumber", "nan", std::nullopt},
        ParseCase{"Infinite", "inf", std::nullopt}, ParseCase{"Hexadecimal", "0x10", std::nullopt},
        ParseCase{"PlusMinus", "+-3", std::nullopt}, ParseCase{"WordsBehind", "12 mm", std::nullopt},
        ParseCase{"HalfTypedExponent", "1E", std::nullopt},
        ParseCase{"EndlessDigits", std::string(100000, '9'), std::nullopt}),
    [](const auto& test) { return test.param.name; });

TEST(ParseSingle, RefusesWhatASingleCannotHold) {
  EXPECT_EQ(ParseSingle("0,1"), 0.1F);
  EXPECT_EQ(ParseSingle("1e39"), std::nullopt);
}

struct FormatCase {
  double value;
  std::string text;
};

TEST(FormatShortest, WritesDecimalCommaAndShortExponents) {
  for (const auto& [value, text] :
       {FormatCase{0.1, "0,1"}, FormatCase{120, "120"}, FormatCase{-12.5, "-12,5"}, FormatCase{0, "0"},
        FormatCase{-0.0, "0"}, FormatCase{1e-4, "0,0001"}, FormatCase{1.5e-5, "1,5E-05"},
        FormatCase{1e16, "1E+16"}, FormatCase{1e15, "1000000000000000"}, FormatCase{1e300, "1E+300"}}) {
    EXPECT_EQ(FormatShortest(value), text);
  }
  EXPECT_EQ(FormatShortest(0.1F), "0,1");
}

TEST(FormatShortest, ReadsBackExactly) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> exponent(-20, 20);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  for (int i = 0; i < 10000; ++i) {
    const double value = mantissa(random) * std::pow(10.0, exponent(random));
    ASSERT_EQ(ParseDecimal(FormatShortest(value)), value);
  }
}

TEST(FormatFixed, RoundsTiesToTheEvenDigit) {
  EXPECT_EQ(FormatFixed(0.25, 1), "0,2");
  EXPECT_EQ(FormatFixed(0.75, 1), "0,8");
  EXPECT_EQ(FormatFixed(54, 1), "54,0");
  EXPECT_EQ(FormatFixed(-0.04, 1), "0,0");
}

}  // namespace
}  // namespace velmar
