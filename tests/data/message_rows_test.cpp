#include "message_rows/message_rows.h"

#include <cstdlib>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::message_rows {
namespace {

using storage::ReadFile;
using storage::WriteFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kFirst =
    "row,name,use,Italiano,English\n"
    "1,kFileMenuRow,\"menu \"\"File\"\"\",File,File\n"
    "2,kWidthRow,a width,Larghezza,Width\n";
constexpr const char* kSecond =
    "row,name,use,Italiano,English\n"
    "1001,kZeroMassRow,calculation,Massa nulla,No mass\n";

std::vector<std::string> ComplaintsOf(const std::string& first, const std::string& second = kSecond) {
  return Complaints(
      std::vector{MessageFile{"a.csv", ParseCsv(first)}, MessageFile{"b.csv", ParseCsv(second)}});
}

/// `first` with the row of the width replaced by `row`.
std::string With(const std::string& row) {
  const std::string first = kFirst;
  return first.substr(0, first.find("2,")) + row + "\n";
}

TEST(MessageRows, GoodFilesGiveNoComplaint) { EXPECT_THAT(ComplaintsOf(kFirst), IsEmpty()); }

TEST(MessageRows, TheHeaderNamesEveryRowWithItsUseAndNoWording) {
  const std::string header = Header(MessageFile{"a.csv", ParseCsv(kFirst)});
  EXPECT_THAT(header, HasSubstr("\n/// menu \"File\"\ninline constexpr MessageRow kFileMenuRow{1};\n"));
  EXPECT_THAT(header, HasSubstr("\n/// a width\ninline constexpr MessageRow kWidthRow{2};\n"));
  EXPECT_THAT(Header(MessageFile{"b.csv", ParseCsv(kSecond)}),
              HasSubstr("\n/// calculation\ninline constexpr MessageRow kZeroMassRow{1001};\n"));
  for (const char* word : {"Larghezza", "Width,", "Massa", "No mass"})
    EXPECT_THAT(header, testing::Not(HasSubstr(word)));
}

struct Damage {
  const char* name;
  std::string first;
  std::string complaint;
};

class DamagedMessagesTest : public testing::TestWithParam<Damage> {};

TEST_P(DamagedMessagesTest, AreComplainedOf) {
  EXPECT_THAT(ComplaintsOf(GetParam().first), ElementsAre(GetParam().complaint));
}

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedMessagesTest,
    testing::Values(
        Damage{"RowTwice", With("1,kWidthRow,a width,Larghezza,Width"), "a.csv: row 1 stands twice"},
        Damage{"RowOfBothFiles", With("1001,kWidthRow,a width,Larghezza,Width"),
               "b.csv: row 1001 stands twice"},
        Damage{"RowNoNumber", With("2a,kWidthRow,a width,Larghezza,Width"),
               "a.csv: \"2a\" is no number of a row"},
        Damage{"RowZero", With("0,kWidthRow,a width,Larghezza,Width"), "a.csv: \"0\" is no number of a row"},
        Damage{"NoName", With("2,,a width,Larghezza,Width"), "a.csv: row 2 has no name"},
        Damage{"NameTwice", With("2,kFileMenuRow,a width,Larghezza,Width"),
               "a.csv: row 2: another row has the name kFileMenuRow"},
        Damage{"NameOfBothFiles", With("2,kZeroMassRow,a width,Larghezza,Width"),
               "b.csv: row 1001: another row has the name kZeroMassRow"},
        Damage{"NameWithoutItsEnd", With("2,kWidth,a width,Larghezza,Width"),
               "a.csv: row 2: \"kWidth\" is not written like kSaveProjectRow"},
        Damage{"NameInSnakeCase", With("2,width_row,a width,Larghezza,Width"),
               "a.csv: row 2: \"width_row\" is not written like kSaveProjectRow"},
        Damage{"NameWithABlank", With("2,kA WidthRow,a width,Larghezza,Width"),
               "a.csv: row 2: \"kA WidthRow\" is not written like kSaveProjectRow"},
        Damage{"NoUse", With("2,kWidthRow,,Larghezza,Width"), "a.csv: row 2 does not say its use"},
        Damage{"UseOfTwoLines", With("2,kWidthRow,\"a\nwidth\",Larghezza,Width"),
               "a.csv: row 2: a line break or a backslash in its use would leave the comment"},
        Damage{"NoItalian", With("2,kWidthRow,a width,,Width"), "a.csv: row 2 has no text in Italiano"},
        Damage{"NoEnglish", With("2,kWidthRow,a width,Larghezza,"), "a.csv: row 2 has no text in English"}),
    [](const auto& test) { return test.param.name; });

