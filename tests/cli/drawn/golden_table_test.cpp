// The table of results of example projects, number by number, as CSV and as it goes to the clipboard.
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/commands/project_run.h"
#include "presentation/texts/results_csv.h"
#include "presentation/texts/results_table.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::cli {
namespace {

/// Cells parted by blanks, "-" for one that is empty; "hidden" rows are in the clipboard alone.
struct Golden {
  const char* example;
  const char* value_heading;
  const char* bands;
  std::vector<std::string> ratings;  ///< title and value, parted by "="
  int hidden_rows = 0;               ///< empty pairs at the end of the clipboard
};

void PrintTo(const Golden& golden, std::ostream* out) { *out << golden.example; }

std::vector<Golden> Goldens() {
  return {{"parete-forato-intonacata",
           "Ri [dB]",
           "50 29,7 - 63 32,8 - 80 34,6 - 100 36,2 25 125 38,1 28 160 39,3 31 200 40,0 34 250 38,0 37 "
           "315 30,7 40 400 33,0 43 500 37,7 44 630 42,0 45 800 45,6 46 1000 49,6 47 1250 53,5 48 "
           "1600 57,0 48 2000 59,6 48 2500 64,6 48 3150 67,7 48 4000 70,4 - 5000 70,2 -",
           {"Rw [dB]=44,0", "C [dB]=-1", "Ctr [dB]=-4"}},
          {"calpestio-galleggiante",
           "Li [dB]",
           "50 57,1 - 63 59,0 - 80 56,4 - 100 53,9 43 125 51,5 43 160 48,8 43 200 46,3 43 250 43,9 43 "
           "315 41,3 43 400 38,6 42 500 36,1 41 630 33,5 40 800 30,8 39 1000 28,3 38 1250 25,8 35 "
           "1600 22,9 32 2000 20,3 29 2500 17,8 26 3150 15,1 23 4000 12,3 - 5000 9,6 -",
           {"Lnw [dB]=41,0", "Ci [dB]=2"},
           1}};
}

/// The rows as both texts part their cells with `part` and end with `end`.
std::string Expected(const Golden& golden, char part, const std::string& end, bool third_always) {
  std::string text = std::string("Frequenza [Hz]") + part + golden.value_heading + part + "Rif [dB]" + end;
  const auto add = [&](const std::string& first, const std::string& second, const std::string& third) {
    text += first + part + second;
    if (third_always || !third.empty()) text += part + third;
    text += end;
  };
  std::istringstream bands(golden.bands);
  for (std::string frequency, level, reference; bands >> frequency >> level >> reference;)
    add(frequency, level, reference == "-" ? "" : reference);
  for (const std::string& rating : golden.ratings)
    add(rating.substr(0, rating.find('=')), rating.substr(rating.find('=') + 1), "");
  return text;
}

class GoldenTable : public testing::TestWithParam<Golden> {
 protected:
  presentation::ResultsTable Table() const {
    const ProjectRun run =
        RunProject(std::filesystem::path(EXAMPLES) / (std::string(GetParam().example) + ".drav"),
                   storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb"), true);
    return presentation::ResultsTableOf(run.setup, run.outcome.result.value(),
                                        presentation::CatalogueWords());
  }
};

TEST_P(GoldenTable, AsCsvForASpreadsheet) {
  EXPECT_EQ(presentation::ResultsCsv(Table()), "\xEF\xBB\xBF" + Expected(GetParam(), ';', "\r\n", true));
}

TEST_P(GoldenTable, AsTextForTheClipboard) {
  std::string expected = Expected(GetParam(), '\t', "\n", false);
  for (int i = 0; i < GetParam().hidden_rows; ++i) expected += "\t\n";
  EXPECT_EQ(presentation::ClipboardText(Table()), expected);
}

INSTANTIATE_TEST_SUITE_P(Examples, GoldenTable, testing::ValuesIn(Goldens()));

}  // namespace
}  // namespace velmar::cli
