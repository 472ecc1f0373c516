#include "presentation/schedule/excel_schedule.h"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/utf8.h"
#include "presentation/documents/package.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/xml_part.h"
#include "presentation/reports/excel_report.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::presentation {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// Name and part of every sheet, in the order of the tabs.
std::vector<std::pair<std::string, std::string>> SheetsOf(const Package& package) {
  std::vector<std::pair<std::string, std::string>> sheets;
  const pugi::xml_document workbook = ParseXml(package.Part("xl/workbook.xml"), "workbook");
  for (const pugi::xml_node node : workbook.child("workbook").child("sheets").children("sheet")) {
    for (const Relationship& link : RelationshipsOf(package, "xl/workbook.xml")) {
      if (link.id == node.attribute("r:id").value())
        sheets.emplace_back(node.attribute("name").value(), link.target);
    }
  }
  return sheets;
}

std::string CellIn(const Package& package, const std::string& part, const std::string& name) {
  const pugi::xml_document sheet = ParseXml(package.Part(part), part);
  const pugi::xml_node cell =
      sheet.find_node([&](pugi::xml_node node) { return name == node.attribute("r").value(); });
  const std::string text = cell.child("is").child("t").text().get();
  return text.empty() ? cell.child("v").text().get() : text;
}

std::vector<ReportCase> Cases() {
  std::vector<ReportCase> cases = ReportCases();
  // Two that are called alike but for case, and one whose name no sheet can have.
  cases[0].setup.information[elements::kAttachmentRow].value = "P/01";
  cases[1].setup.information[elements::kAttachmentRow].value = "p/01";
  return cases;
}

Package AllCases() {
  const Words words = CatalogueWords();
  Schedule schedule{.cover = {.title = "Abaco"}, .signer = {.name = "ing. Anna Bassi"}};
  std::vector<ExcelChapter> chapters;
  for (const ReportCase& one : Cases()) {
    schedule.elements.push_back(
        ScheduleElementOf(one.setup, one.result, one.totals, words, schedule.elements.size() + 1));
    ReportRecord record = RecordOf(one);
    record.letterhead.signer = "ing. Anna Bassi";
    record.signs = false;
    chapters.push_back({schedule.elements.back().code, std::move(record)});
  }
  return Package(WriteExcelSchedule(ShippedTemplate(kExcelTemplateName), schedule, chapters, words));
}

TEST(ExcelSchedule, SheetsStandBehindTheTableUnderNamesOfTheirOwn) {
  const Package package = AllCases();
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  const auto sheets = SheetsOf(package);
  EXPECT_EQ(sheets.front().first, "Quadro degli elementi");
  EXPECT_EQ(sheets[1].first, "P-01");
  std::set<std::string> names;
  std::size_t selected = 0;
  for (const auto& [name, part] : sheets) {
    EXPECT_TRUE(names.insert(FoldCase(name)).second) << name;
    EXPECT_LE(CountCharacters(name), 31U);
    EXPECT_EQ(name.find_first_of("[]:*?/\\"), std::string::npos) << name;
    if (package.Part(part).find("tabSelected") != std::string::npos) ++selected;
  }
  EXPECT_EQ(selected, 1U);
}

TEST(ExcelSchedule, EverySheetHoldsItsElementAndItsChartReadsIt) {
  const Package package = AllCases();
  const auto sheets = SheetsOf(package);
  std::size_t at = 1;
  for (const ReportCase& one : Cases()) {
    const auto& [name, part] = sheets[at];
    const ReportRecord record = RecordOf(one);
    EXPECT_EQ(CellIn(package, part, "D6"), record.element_type) << one.name;
    if (record.bands[7].level_db) {
      EXPECT_EQ(std::stod(CellIn(package, part, "B44")), *record.bands[7].level_db) << one.name;
    }
    for (const std::string& drawing : TargetsOf(package, part, "drawing")) {
      for (const std::string& chart : TargetsOf(package, drawing, "chart")) {
        EXPECT_THAT(package.Part(chart), HasSubstr("'" + name + "'!$B$37:$B$57")) << one.name;
        EXPECT_EQ(package.Part(chart).find("Calcolo!"), std::string::npos);
      }
    }
    // Past the sheets beside it.
    for (++at;
         at < sheets.size() && sheets[at].first.starts_with(name + " ") && !sheets[at].first.ends_with(" 2");)
      ++at;
  }
  EXPECT_EQ(at, sheets.size());
}

TEST(ExcelSchedule, TheTableLeadsToTheSheets) {
  const Package package = AllCases();
  const auto sheets = SheetsOf(package);
  std::set<std::string> names;
  for (const auto& [name, part] : sheets) names.insert("'" + name + "'!A1");
  const pugi::xml_document front = ParseXml(package.Part(sheets.front().second), "front");
  std::size_t links = 0;
  for (const pugi::xml_node link : front.child("worksheet").child("hyperlinks").children()) {
    EXPECT_TRUE(names.contains(link.attribute("location").value())) << link.attribute("location").value();
    ++links;
  }
  EXPECT_EQ(links, Cases().size());
}

TEST(ExcelSchedule, EveryPrintAreaNamesItsOwnSheet) {
  const Package package = AllCases();
  const auto sheets = SheetsOf(package);
  const pugi::xml_document workbook = ParseXml(package.Part("xl/workbook.xml"), "workbook");
  std::size_t areas = 0;
  for (const pugi::xml_node name : workbook.child("workbook").child("definedNames").children()) {
    const std::size_t sheet = name.attribute("localSheetId").as_uint();
    ASSERT_LT(sheet, sheets.size());
    if (std::string_view(name.attribute("name").value()) != "_xlnm.Print_Area") continue;
    EXPECT_EQ(std::string(name.text().get()), "'" + sheets[sheet].first + "'!$A$1:$J$61");
    ++areas;
  }
  EXPECT_EQ(areas, Cases().size());
}

TEST(ExcelSchedule, TheHeadsStandOnEveryPrintedPage) {
  const Package package = AllCases();
  const pugi::xml_document workbook = ParseXml(package.Part("xl/workbook.xml"), "workbook");
  const pugi::xml_node names = workbook.child("workbook").child("definedNames");
  const pugi::xml_node titles = names.find_child_by_attribute("name", "_xlnm.Print_Titles");
  EXPECT_STREQ(titles.attribute("localSheetId").value(), "0");
  EXPECT_STREQ(titles.text().get(), "'Quadro degli elementi'!$3:$3");
  EXPECT_EQ(CellIn(package, SheetsOf(package).front().second, "A3"), "Codice");
}

TEST(ExcelSchedule, IsSignedOnceBelowTheTable) {
  const Package package = AllCases();
  const auto sheets = SheetsOf(package);
  const std::string signature = "A" + std::to_string(3 + Cases().size() + 2);
  EXPECT_EQ(CellIn(package, sheets.front().second, signature), "Il tecnico");
  EXPECT_EQ(CellIn(package, sheets.front().second, "B" + signature.substr(1)), "ing. Anna Bassi");
  for (std::size_t at = 1; at < sheets.size(); ++at)
    EXPECT_EQ(CellIn(package, sheets[at].second, "H62"), "") << sheets[at].first;
}

}  // namespace
}  // namespace velmar::presentation
