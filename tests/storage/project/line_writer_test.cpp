#include "storage/project/line_writer.h"

#include <limits>

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

struct NumberLine {
  double value;
  const char* line;
};

class NumberLineTest : public testing::TestWithParam<NumberLine> {};

TEST_P(NumberLineTest, HasACommaAndItsBlanks) {
  LineWriter out;
  out.Number(GetParam().value);
  EXPECT_EQ(out.Bytes(), std::string(GetParam().line) + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Values, NumberLineTest,
                         testing::Values(NumberLine{0, " 0 "}, NumberLine{120, " 120 "},
                                         NumberLine{12.5, " 12,5 "}, NumberLine{-12.5, "-12,5 "},
                                         NumberLine{0.1, " 0,1 "},
                                         NumberLine{1.0 / 3, " 0,3333333333333333 "},
                                         NumberLine{1e-4, " 0,0001 "}, NumberLine{1.5e-5, " 1,5E-05 "},
                                         NumberLine{1e15, " 1000000000000000 "}, NumberLine{1e16, " 1E+16 "},
                                         NumberLine{-1e-300, "-1E-300 "},
                                         NumberLine{std::numeric_limits<double>::infinity(), " 0 "},
                                         NumberLine{std::numeric_limits<double>::quiet_NaN(), " 0 "}));

TEST(LineWriter, WritesSinglesWithTheirOwnDigits) {
  LineWriter out;
  out.Single(240.1F);
  out.Single(-0.1F);
  EXPECT_EQ(out.Bytes(), " 240,1 \r\n-0,1 \r\n");
}

TEST(LineWriter, WritesTheOtherKinds) {
  LineWriter out;
  out.Integer(0);
  out.Integer(-1);
  out.Boolean(true);
  out.Boolean(false);
  out.Blank();
  out.Text(" perché € ");
  EXPECT_EQ(out.Bytes(), " 0 \r\n-1 \r\nVero\r\nFalso\r\n\r\n perch\xE9 \x80 \r\n");
}

TEST(LineWriter, TextNeverHoldsALineBreakOrANull) {
  LineWriter out;
  out.Text(std::string("a\r\nb\nc\rd\0e", 10));
  EXPECT_EQ(out.Bytes(), "a b c d e\r\n");
}

}  // namespace
}  // namespace velmar::storage
