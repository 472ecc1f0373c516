// Word and Excel reports of every example project, written, opened again and read against the result.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/commands/project_run.h"
#include "cli/drawn/drawn_formats.h"
#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "presentation/texts/results_table.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::cli {
namespace {

using elements::Family;
using presentation::CellOf;
using presentation::Package;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kDocument = "word/document.xml";
/// The chapter with the table of bands; without bands it is not there.
constexpr const char* kBandsChapter = "Andamento in frequenza";
constexpr double kHalfOfTheLastDecimal = 0.05 + 1e-9;

/// Without decimals, with the sign that paper has.
std::string FixedOnPaper(double value) {
  const std::string digits = FormatFixed(std::abs(value), 0);
  return value < 0.0 && digits != "0" ? "\u2212" + digits : digits;
}

std::vector<std::filesystem::path> Examples() {
  std::vector<std::filesystem::path> examples;
  for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES)) examples.push_back(entry.path());
  std::ranges::sort(examples);
  return examples;
}

ProjectRun RunExample(const std::filesystem::path& example) {
  static const elements::MaterialLookup kMaterials =
      storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb");
  return RunProject(example, kMaterials, /*go_on_outside_ranges=*/true);
}

ReportContent ContentOf(const std::filesystem::path& example, const ProjectRun& run) {
  return {.name = example.stem().string(),
          .setup = run.setup,
          .result = run.outcome.result.value(),
          .totals = run.totals,
          .words = presentation::CatalogueWords(),
          .tell = [](const Message&) { ADD_FAILURE() << "a placeholder is not known"; }};
}

/// The level that a band has in a report; nothing where the calculation gives none.
std::optional<double> LevelOf(const ReportContent& content, std::size_t band) {
  const auto span = presentation::ShownBands(content.setup);
  if (!span || band < span->first || band > span->last) return std::nullopt;
  const double level = (*content.result.spectrum)[band];
  return level == 0.0 ? std::nullopt : std::optional(level);
}

/// What the table of bands in a Word report's text shows beside each frequency; rows are of three cells.
std::map<std::string, std::string> BandRows(const std::string& text) {
  std::map<std::string, std::string> rows;
  std::istringstream lines(text.substr(std::min(text.find(kBandsChapter), text.size())));
  std::string frequency;
  while (std::getline(lines, frequency) && frequency != "50" && frequency != "100") {
  }
  for (std::string level, reference; std::getline(lines, level) && std::getline(lines, reference);) {
    rows.emplace(frequency, level);
    if (!std::getline(lines, frequency) || frequency.empty()) break;
  }
  return rows;
}

/// The number in a cell of the sheet; nothing for an empty cell.
std::optional<double> NumberIn(const Package& excel, const std::string& name) {
  const auto cell = CellOf(excel, name);
  if (!cell) return std::nullopt;
  EXPECT_TRUE(cell->number) << name << ": " << cell->text;
  return ParseDecimal(cell->text);
}

/// Every example of a family.
class EveryCalculation : public testing::TestWithParam<Family> {
 protected:
  /// The report of `content`, opened again.
  Package Written(const char* extension, const ReportContent& content) const {
    return Package(std::ranges::find(formats_, extension, &ReportFormat::extension)->bytes(content));
  }

  template <typename Check>
  static void ForEach(Check check) {
    int checked = 0;
    for (const std::filesystem::path& example : Examples()) {
      const ProjectRun run = RunExample(example);
      if (!run.setup.calculation || RowOf(*run.setup.calculation).family != GetParam()) continue;
      SCOPED_TRACE(example.filename());
      check(ContentOf(example, run));
      ++checked;
    }
    EXPECT_GT(checked, 0);
  }

 private:
  // They go with the test: what draws must not outlive the program's main function.
  std::vector<ReportFormat> formats_ = DrawnFormats({.templates = SHIPPED "/Templates"});
};

