#include "storage/messages/message_table_reader.h"

#include <gtest/gtest.h>

#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

class MessageReaderTest : public testing::Test {
 protected:
  void MakeCatalogue(int rows) {
    Execute(file_,
            {"CREATE TABLE DRAV (Italiano TEXT, English TEXT)",
             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                 std::to_string(rows) + ") INSERT INTO DRAV SELECT 'testo ' || i, 'text ' || i FROM n"});
  }
  std::string FailureOf(const std::string& language) {
    try {
      ReadMessageTable(file_, language);
    } catch (const CatalogueFailure& failure) {
      const MessageTable none;
      EXPECT_EQ(failure.UserMessage().size(), 2U) << "both languages";
      for (const MessageLine& line : failure.UserMessage()) EXPECT_EQ(LeadingRow(line), MessageRow{});
      return none.Text(failure.UserMessage()[0]);
    }
    return "";
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "InterfMess.mdb";
};

TEST_F(MessageReaderTest, TheColumnIsTheLanguageWithoutRegardToCase) {
  MakeCatalogue(419);
  EXPECT_EQ(ReadMessageTable(file_, "Italiano").Mess(419), "testo 419");
  EXPECT_EQ(ReadMessageTable(file_, "ENGLISH").Mess(1), "text 1");
  EXPECT_EQ(ReadMessageTable(file_, "italiano").Mess(38), "testo 38");
}

TEST_F(MessageReaderTest, AnEmptyCellIsEmptyInEveryLanguage) {
  MakeCatalogue(3);
  Execute(file_, {"UPDATE DRAV SET English = NULL WHERE rowid = 2"});
  const MessageTable table = ReadMessageTable(file_, "English");
  EXPECT_EQ(table.Mess(2), "");
  EXPECT_EQ(table.Mess(3), "text 3");
  EXPECT_EQ(table.Mess(4), "") << "beyond the end";
}

TEST_F(MessageReaderTest, MoreThan419RowsAreTold) {
  MakeCatalogue(420);
  EXPECT_NE(FailureOf("Italiano").find("419"), std::string::npos);
}

TEST_F(MessageReaderTest, RowsOutOfPlaceAreSortedByTheirUniqueNumber) {
  Execute(file_,
          {"CREATE TABLE DRAV (Nr INTEGER, Italiano TEXT)", "CREATE UNIQUE INDEX PrimaryKey ON DRAV (Nr)",
           "INSERT INTO DRAV VALUES (2, 'due'), (1, 'uno')"});
  EXPECT_EQ(ReadMessageTable(file_, "Italiano").Mess(1), "uno");
}

TEST_F(MessageReaderTest, WhatIsWrongHasWordsOfItsOwn) {
  EXPECT_NE(FailureOf("Italiano").find("non è stato trovato"), std::string::npos);
  WriteFile(file_, "no database");
  EXPECT_NE(FailureOf("Italiano").find("danneggiato"), std::string::npos);
  WriteFile(file_, std::string("\0\1\0\0Standard Jet DB\0", 20));
  EXPECT_NE(FailureOf("Italiano").find("Access"), std::string::npos);
  std::filesystem::remove(file_);
  Execute(file_, {"CREATE TABLE Altra (a)"});
  EXPECT_NE(FailureOf("Italiano").find("DRAV"), std::string::npos);
  MakeCatalogue(419);
  EXPECT_NE(FailureOf("Deutsch").find("Deutsch"), std::string::npos);
  EXPECT_NE(FailureOf("").find("lingua"), std::string::npos);
}

TEST_F(MessageReaderTest, FurtherTextsFallBackToItalianAndToTheShippedFile) {
  MakeCatalogue(419);
  Execute(file_, {"CREATE TABLE Testi (Riga REAL, Italiano TEXT, English TEXT)",
                  "INSERT INTO Testi VALUES (1001, 'uno', 'one'), (1002, 'due', NULL), (7, 'x', 'x')"});
  const auto shipped = folder_ / "shipped.mdb";
  Execute(shipped, {"CREATE TABLE Testi (Riga REAL, Italiano TEXT, English TEXT)",
                    "INSERT INTO Testi VALUES (1001, 'no', 'no'), (1003, 'tre', 'three')"});
  const MessageTable table = ReadMessageTable(file_, "English", shipped);
  EXPECT_EQ(table.Text(MessageRow{1001}), "one");
  EXPECT_EQ(table.Text(MessageRow{1002}), "due");
  EXPECT_EQ(table.Text(MessageRow{1003}), "three");
  EXPECT_EQ(table.Text(MessageRow{1004}), "[1004]");
  Execute(file_, {"DROP TABLE Testi"});
  EXPECT_EQ(ReadMessageTable(file_, "English", shipped).Text(MessageRow{1003}), "three");
  EXPECT_EQ(ReadMessageTable(file_, "English", folder_ / "none.mdb").Mess(1), "text 1");
}

}  // namespace
}  // namespace velmar::storage
