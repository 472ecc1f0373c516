#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "storage/tables/csv.h"
#include "tests/data/quoted_texts.h"

namespace velmar {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct Text {
  int row = 0;
  std::string use;
  std::string italian;
  std::string english;
};

CsvTable Table(std::string_view file_name) {
  std::ifstream file(std::filesystem::path(VELMAR_MESSAGES) / file_name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << file_name;
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  return storage::ParseCsv(bytes);
}

int Number(const std::string& field) {
  int number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  EXPECT_TRUE(error == std::errc() && end == field.data() + field.size()) << field;
  return number;
}

std::vector<Text> Texts(std::string_view file_name) {
  std::vector<Text> texts;
  for (const std::vector<std::string>& fields : Table(file_name).rows) {
    texts.push_back({Number(fields.at(0)), fields.at(2), fields.at(3), fields.at(4)});
  }
  return texts;
}

class MessageFileTest : public testing::TestWithParam<const char*> {};

TEST_P(MessageFileTest, HasTheColumnsInOrder) {
  EXPECT_THAT(Table(GetParam()).header, ElementsAre("row", "name", "use", "Italiano", "English"));
}

TEST_P(MessageFileTest, LeavesNothingEmpty) {
  for (const Text& text : Texts(GetParam())) {
    SCOPED_TRACE(text.row);
    EXPECT_FALSE(text.use.empty());
    EXPECT_FALSE(text.italian.empty());
    EXPECT_FALSE(text.english.empty());
  }
}

TEST_P(MessageFileTest, HasBlanksAtTheEdgesOnlyWhereARowNeedsThem) {
  for (const Text& text : Texts(GetParam())) {
    SCOPED_TRACE(text.row);
    const bool needs_blank = std::ranges::count(kLeadingBlanks, text.row, &LeadingBlank::row) > 0;
    for (const std::string& words : {text.italian, text.english}) {
      EXPECT_EQ(words.starts_with(' '), needs_blank);
      EXPECT_FALSE(words.ends_with(' '));
      EXPECT_THAT(words, AllOf(Not(HasSubstr("  ")), Not(HasSubstr("\n")), Not(HasSubstr("\t"))));
    }
  }
}

/// The keyword of materials without one: the database holds it, so no language translates it.
constexpr int kStoredKeywordRow = 325;

/// Words that betray the other language; a text is searched between blanks, in lower case.
constexpr std::string_view kEnglishWords[] = {" the ", " and ", " of ",  " with ", " is ",    " not ",
                                              " be ",  " to ",  " for ", " from ", " cannot "};
constexpr std::string_view kItalianWords[] = {" il ",    " di ",  " del ", " della ", " non ", " con ",
                                              " delle ", " che ", " nel ", " una ",   " è "};

std::string Padded(const std::string& text) {
  std::string padded = " " + text + " ";
  std::ranges::transform(padded, padded.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return padded;
}

TEST_P(MessageFileTest, KeepsTheLanguagesApart) {
  for (const Text& text : Texts(GetParam())) {
    SCOPED_TRACE(text.row);
    for (const std::string_view word : kEnglishWords) EXPECT_THAT(Padded(text.italian), Not(HasSubstr(word)));
    if (text.row == kStoredKeywordRow) continue;
    for (const std::string_view word : kItalianWords) EXPECT_THAT(Padded(text.english), Not(HasSubstr(word)));
  }
}

/// Accents typed as apostrophes, and words that want an accent.
constexpr std::string_view kMisspelt[] = {
    " e' ",     " puo ",    "puo' ",    "densita ", "densita'", " piu ", "rigidita ", " perche ", "perche'",
    " perchè ", "societa ", "societa'", "qual'è",   "un pò",    "kg/m2", "kg/m3",     "m^2",      "m^3"};

TEST_P(MessageFileTest, WritesAccentsAndUnits) {
  for (const Text& text : Texts(GetParam())) {
    SCOPED_TRACE(text.row);
    for (const std::string_view word : kMisspelt) EXPECT_THAT(Padded(text.italian), Not(HasSubstr(word)));
  }
}

TEST_P(MessageFileTest, WritesTheDecimalSignOfItsLanguage) {
  for (const Text& text : Texts(GetParam())) {
    SCOPED_TRACE(text.row);
    EXPECT_THAT(text.italian, Not(testing::ContainsRegex("[0-9][.][0-9]")));
    EXPECT_THAT(text.english, Not(testing::ContainsRegex("[0-9],[0-9]")));
  }
}

INSTANTIATE_TEST_SUITE_P(Files, MessageFileTest, testing::Values("catalogue.csv", "texts.csv"),
                         [](const auto& test) {
                           const std::string name = test.param;
                           return name.substr(0, name.find('.'));
                         });

TEST(MessageCatalogueTexts, AreRows1To419InOrder) {
  const std::vector<Text> texts = Texts("catalogue.csv");
  ASSERT_EQ(texts.size(), 419U);
  for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(texts[i].row, static_cast<int>(i) + 1);
}

TEST(MessageCatalogueTexts, HoldTheWordsThatOthersCountOn) {
  const std::vector<Text> texts = Texts("catalogue.csv");
  for (const QuotedText& quoted : kQuotedTexts) {
    EXPECT_EQ(texts.at(static_cast<std::size_t>(quoted.row) - 1).italian, quoted.italian) << quoted.row;
  }
}

TEST(MessageCatalogueTexts, KeepTheStoredKeywordInEveryLanguage) {
  const Text keyword = Texts("catalogue.csv").at(kStoredKeywordRow - 1);
  EXPECT_EQ(keyword.english, keyword.italian);
}

TEST(MessageCatalogueTexts, EndInAColonOnlyWhereNoneIsAdded) {
  for (const Text& text : Texts("catalogue.csv")) {
    SCOPED_TRACE(text.row);
    if (text.use.find("a colon is added") != std::string::npos ||
        text.use.find("colon follows") != std::string::npos) {
      EXPECT_FALSE(text.italian.ends_with(':'));
      EXPECT_FALSE(text.english.ends_with(':'));
    }
    EXPECT_EQ(text.italian.ends_with(':'), text.english.ends_with(':'));
  }
}

TEST(MessageCatalogueTexts, NameTheRangeOfARelation) {
  const std::vector<Text> texts = Texts("catalogue.csv");
  for (const NamedRange& range : kNamedRanges) {
    SCOPED_TRACE(range.row);
    const Text& text = texts.at(static_cast<std::size_t>(range.row) - 1);
    EXPECT_THAT(text.italian,
                AllOf(HasSubstr("campo di validità della relazione sperimentale"), HasSubstr(range.italian)));
    EXPECT_THAT(text.english,
                AllOf(HasSubstr("the range of the experimental relation"), HasSubstr(range.english)));
  }
}

TEST(FurtherTexts, HaveUniqueAscendingRowsFrom1001On) {
  int last = 1000;
  for (const Text& text : Texts("texts.csv")) {
    EXPECT_GT(text.row, last);
    last = text.row;
  }
}

}  // namespace
}  // namespace velmar
