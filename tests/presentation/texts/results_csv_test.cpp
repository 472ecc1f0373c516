#include "presentation/texts/results_csv.h"

#include <vector>

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

ResultsTable SmallTable() {
  ResultsTable table{.frequency_heading = "Frequenza [Hz]",
                     .value_heading = "Ri [dB]",
                     .reference_heading = "Rif [dB]",
                     .rows = {}};
  table.rows[2] = {.title = "80", .value = "34,6", .reference = {}, .visible = true};
  table.rows[3] = {.title = "100", .value = "36,2", .reference = "25", .visible = true};
  table.rows[4] = {.title = "125", .value = "38,1", .reference = "28", .visible = false};
  table.rows[21] = {.title = "Rw [dB]", .value = "44,0", .reference = {}, .visible = true};
  return table;
}

TEST(ResultsCsv, HoldsTheShownRowsWithDecimalCommas) {
  EXPECT_EQ(ResultsCsv(SmallTable()),
            "\xEF\xBB\xBF"
            "Frequenza [Hz];Ri [dB];Rif [dB]\r\n"
            "80;34,6;\r\n"
            "100;36,2;25\r\n"
            "Rw [dB];44,0;\r\n");
}

TEST(ResultsCsv, AddsTheNumbersThatTheTableHasNot) {
  const std::vector<elements::SingleNumber> numbers = {
      {.key = "Rw", .symbol = "Rw", .value = 44, .unit = "dB", .further = false},
      {.key = "Rw,0.1", .symbol = "Rw (0,1)", .value = 44.3, .decimals = 1, .unit = "dB"},
      {.key = "STC", .symbol = "STC", .value = 45}};
  EXPECT_EQ(ResultsCsv(SmallTable(), numbers),
            ResultsCsv(SmallTable()) + "Rw (0,1) [dB];44,3;\r\nSTC;45;\r\n");
}

TEST(ResultsCsv, EndsWithTheNotesOfTheResult) {
  const std::vector<std::string> notes = {"Fuori campo", "Rw 44 dB; nessuna stima"};
  EXPECT_EQ(ResultsCsv(SmallTable(), {}, notes),
            ResultsCsv(SmallTable()) + "Fuori campo;;\r\n\"Rw 44 dB; nessuna stima\";;\r\n");
}

TEST(ResultsCsv, QuotesWhatWouldPartACell) {
  ResultsTable table = SmallTable();
  table.value_heading = "R; \"i\"";
  EXPECT_NE(ResultsCsv(table).find("Frequenza [Hz];\"R; \"\"i\"\"\";Rif [dB]\r\n"), std::string::npos);
}

}  // namespace
}  // namespace velmar::presentation