void ExpectSound(const Package& word) {
  static const std::regex kLeft(R"(P[12]_[A-Z]|CODICE_)");
  EXPECT_THAT(FaultsOf(word), IsEmpty());
  for (const std::string& part : word.Names()) {
    if (!part.starts_with("word/") || !part.ends_with(".xml")) continue;
    EXPECT_FALSE(std::regex_search(TextOf(word, part), kLeft)) << part;
  }
}

TEST_P(EveryCalculation, WordReportIsSoundAndTellsEveryNumberOfTheResult) {
  static const std::regex kOneDecimal(R"(-?\d+,\d)");
  ForEach([this](const ReportContent& content) {
    const Package word = Written("docx", content);
    ExpectSound(word);
    const std::string text = TextOf(word, kDocument);
    std::map<std::string, std::string> shown = BandRows(text);
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
      const std::string level_text = shown[FormatShortest(acoustics::BandCentre(band))];
      if (const auto level = LevelOf(content, band)) {
        EXPECT_TRUE(std::regex_match(level_text, kOneDecimal)) << band << ": " << level_text;
        EXPECT_NEAR(ParseDecimal(level_text).value_or(0.0), *level, kHalfOfTheLastDecimal) << band;
      } else {
        EXPECT_EQ(level_text, "") << band;
      }
    }
    const elements::ResultSet& result = content.result;
    std::string line = result.lnw
                           ? "Lnw(Ci)= " + FormatFixed(*result.lnw, 1) + " (" + FixedOnPaper(*result.ci)
                           : "Rw(C; Ctr)= " + FormatFixed(*result.rw, 1);
    if (!result.lnw && result.c)
      line += " (" + FixedOnPaper(*result.c) + "; " + FixedOnPaper(*result.ctr) + ")\u202FdB\n";
    if (!result.lnw && !result.c) line = "Rw= " + FormatFixed(*result.rw, 1) + "\u202FdB\n";
    EXPECT_THAT(text, HasSubstr(line));
    if (GetParam() == Family::kFacade) return;
    EXPECT_THAT(text, HasSubstr(FormatShortest(content.totals.thickness_mm)));
    EXPECT_THAT(text, HasSubstr(FormatFixed(content.totals.surface_mass_kg_m2, 2)));
  });
}

TEST_P(EveryCalculation, ExcelReportIsSoundAndTellsEveryNumberUnrounded) {
  ForEach([this](const ReportContent& content) {
    const Package excel = Written("xlsx", content);
    EXPECT_THAT(FaultsOf(excel), IsEmpty());
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
      EXPECT_EQ(NumberIn(excel, "B" + std::to_string(37 + band)), LevelOf(content, band)) << band;
    const elements::ResultSet& result = content.result;
    EXPECT_EQ(NumberIn(excel, "D59"), result.lnw ? result.lnw : result.rw);
    EXPECT_EQ(NumberIn(excel, "B60"), result.lnw ? result.ci : result.c);
    EXPECT_EQ(NumberIn(excel, "D60"), result.lnw ? std::nullopt : result.ctr);
    if (GetParam() == Family::kFacade) return;
    EXPECT_EQ(NumberIn(excel, "H25"), content.totals.surface_mass_kg_m2);
    EXPECT_EQ(NumberIn(excel, "H27"), content.totals.thickness_mm);
  });
}

INSTANTIATE_TEST_SUITE_P(Families, EveryCalculation,
                         testing::Values(Family::kSingle, Family::kDouble, Family::kSharp, Family::kSeaSingle,
                                         Family::kSea, Family::kImpact, Family::kFacade, Family::kLining,
                                         Family::kCeiling, Family::kMultilayer));

TEST(EveryCalculationHas, AnExample) {
  std::set<elements::Calculation> met;
  for (const std::filesystem::path& example : Examples()) {
    const ProjectRun run = RunExample(example);
    EXPECT_TRUE(run.outcome.result) << example;
    if (run.setup.calculation) met.insert(*run.setup.calculation);
  }
  EXPECT_EQ(met.size(), elements::Catalogue().size());
}

}  // namespace
}  // namespace velmar::cli
