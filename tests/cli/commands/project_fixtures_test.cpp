#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/commands/project_run.h"
#include "storage/configuration/configuration.h"
#include "storage/materials/material_store.h"

namespace velmar::cli {
namespace {

using nlohmann::json;

const std::filesystem::path kFolder = PROJECT_FIXTURES;

json Expected() {
  std::ifstream file(kFolder / "expected.json");
  return json::parse(file);
}

/// How far a quantity may lie from its expected value.
/// Whole ratings agree exactly. What comes out of a relation or an improvement is kept in single precision,
/// 24 bits or six digits. All else is double precision throughout: two transcriptions of a formula differ in
/// the order of their sums, which a spectrum of some thousand summands feels most.
double Tolerance(const std::string& key, double value) {
  static const std::set<std::string> kWhole = {"X", "Rw", "C", "Ctr", "Lnw", "Ci"};
  static const std::set<std::string> kSingle = {"RwRelation", "DeltaRw", "DeltaRwEstimate"};
  if (kWhole.contains(key)) return 0.0;
  if (kSingle.contains(key)) return 1e-5;
  return 1e-9 * std::max(1.0, std::abs(value));
}

constexpr double kSpectrumToleranceDb = 1e-6;

json OutcomeOf(const json& one) {
  static const elements::MaterialLookup kMaterials =
      storage::MaterialLookupIn(std::filesystem::path(SHIPPED) / storage::kMaterialDatabase);
  const ProjectRun run =
      RunProject(kFolder / one.at("file").get<std::string>(), kMaterials, one.at("answer") == "yes");
  return OutcomeJson(run.texts, run.outcome, {}, run.totals, [](MessageRow) { return std::string(); });
}

/// The questions that were shown: rows of the catalogue, or the words of the one that has no row.
json QuestionsOf(const json& outcome) {
  json questions = json::array();
  for (const json& line : outcome.at("messages"))
    questions.push_back(line.at("row") == 0 ? line.at("text") : line.at("row"));
  return questions;
}

void ExpectQuantity(const std::string& key, const json& expected, const json& outcome) {
  if (!outcome.contains(key)) {
    EXPECT_TRUE(key == "DeltaRw" && expected == 0.0) << key << " is absent";
    return;
  }
  const double value = expected.get<double>();
  EXPECT_NEAR(outcome.at(key).get<double>(), value, Tolerance(key, value)) << key;
}

void ExpectSpectrum(const json& expected, const json& outcome) {
  ASSERT_EQ(outcome.contains("spectrum") ? outcome.at("spectrum").size() : 0U, expected.size());
  for (std::size_t band = 0; band < expected.size(); ++band) {
    EXPECT_NEAR(outcome.at("spectrum").at(band).get<double>(), expected.at(band).get<double>(),
                kSpectrumToleranceDb)
        << "band " << band;
  }
}

void ExpectOutcome(const json& expected, const json& outcome) {
  EXPECT_EQ(outcome.at("status"), expected.at("status"));
  EXPECT_EQ(QuestionsOf(outcome), expected.at("messages"));
  for (const auto& [key, value] : expected.items()) {
    if (key == "spectrum") {
      ExpectSpectrum(value, outcome);
    } else if (value.is_number()) {
      ExpectQuantity(key, value, outcome);
    }
  }
}

/// Every eighth project, so that the tests share the cores.
class ProjectFixturesTest : public testing::TestWithParam<std::size_t> {
 protected:
  static constexpr std::size_t kShares = 8;
};

TEST_P(ProjectFixturesTest, GiveTheOutcomesOfAnIndependentTranscription) {
  const json cases = Expected().at("cases");
  std::size_t looked = 0;
  for (std::size_t i = GetParam(); i < cases.size(); i += kShares, ++looked) {
    SCOPED_TRACE(cases[i].at("file").get<std::string>() + ", " + cases[i].at("what").get<std::string>());
    ExpectOutcome(cases[i].at("outcome"), OutcomeOf(cases[i]));
  }
  EXPECT_GE(looked, 70U);
}

INSTANTIATE_TEST_SUITE_P(Shares, ProjectFixturesTest, testing::Range<std::size_t>(0, 8));

TEST(ProjectFixtures, AreAllExpectedAndCoverEveryCalculation) {
  std::set<std::string> expected;
  std::set<std::string> variants;
  const json cases = Expected().at("cases");
  for (const json& one : cases) {
    expected.insert(one.at("file"));
    const std::string name = one.at("file");
    variants.insert(name.substr(0, name.rfind('_')));
  }
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".drav") found.insert(entry.path().filename().string());
  }
  EXPECT_EQ(found, expected);
  // The free list of layers stands on the outputs of another program: tests/calculation/multilayer_test.cpp.
  EXPECT_EQ(variants.size(), elements::kCalculationCount - 1);
}

}  // namespace
}  // namespace velmar::cli
