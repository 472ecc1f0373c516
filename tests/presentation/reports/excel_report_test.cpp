#include "presentation/reports/excel_report.h"

#include <charconv>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/decimal.h"
#include "presentation/documents/workbook.h"
#include "presentation/documents/xml_part.h"
#include "presentation/reports/layer_table.h"
#include "tests/presentation/documents/opened_report.h"

namespace velmar::presentation {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

double NumberIn(const Package& package, const std::string& name) {
  const auto cell = CellOf(package, name);
  double value = NAN;
  if (cell && cell->number) std::from_chars(cell->text.data(), cell->text.data() + cell->text.size(), value);
  return value;
}

std::string TextIn(const Package& package, const std::string& name) {
  const auto cell = CellOf(package, name);
  return cell && !cell->number ? cell->text : std::string();
}

class ExcelReportTest : public testing::TestWithParam<ReportCase> {
 protected:
  ReportRecord record_ = RecordOf(GetParam());
  std::string bytes_ = WriteExcelReport(ShippedTemplate(kExcelTemplateName), record_);
  Package package_{bytes_};
};

TEST_P(ExcelReportTest, IsASoundPackage) { EXPECT_THAT(FaultsOf(package_), IsEmpty()); }

TEST_P(ExcelReportTest, TellsEveryBandAsItWasCalculated) {
  for (std::size_t band = 0; band < record_.bands.size(); ++band) {
    const std::string name = "B" + std::to_string(37 + band);
    if (record_.bands[band].level_db) {
      EXPECT_EQ(NumberIn(package_, name), (*GetParam().result.spectrum)[band]) << name;
    } else {
      EXPECT_FALSE(CellOf(package_, name)) << name;
    }
  }
  EXPECT_EQ(TextIn(package_, "B36"), record_.has_bands ? record_.band_heading : "");
  EXPECT_EQ(TextIn(package_, "C40"), record_.generic_note);
  EXPECT_EQ(record_.generic_note.empty(), record_.has_bands);
}

TEST_P(ExcelReportTest, TellsTheRatings) {
  const elements::ResultSet& result = GetParam().result;
  const bool impact = record_.family == elements::Family::kImpact;
  EXPECT_EQ(TextIn(package_, "B59"), impact ? "Ln,w" : "Rw");
  EXPECT_EQ(NumberIn(package_, "D59"), impact ? *result.lnw : *result.rw);
  if (impact) {
    EXPECT_EQ(TextIn(package_, "A60"), "Ci=");
    EXPECT_EQ(NumberIn(package_, "B60"), *result.ci);
  } else if (result.c) {
    EXPECT_EQ(TextIn(package_, "A60"), "C=");
    EXPECT_EQ(NumberIn(package_, "B60"), *result.c);
    EXPECT_EQ(TextIn(package_, "C60"), "Ctr=");
    EXPECT_EQ(NumberIn(package_, "D60"), *result.ctr);
  } else {
    EXPECT_FALSE(CellOf(package_, "A60"));
  }
}

TEST_P(ExcelReportTest, TellsWhatItIs) {
  EXPECT_EQ(TextIn(package_, "A1"), record_.title);
  EXPECT_EQ(TextIn(package_, "D4"), record_.kind_of_element);
  EXPECT_EQ(TextIn(package_, "D5"), record_.theory);
  EXPECT_EQ(TextIn(package_, "H12"), record_.family == elements::Family::kFacade ? "" : "Stratigrafia");
  if (record_.totals) {
    EXPECT_EQ(NumberIn(package_, "H27"), record_.totals->thickness_mm);
  }
  EXPECT_EQ(NumberIn(package_, "H25"), *record_.surface_mass_kg_m2);
  EXPECT_EQ(TextIn(package_, "H27"), record_.totals ? "" : "–");
  EXPECT_EQ(record_.area.empty(), TextIn(package_, "I58") == "–");
  EXPECT_EQ(TextIn(package_, "D7"), ForPaper(record_.description));
}

TEST_P(ExcelReportTest, ListsTheLayersAboveTheBands) {
  double mass = 0.0;
  double listed = 0.0;
  std::string names;
  for (int row = kFirstLayerRow; row <= kLastLayerRow; ++row) {
    names += TextIn(package_, "A" + std::to_string(row)) + "\n";
    const double number = NumberIn(package_, "G" + std::to_string(row));
    if (!std::isnan(number)) listed += number;
  }
  // What finds no room goes on in a sheet of its own; no name shares a cell.
  const bool goes_on = record_.structure.size() > kLastLayerRow - kFirstLayerRow + 1;
  EXPECT_EQ(names.find(record_.more_layers) != std::string::npos, goes_on);
  EXPECT_THAT(names, testing::Not(HasSubstr("\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n")));
  if (goes_on) return;
  for (const StructureRow& row : record_.structure) {
    mass += row.mass_kg_m2.value_or(0.0);
    const bool renamed = row.name == record_.resilient_name;
    EXPECT_THAT(names, HasSubstr(renamed                             ? record_.resilient_heading
                                 : row.kind == StructureKind::kWords ? ForPaper(row.name)
                                                                     : FullName(row)));
  }
  EXPECT_NEAR(listed, mass, 1e-9);
  EXPECT_FALSE(CellOf(package_, "A35"));
}

TEST_P(ExcelReportTest, IsTheSameTwice) {
  EXPECT_EQ(WriteExcelReport(ShippedTemplate(kExcelTemplateName), record_), bytes_);
}

TEST_P(ExcelReportTest, LeavesTheRestOfTheTemplate) {
  const Package original(ShippedTemplate(kExcelTemplateName));
  for (const std::string& name : original.Names()) {
    // The lists of parts tell of the sheets and pictures that are added, the chart loses curves without
    // values.
    if (name == "xl/worksheets/sheet1.xml" || name == "xl/styles.xml" || name == "[Content_Types].xml" ||
        name == "xl/workbook.xml" || name == "_rels/.rels" || name == "xl/_rels/workbook.xml.rels" ||
        name.starts_with("xl/drawings/") || name.starts_with("xl/charts/"))
      continue;
    EXPECT_EQ(package_.Part(name), original.Part(name)) << name;
  }
}

TEST_P(ExcelReportTest, TellsEveryInputOnASheetOfItsOwn) {
  EXPECT_THAT(package_.Part("xl/workbook.xml"), HasSubstr("Dati di calcolo"));
  std::string sheets;
  for (const std::string& name : package_.Names()) {
    if (name.starts_with("xl/worksheets/velmar")) sheets += package_.Part(name);
  }
  EXPECT_THAT(sheets, HasSubstr(std::string(64, 'a')));
  EXPECT_THAT(sheets, HasSubstr("VELMARpro 2.1.0"));
  EXPECT_THAT(sheets, HasSubstr(GetParam().name + ".drav"));
  EXPECT_THAT(sheets, HasSubstr("ISO 717-"));
}

TEST_P(ExcelReportTest, DrawsTheSectionBesideTheLayersOrOnASheet) {
  const std::string& drawing = package_.Part("xl/drawings/drawing1.xml");
  EXPECT_EQ(drawing.find("xdr:pic") != std::string::npos, record_.section.small.has_value());
  EXPECT_EQ(drawing.find("asvg:svgBlip") != std::string::npos, record_.section.small.has_value());
  EXPECT_EQ(package_.Has("xl/media/velmar1.svg"), record_.section.wide.has_value());
  const bool elsewhere = record_.section.wide && !record_.section.small;
  EXPECT_EQ(TextIn(package_, "H13"), elsewhere ? "Sezione: foglio \"Sezione\"" : "");
  if (!record_.section.small) return;
  // The picture begins in H13 and ends above row 24: the heading and ten rows of at least 15 points.
  EXPECT_THAT(drawing, HasSubstr("<xdr:col>7</xdr:col>"));
  EXPECT_THAT(drawing, HasSubstr("<xdr:row>12</xdr:row>"));
}

TEST_P(ExcelReportTest, HasAChartOnlyWhereThereAreBands) {
  EXPECT_EQ(package_.Has("xl/charts/chart1.xml"), record_.has_bands);
  if (!record_.has_bands) return;
  EXPECT_EQ(NumberIn(package_, "C47"), *ParseDecimal(record_.bands[10].reference));
  const bool lining = !record_.base_heading.empty();
  EXPECT_EQ(package_.Part("xl/charts/chart1.xml").find("$D$37") != std::string::npos, lining);
  if (lining) {
    EXPECT_EQ(NumberIn(package_, "D47"), *ParseDecimal(record_.bands[10].base));
  }
}

TEST_P(ExcelReportTest, TellsTheProject) {
  EXPECT_EQ(TextIn(package_, "A8"), record_.information[0].caption);
  EXPECT_EQ(TextIn(package_, "C8"), record_.information[0].value);
}

INSTANTIATE_TEST_SUITE_P(Families, ExcelReportTest, testing::ValuesIn(ReportCases()),
                         [](const auto& test) { return test.param.name; });

TEST(ExcelReport, HeadsOfBandsInTwoLanguagesAreNotClipped) {
  ReportRecord record = RecordOf(ReportCases().front());
  record.reference_heading = "Rif [dB] / Ref [dB]";
  const Package package(WriteExcelReport(ShippedTemplate(kExcelTemplateName), record));
  const pugi::xml_document sheet =
      ParseXml(package.Part("xl/worksheets/sheet1.xml"), "xl/worksheets/sheet1.xml");
  const pugi::xml_node row =
      sheet.child("worksheet").child("sheetData").find_child_by_attribute("row", "r", "36");
  EXPECT_GT(row.attribute("ht").as_double(), 30.0);
}

// The logo lies over the cells from H1 on.
TEST(ExcelReport, ItsTitleEndsBeforeTheLogo) {
  const Package package(
      WriteExcelReport(ShippedTemplate(kExcelTemplateName), RecordOf(ReportCases().front())));
  const std::string& sheet = package.Part("xl/worksheets/sheet1.xml");
  EXPECT_THAT(sheet, HasSubstr("<mergeCell ref=\"A1:G1\"/>"));
}

TEST(Workbook, KeepsTextThatLooksLikeAFormulaAsText) {
  Workbook workbook(ShippedTemplate(kExcelTemplateName));
  workbook.Sheet().SetText({2, 2}, "=1+1 & <b>\x07");
  const Package package(workbook.Bytes());
  EXPECT_EQ(TextIn(package, "B2"), "=1+1 & <b>");
  EXPECT_THAT(FaultsOf(package), IsEmpty());
}

/// A user's template: a formula stands where a value goes, the order of calculation is stored.
TEST(Workbook, ForgetsTheOldOrderOfCalculationWhenAFormulaGoes) {
  Package package(ShippedTemplate(kExcelTemplateName));
  const auto replace = [&](const std::string& part, const std::string& from, const std::string& to) {
    std::string bytes = package.Part(part);
    ASSERT_NE(bytes.find(from), std::string::npos) << part;
    bytes.replace(bytes.find(from), from.size(), to);
    package.Put(part, bytes);
  };
  replace("xl/worksheets/sheet1.xml", R"(<c r="D4" s="3"/>)", R"(<c r="D4" s="3"><f>1+1</f><v>2</v></c>)");
  package.Put("xl/calcChain.xml", "<calcChain/>");
  replace("xl/_rels/workbook.xml.rels", "</Relationships>",
          R"(<Relationship Id="rId9" Type="http://x/calcChain" Target="calcChain.xml"/></Relationships>)");
  replace("[Content_Types].xml", "</Types>",
          R"(<Override PartName="/xl/calcChain.xml" ContentType="c"/></Types>)");
  const Package written(WriteExcelReport(package.Bytes(), RecordOf(ReportCases().front())));
  EXPECT_FALSE(written.Has("xl/calcChain.xml"));
  EXPECT_THAT(FaultsOf(written), IsEmpty());
  const std::string& workbook = written.Part("xl/workbook.xml");
  EXPECT_THAT(workbook, HasSubstr("</definedNames><calcPr fullCalcOnLoad=\"1\""));
  EXPECT_THAT(written.Part("[Content_Types].xml"), testing::Not(HasSubstr("calcChain")));
}

}  // namespace
}  // namespace velmar::presentation