TEST(MessageRows, AFileWithoutTheColumnOfNamesIsComplainedOf) {
  EXPECT_THAT(Complaints(std::vector{MessageFile{"a.csv", ParseCsv("row,use,Italiano\n1,a,b\n")}}),
              ElementsAre("a.csv: the heading is not row, name, use and the languages"));
}

TEST(MessageRows, OtherLanguagesThanInTheFirstFileAreComplainedOf) {
  EXPECT_THAT(ComplaintsOf(kFirst, "row,name,use,Italiano\n1001,kZeroMassRow,calculation,Massa nulla\n"),
              ElementsAre("b.csv: other languages than in the first file"));
}

/// The program as the build runs it.
class MessageRowsProgramTest : public testing::Test {
 protected:
  MessageRowsProgramTest() {
    WriteFile(folder_ / "a.csv", kFirst);
    WriteFile(folder_ / "b.csv", kSecond);
  }

  int Run() const {
    const auto quoted = [this](const char* name) { return " '" + (folder_ / name).string() + "'"; };
    const std::string line = "'" VELMAR_MESSAGE_ROWS "'" + quoted("out") + quoted("a.csv") + quoted("b.csv") +
                             " 2>" + quoted("errors");
    return WEXITSTATUS(std::system(line.c_str()));
  }

  std::filesystem::path File(const char* name) const { return folder_ / name; }
  std::filesystem::file_time_type HeaderTime() const { return last_write_time(File("out/a_rows.h")); }

 private:
  storage::TemporaryFolder folder_;
};

TEST_F(MessageRowsProgramTest, LeavesTheHeaderAloneWhenOnlyAWordingChanges) {
  ASSERT_EQ(Run(), 0) << ReadFile(File("errors"));
  const auto long_ago = HeaderTime() - std::chrono::hours(24);
  last_write_time(File("out/a_rows.h"), long_ago);
  WriteFile(File("a.csv"), With("2,kWidthRow,a width,Ampiezza,Breadth"));
  ASSERT_EQ(Run(), 0);
  EXPECT_EQ(HeaderTime(), long_ago);
  WriteFile(File("a.csv"), With("2,kBreadthRow,a width,Ampiezza,Breadth"));
  ASSERT_EQ(Run(), 0);
  EXPECT_THAT(ReadFile(File("out/a_rows.h")), HasSubstr("kBreadthRow{2}"));
}

TEST_F(MessageRowsProgramTest, FailsWithAClearLineAndWritesNothing) {
  for (const auto& [content, line] :
       {std::pair{With("1,kWidthRow,a width,Larghezza,Width"), "a.csv: row 1 stands twice\n"},
        std::pair{With("2,kFileMenuRow,a width,Larghezza,Width"), "another row has the name kFileMenuRow\n"},
        std::pair{With("2,,a width,Larghezza,Width"), "a.csv: row 2 has no name\n"},
        std::pair{With("2,kWidthRow,a width,Larghezza,"), "a.csv: row 2 has no text in English\n"},
        std::pair{With("2,kWidthRow,\"a width"), "a.csv: CSV line 3: a quotation mark is not closed\n"},
        std::pair{std::string(), "a.csv: CSV line 1: there is no heading\n"}}) {
    WriteFile(File("a.csv"), content);
    EXPECT_EQ(Run(), 1) << content;
    EXPECT_THAT(ReadFile(File("errors")), HasSubstr(line));
    EXPECT_FALSE(std::filesystem::exists(File("out/a_rows.h")));
  }
  std::filesystem::remove(File("a.csv"));
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(ReadFile(File("errors")), HasSubstr("a.csv: cannot be read\n"));
}

}  // namespace
}  // namespace velmar::message_rows
