#include "presentation/schedule/schedule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "elements/requirement.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::presentation {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const ReportCase& CaseOf(const std::vector<ReportCase>& cases, const std::string& name) {
  return *std::ranges::find(cases, name, &ReportCase::name);
}

ScheduleElement ElementOf(const std::string& name, std::optional<double> required = std::nullopt) {
  static const std::vector<ReportCase> kCases = ReportCases();
  ReportCase chosen = CaseOf(kCases, name);
  if (required) elements::SetRequirement(chosen.setup, required);
  chosen.setup.information[elements::kAttachmentRow].value.clear();
  return ScheduleElementOf(chosen.setup, chosen.result, chosen.totals, CatalogueWords(), 3);
}

TEST(Schedule, AWallShowsWhatItsResultSays) {
  ScheduleElement element = ElementOf("BrickWall", 60.0);
  element.title = "Divisorio";
  EXPECT_THAT(ScheduleCells(element),
              ElementsAre("3", HasSubstr("Divisorio\nParete singola"), "–", "150", "141,0", "51,0", "\u22121",
                          "\u22123", "–", "–", "–", "Rw ≥ 60\u202FdB", "mancano 9"));
}

TEST(Schedule, AFloorStandsUnderTheImpactLevel) {
  const std::vector<std::string> cells = ScheduleCells(ElementOf("ImpactFloor", 63.0));
  EXPECT_EQ(cells[5], "–");
  EXPECT_EQ(cells[8], "57,0");
  EXPECT_EQ(cells[9], "\u22123");
  EXPECT_EQ(cells[10], "24,3");
  EXPECT_EQ(cells[11], ForPaper("Ln,w ≤ 63 dB"));
  EXPECT_EQ(cells[12], "rispettato, margine 6");
}

// Its terms stand against the rating of its base: beside Rw they would be taken for the element's.
TEST(Schedule, ALiningTellsTheRatingsOfWhatItMakes) {
  const std::vector<std::string> cells = ScheduleCells(ElementOf("Lining"));
  EXPECT_THAT(cells[1], HasSubstr("Elemento risultante"));
  EXPECT_EQ(cells[6], "–");
  EXPECT_EQ(cells[10], "9,0");
}

TEST(Schedule, AResultOutsideItsRangeCarriesAMark) {
  ScheduleElement element = ElementOf("BrickWall");
  element.outside_range = true;
  EXPECT_EQ(ScheduleCells(element)[5], "51,0 *");
}

TEST(Schedule, ProjectsAreCalledByTheirFilesUnlessEachHasAName) {
  std::vector<ScheduleElement> elements(2);
  elements[0].file = "muro.drav";
  elements[1].file = "solaio.drav";
  NameElements(elements, {"Scuola", "Scuola"});
  EXPECT_EQ(elements[1].title, "solaio");
  NameElements(elements, {"Divisorio", "Solaio del piano primo"});
  EXPECT_EQ(elements[1].title, "Solaio del piano primo");
}

TEST(Schedule, WhatDiffersIsNotOnTheCover) {
  EXPECT_EQ(SharedText({"Comune", "Comune"}), "Comune");
  EXPECT_EQ(SharedText({"Comune", "Impresa"}), "");
  EXPECT_EQ(SharedText({}), "");
}

}  // namespace
}  // namespace velmar::presentation
