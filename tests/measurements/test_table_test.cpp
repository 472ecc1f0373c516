#include "measurements/test_table.h"

#include <gtest/gtest.h>

#include "foundation/message_rows.h"
#include "storage/library/library_store.h"

namespace velmar::measurements {
namespace {

using Tests = std::vector<storage::MeasuredTest>;

const storage::LibraryFolder kWalls = *storage::FindLibraryFolder("Rw");

Tests Taken(std::string_view text) {
  auto read = ReadTestTable(kWalls, text);
  EXPECT_TRUE(std::holds_alternative<Tests>(read)) << text;
  return std::holds_alternative<Tests>(read) ? std::get<Tests>(read) : Tests();
}

TEST(TestTableTest, TellsATableOfTestsFromOneOfFrequencies) {
  EXPECT_TRUE(IsTestTable("Nome,Rw (dB)\na,50\n"));
  EXPECT_TRUE(IsTestTable("\xEF\xBB\xBF\"Rw (dB)\";\"Nome\"\n"));
  EXPECT_TRUE(IsTestTable("Nome\tRw (dB)\n"));
  EXPECT_FALSE(IsTestTable("Frequenza;R\n100;30\n"));
  EXPECT_FALSE(IsTestTable(""));
}

TEST(TestTableTest, ReadsCsvAndASpreadsheetsCells) {
  for (const char* text : {"Nome;Rw (dB);Ente di prova\nForati 8;41,5;Lab \"\"X\"\"\nForati 12;44;\n",
                           "Nome\tRw (dB)\tEnte di prova\r\nForati 8\t41,5\tLab; X\r\nForati 12\t44\t\r\n"}) {
    const Tests tests = Taken(text);
    ASSERT_EQ(tests.size(), 2U);
    EXPECT_EQ(tests[0].name, "Forati 8");
    EXPECT_EQ(tests[0].rating, 41.5);
    EXPECT_EQ(tests[0].rating_origin, "dichiarato");
    EXPECT_EQ(tests[1].laboratory, "");
  }
}

TEST(TestTableTest, BadRowsAreNamedEachAndNothingIsTaken) {
  auto read = ReadTestTable(
      kWalls, "Nome,Rw (dB),Area (m²)\nbuona,50,10\nmala,cinquanta,10\n,48,10\nBUONA,51,10\nneg,50,-1\n");
  ASSERT_TRUE(std::holds_alternative<RefusedText>(read));
  const Message& lines = std::get<RefusedText>(read).lines;
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(std::get<std::string>(lines[0][1]), " 2, «mala»: ");
  EXPECT_EQ(std::get<MessageRow>(lines[0][2]), kWrongCellRow);
  EXPECT_EQ(std::get<MessageRow>(lines[1][2]), kMeasurementWithoutNameRow);
  EXPECT_EQ(std::get<MessageRow>(lines[2][2]), kMeasurementTwiceRow);
  EXPECT_EQ(std::get<MessageRow>(lines[3][2]), kImpossibleMeasurementRow);
}

TEST(TestTableTest, UnknownColumnsAreRefused) {
  auto read = ReadTestTable(kWalls, "Nome,Rw (dB),Colore\na,50,rosso\n");
  ASSERT_TRUE(std::holds_alternative<RefusedText>(read));
  EXPECT_EQ(LeadingRow(std::get<RefusedText>(read).lines.front()), kUnknownColumnRow);
}

TEST(TestTableTest, WhatIsWrittenIsReadBack) {
  storage::MeasuredTest test;
  test.name = "Doppia \"A\", 12 + 8";
  test.rating = 50;
  test.rating_origin = "dichiarato";
  test.index_kind = "STC";
  test.index_value = 51;
  test.bands[3] = 33.25;
  test.octaves[1] = 34;
  test.uncertainty_db = 1.5;
  test.picture = "senza";
  test.notes = "riga 1\nriga 2";
  EXPECT_EQ(Taken(FormatTestTable(kWalls, {test})), Tests{test});
}

}  // namespace
}  // namespace velmar::measurements
