#include "storage/tables/csv.h"

#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::storage {
namespace {

using testing::ElementsAre;

struct ReadCase {
  const char* name;
  std::string text;
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

class ParseCsvTest : public testing::TestWithParam<ReadCase> {};

TEST_P(ParseCsvTest, GivesHeaderAndRows) {
  const CsvTable table = ParseCsv(GetParam().text);
  EXPECT_EQ(table.header, GetParam().header);
  EXPECT_EQ(table.rows, GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseCsvTest,
    testing::Values(
        ReadCase{"Plain", "a,b\n1,2\n", {"a", "b"}, {{"1", "2"}}},
        ReadCase{"CarriageReturns", "a,b\r\n1,2\r\n", {"a", "b"}, {{"1", "2"}}},
        ReadCase{"NoLastLineEnd", "a,b\n1,2", {"a", "b"}, {{"1", "2"}}},
        ReadCase{"ByteOrderMark",
                 "\xEF\xBB\xBF"
                 "a\n1\n",
                 {"a"},
                 {{"1"}}},
        ReadCase{"QuotedSeparator", "\"Delta Ln,w (dB)\",b\n1,2\n", {"Delta Ln,w (dB)", "b"}, {{"1", "2"}}},
        ReadCase{"QuotedQuote", "a\n\"2\"\" pipe\"\n", {"a"}, {{"2\" pipe"}}},
        ReadCase{"QuotedLineBreak", "a,b\n\"x\r\ny\",2\n", {"a", "b"}, {{"x\r\ny", "2"}}},
        ReadCase{"EmptyFields", "a,b\n,\n", {"a", "b"}, {{"", ""}}},
        ReadCase{"EmptyLinesPassed", "\na,b\n\n1,2\n\n", {"a", "b"}, {{"1", "2"}}},
        ReadCase{"Semicolons", "a;Ln,w\n1,5;2\n", {"a", "Ln,w"}, {{"1,5", "2"}}},
        ReadCase{"SemicolonInQuotes", "\"a;b\",c\n1,2\n", {"a;b", "c"}, {{"1", "2"}}},
        ReadCase{"HeaderAlone", "a,b\n", {"a", "b"}, {}},
        ReadCase{"Accents", "Densità (kg/m³)\nperò\n", {"Densità (kg/m³)"}, {{"però"}}}),
    [](const auto& test) { return test.param.name; });

struct DamageCase {
  const char* name;
  std::string text;
  MessageRow row;
};

class DamagedCsvTest : public testing::TestWithParam<DamageCase> {};

TEST_P(DamagedCsvTest, IsRefusedWithItsReason) {
  try {
    ParseCsv(GetParam().text);
    FAIL() << "was read";
  } catch (const Failure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().at(0)), GetParam().row) << failure.what();
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedCsvTest,
                         testing::Values(DamageCase{"OpenQuote", "a,b\n1,\"2\n", kCsvQuotesRow},
                                         DamageCase{"TextBehindQuote", "a,b\n\"1\"x,2\n", kCsvQuotesRow},
                                         DamageCase{"ShortRow", "a,b\n1\n", kCsvFieldCountRow},
                                         DamageCase{"LongRow", "a,b\n1,2,3\n", kCsvFieldCountRow},
                                         DamageCase{"Empty", "", kCsvHeaderRow},
                                         DamageCase{"NamelessColumn", "a,,c\n1,2,3\n", kCsvHeaderRow},
                                         DamageCase{"ColumnTwice", "a,a\n1,2\n", kCsvHeaderRow},
                                         DamageCase{"Latin1", "Densit\xE0\n1\n", kCsvEncodingRow},
                                         DamageCase{"HalfSequence", "a\n\xC3", kCsvEncodingRow},
                                         DamageCase{"Overlong", "a\n\xC0\xAF\n", kCsvEncodingRow}),
                         [](const auto& test) { return test.param.name; });

TEST(ParseCsv, NamesTheLineOfTheDamage) {
  try {
    ParseCsv("a,b\n\"x\ny\",2\n1\n");
    FAIL() << "was read";
  } catch (const Failure& failure) {
    EXPECT_THAT(failure.UserMessage().at(0),
                ElementsAre(MessagePiece{kCsvFieldCountRow}, MessagePiece{" 4"}));
  }
}

TEST(FormatCsv, QuotesOnlyWhatMustBe) {
  EXPECT_EQ(FormatCsv({{"a", "Ln,w"}, {{"1;2", "x\"y"}, {"", "z"}}}), "a,\"Ln,w\"\n\"1;2\",\"x\"\"y\"\n,z\n");
}

TEST(FormatCsv, ReadsBack) {
  std::mt19937 random(7);
  const std::vector<std::string> pieces = {"", ",", ";", "\"", "\n", "\r\n", "x", "è", " ", "1,5"};
  std::uniform_int_distribution<size_t> piece(0, pieces.size() - 1);
  std::uniform_int_distribution<int> count(0, 4);
  for (int round = 0; round < 300; ++round) {
    CsvTable table{{"a", "b", "c"}, {}};
    for (int row = count(random); row > 0; --row) {
      std::vector<std::string> fields(3);
      for (std::string& field : fields) {
        for (int i = count(random); i > 0; --i) field += pieces[piece(random)];
      }
      table.rows.push_back(fields);
    }
    const CsvTable back = ParseCsv(FormatCsv(table));
    ASSERT_EQ(back.header, table.header);
    ASSERT_EQ(back.rows, table.rows);
  }
}

TEST(FormatCsv, KeepsEmptyRowsOfOneColumn) {
  const CsvTable table{{"a"}, {{""}, {"x"}, {""}}};
  EXPECT_EQ(ParseCsv(FormatCsv(table)).rows, table.rows);
}

}  // namespace
}  // namespace velmar::storage
