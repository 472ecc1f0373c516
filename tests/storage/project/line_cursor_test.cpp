#include "storage/project/line_cursor.h"

#include <gtest/gtest.h>

#include "foundation/message_rows.h"
#include "storage/project/project_failure.h"

namespace velmar::storage {
namespace {

TEST(LineCursor, EndsLinesAtCrLfLfOrCr) {
  LineCursor lines("a\r\nb\nc\r\rd");
  for (const char* line : {"a", "b", "c", "", "d"}) EXPECT_EQ(lines.Text(), line);
  EXPECT_THROW(lines.Text(), ProjectFileFailure);
}

TEST(LineCursor, AMissingEndOfTheLastLineIsNoMissingLine) {
  LineCursor ended("a\r\n");
  ended.Text();
  EXPECT_THROW(ended.Text(), ProjectFileFailure);
  LineCursor empty("");
  EXPECT_THROW(empty.Text(), ProjectFileFailure);
}

TEST(LineCursor, ReadsWindows1252AndUtf8BehindAMark) {
  EXPECT_EQ(LineCursor("perch\xE9 \x80").Text(), "perché €");
  EXPECT_EQ(LineCursor("\xEF\xBB\xBFperché €").Text(), "perché €");
  EXPECT_THROW(LineCursor("\xEF\xBB\xBFperch\xE9").Text(), ProjectFileFailure);
}

struct Reading {
  const char* line;
  double value;
};

class NumberTest : public testing::TestWithParam<Reading> {};

TEST_P(NumberTest, TakesCommaAndPoint) { EXPECT_EQ(LineCursor(GetParam().line).Number(), GetParam().value); }

INSTANTIATE_TEST_SUITE_P(Lines, NumberTest,
                         testing::Values(Reading{" 12,5 ", 12.5}, Reading{"12.5", 12.5},
                                         Reading{"-0,5 ", -0.5}, Reading{"1E-05", 1e-5},
                                         Reading{" 1,5e+3", 1500}, Reading{"007", 7}));

class NoNumberTest : public testing::TestWithParam<const char*> {};

TEST_P(NoNumberTest, IsRefused) {
  EXPECT_THROW(LineCursor(GetParam()).Number(), ProjectFileFailure);
  EXPECT_THROW(LineCursor(GetParam()).Single(), ProjectFileFailure);
  EXPECT_THROW(LineCursor(GetParam()).Integer(-9, 9), ProjectFileFailure);
}

INSTANTIATE_TEST_SUITE_P(Lines, NoNumberTest,
                         testing::Values("\r\n", " ", "abc", "nan", "NaN", "inf", "-inf", "1e999", "-1e999",
                                         "1.2,3", "1 2", "0x10", "--1", "1e"));

TEST(LineCursor, SinglesHaveTheirOwnRange) {
  EXPECT_EQ(LineCursor("1e38").Single(), 1e38F);
  EXPECT_THROW(LineCursor("1e39").Single(), ProjectFileFailure);
}

TEST(LineCursor, IntegersAreRoundedToEvenAndKeptInTheirRange) {
  EXPECT_EQ(LineCursor(" 3 ").Integer(0, 9), 3);
  EXPECT_EQ(LineCursor("2,5").Integer(0, 9), 2);
  EXPECT_EQ(LineCursor("-1").Integer(-1, 9), -1);
  for (const char* line : {"10", "-2", "1e18", "99999999999999999999"}) {
    EXPECT_THROW(LineCursor(line).Integer(-1, 9), ProjectFileFailure) << line;
  }
}

TEST(LineCursor, ReadsBooleansInBothLanguagesAndAnyCase) {
  for (const char* line : {"Vero", "vero", "TRUE", " True "}) EXPECT_TRUE(LineCursor(line).Boolean()) << line;
  for (const char* line : {"Falso", "FALSO", "false"}) EXPECT_FALSE(LineCursor(line).Boolean()) << line;
  EXPECT_THROW(LineCursor("1").Boolean(), ProjectFileFailure);
}

TEST(LineCursor, NamesTheLineThatIsWrong) {
  LineCursor lines("a\r\nb\r\nx\r\n");
  lines.Text();
  lines.Text();
  try {
    lines.Integer(0, 9);
    FAIL();
  } catch (const ProjectFileFailure& failure) {
    EXPECT_EQ(failure.LineNumber(), 3);
    const Message expected = {{kProjectDamagedRow},
                              {kProjectLineRow, " 3: ", kIntegerFromRow, " 0 ", kIntegerToRow, " 9"}};
    EXPECT_EQ(failure.UserMessage(), expected);
  }
}

TEST(LineCursor, RefusesNullCharacters) {
  EXPECT_THROW(LineCursor(std::string_view("a\0b", 3)).Text(), ProjectFileFailure);
}

}  // namespace
}  // namespace velmar::storage
