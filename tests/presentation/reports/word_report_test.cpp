#include "presentation/reports/word_report.h"

#include <fstream>
#include <iterator>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/documents/xml_part.h"
#include "presentation/reports/word_placeholders.h"
#include "tests/presentation/documents/opened_report.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kDocument = "word/document.xml";

class WordReportTest : public testing::TestWithParam<ReportCase> {
 protected:
  ReportRecord record_ = RecordOf(GetParam());
  WrittenReport report_ = WriteWordReport(ShippedTemplate(WordTemplateName(record_.family)), record_);
  Package package_{report_.bytes};
  std::string text_ = TextOf(package_, kDocument);
};

TEST_P(WordReportTest, LeavesNoPlaceholderAndNoMarker) {
  EXPECT_THAT(report_.unknown_placeholders, IsEmpty());
  for (const char* part : {kDocument, "word/header1.xml", "word/footer1.xml"}) {
    const std::string& bytes = package_.Part(part);
    for (const char* mark : {"P1_", "P2_", "CODICE_ALLEGATO"})
      EXPECT_THAT(bytes, Not(HasSubstr(mark))) << part;
  }
}

TEST_P(WordReportTest, IsASoundPackage) { EXPECT_THAT(FaultsOf(package_), IsEmpty()); }

TEST_P(WordReportTest, TellsTheResult) {
  EXPECT_THAT(text_, HasSubstr(ForPaper(record_.result_line) + "\n"));
  if (!record_.improvement_line.empty()) {
    EXPECT_THAT(text_, HasSubstr(ForPaper(record_.improvement_line) + "\n"));
  }
  EXPECT_THAT(text_, HasSubstr(record_.theory + "\n"));
  EXPECT_THAT(text_, HasSubstr(record_.standard + "\n"));
}

TEST_P(WordReportTest, TellsEveryBandWithOneDecimal) {
  constexpr const char* kCentres[] = {"50",   "63",   "80",   "100",  "125",  "160",  "200",
                                      "250",  "315",  "400",  "500",  "630",  "800",  "1000",
                                      "1250", "1600", "2000", "2500", "3150", "4000", "5000"};
  for (std::size_t band = 0; band < record_.bands.size(); ++band) {
    if (!record_.bands[band].level_db) continue;
    const double level = (*GetParam().result.spectrum)[band];
    const std::string row = std::string(kCentres[band]) + "\n" + FormatFixed(level, 1) + "\n" +
                            record_.bands[band].reference + "\n";
    EXPECT_THAT(text_, HasSubstr("\n" + row));
  }
  EXPECT_EQ(record_.has_bands, text_.find("Andamento in frequenza") != std::string::npos);
}

TEST_P(WordReportTest, TellsEveryLayer) {
  for (const StructureRow& row : record_.structure) {
    EXPECT_THAT(text_, HasSubstr(row.kind == StructureKind::kHeading ? row.name
                                 : row.kind == StructureKind::kWords ? ForPaper(row.name)
                                                                     : FullName(row)));
    if (row.mass_kg_m2) {
      EXPECT_THAT(text_, HasSubstr(FormatFixed(*row.mass_kg_m2, 2) + "\n"));
    }
  }
}

TEST_P(WordReportTest, ShowsTheChartWithWordsForThoseWhoCannotSeeIt) {
  if (!record_.chart) return;
  EXPECT_EQ(package_.Part("word/media/velmar1.png"), record_.chart->png);
  EXPECT_THAT(package_.Part(kDocument), HasSubstr("descr=\"" + record_.chart->alternative_text));
}

TEST_P(WordReportTest, TellsTheProject) {
  EXPECT_THAT(text_, HasSubstr("Società Cooperativa Edilizia «La Quercia»"));
  EXPECT_THAT(text_, HasSubstr("Valori da verificare in opera.\x01Giunti perimetrali sigillati."));
  EXPECT_THAT(TextOf(package_, "word/header1.xml"), HasSubstr("Allegato: A3"));
}

TEST_P(WordReportTest, IsTheSameTwice) {
  EXPECT_EQ(WriteWordReport(ShippedTemplate(WordTemplateName(record_.family)), record_).bytes, report_.bytes);
}

TEST_P(WordReportTest, DrawsTheSectionAsVectorsWithABitmapBeside) {
  const std::string& document = package_.Part(kDocument);
  EXPECT_EQ(document.find("asvg:svgBlip") != std::string::npos, record_.section.wide.has_value());
  if (!record_.section.wide) return;
  EXPECT_THAT(document, HasSubstr("descr=\"" + record_.section.wide->alternative_text));
  EXPECT_THAT(package_.Part("[Content_Types].xml"), HasSubstr("image/svg+xml"));
}

TEST_P(WordReportTest, TellsEveryInputAndWhereItComesFrom) {
  EXPECT_THAT(text_, HasSubstr("Dati di calcolo\n"));
  EXPECT_THAT(text_, HasSubstr(std::string(64, 'a')));
  EXPECT_THAT(text_, HasSubstr("VELMARpro 2.1.0"));
  for (const DataTable& table : record_.data.tables) {
    for (const auto& row : table.rows) {
      for (const std::string& cell : row) EXPECT_THAT(text_, HasSubstr(CellForPaper(cell) + "\n"));
    }
  }
  for (const std::string& reference : ForPaper(record_.data, DocumentLanguage::kItalian).references)
    EXPECT_THAT(text_, HasSubstr(reference + "\n"));
}

INSTANTIATE_TEST_SUITE_P(Families, WordReportTest, testing::ValuesIn(ReportCases()),
                         [](const auto& test) { return test.param.name; });

TEST(WordReport, TellsHowACeilingHangsAndOfALiningNothing) {
  for (const ReportCase& report_case : ReportCases()) {
    const ReportRecord record = RecordOf(report_case);
    const WrittenReport report = WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record);
    const std::string text = TextOf(Package(report.bytes), kDocument);
    const bool ceiling = report_case.name == "Ceiling";
    EXPECT_EQ(text.find("Pendino ad attacco semplice") != std::string::npos, ceiling) << report_case.name;
    EXPECT_EQ(text.find("Tipo di collegamento") != std::string::npos, ceiling) << report_case.name;
  }
}

TEST(WordReport, KnowsNoPlaceholderThatTheManualDoesNotTell) {
  std::ifstream file(VELMAR_MANUAL);
  const std::string manual{std::istreambuf_iterator<char>(file), {}};
  std::set<std::string> known;
  for (const ReportCase& report_case : ReportCases()) {
    const ReportRecord record = RecordOf(report_case);
    for (const auto& [name, value] : TextPlaceholders(record)) known.insert(name);
    for (const RowPattern& pattern : {StructurePattern(record), InformationPattern(record)}) {
      for (const PatternRow& row : pattern.rows) {
        for (const auto& [name, value] : row.values) known.insert(name);
      }
    }
  }
  for (const std::string& name : known) {
    const bool numbered = name.starts_with("P1_RIS") || name.starts_with("P1_RIF");
    const bool band = numbered && name.find_first_of("0123456789", 6) == 6;
    EXPECT_THAT(manual, HasSubstr("`[" + (band ? name.substr(0, 6) + "20" : name) + "]`"));
  }
}

/// Words that show their language and can be told from names and numbers.
Words WordsOf(const std::string& language) {
  return [language](MessageRow row) { return language + std::to_string(row.number) + "."; };
}

TEST(WordReport, InBothLanguagesTellsTheWordsOfBothInEveryPlaceholder) {
  for (const ReportCase& report_case : ReportCases()) {
    const auto record_in = [&](const std::string& language) {
      return ReportRecordOf(report_case.setup, report_case.result, report_case.totals, WordsOf(language));
    };
    const Placeholders both = TextPlaceholders(InBoth(record_in("it"), record_in("en")));
    for (const auto& [name, value] : TextPlaceholders(record_in("it"))) {
      if (value.find("it") == std::string::npos) continue;
      EXPECT_THAT(both.at(name), HasSubstr("en")) << report_case.name << ", " << name;
    }
  }
}

TEST(WordReport, HeadsNothingThatIsEmpty) {
  ReportCase brick = ReportCases().front();
  brick.setup.information = {};
  const ReportRecord record = RecordOf(brick);
  const Package package(WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes);
  EXPECT_THAT(TextOf(package, kDocument), Not(HasSubstr("Note\n")));
  EXPECT_THAT(TextOf(package, "word/header1.xml"), Not(HasSubstr("Allegato")));
}

TEST(WordReport, TellsTheSourceOfALayerOnceAndPointsToIt) {
  elements::Setup setup = ReportCases().front().setup;
  setup.leaf1.count = 5;
  setup.leaf1.rows[2] = setup.leaf1.rows[0];
  samples::SetRow(setup.leaf1.rows[3], "Sughero", 30.0, 150.0);
  setup.leaf1.rows[4] = setup.leaf1.rows[3];
  Provenance provenance;
  provenance.sources.structural = [](const auto& one) { return "Tabella 12 del catalogo: " + one.name; };
  const CalculationData data = CalculationDataOf(setup, CatalogueWords(), provenance);
  std::vector<std::string> told;
  for (const auto& row : data.tables.at(0).rows) told.push_back(row.back());
  // A short one is said again.
  EXPECT_THAT(told,
              testing::ElementsAre("Tabella 12 del catalogo: Intonaco di gesso",
                                   "Tabella 12 del catalogo: Laterizio forato leggero 8-12 cm", "= N. 1",
                                   "Tabella 12 del catalogo: Sughero", "Tabella 12 del catalogo: Sughero"));
}

TEST(WordReport, TellsTheDimensionsThatTheCalculationReads) {
  ReportRecord record = RecordOf(ReportCases().front());
  record.width = "4";
  record.height = "2,7";
  record.height_caption = "Altezza (m):";
  EXPECT_EQ(TextPlaceholders(record)["P1_DIMENSIONI"], "4 × 2,7\u202Fm");
  record.width.clear();
  EXPECT_EQ(TextPlaceholders(record)["P1_DIMENSIONI"], "Altezza (m): 2,7");
  record.height.clear();
  EXPECT_EQ(TextPlaceholders(record)["P1_DIMENSIONI"], "–");
}

TEST(WordReport, IsSignedUnlessItIsAChapter) {
  for (const ReportCase& report_case : ReportCases()) {
    ReportRecord record = RecordOf(report_case);
    const auto text = [&] {
      return TextOf(Package(WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes),
                    kDocument);
    };
    EXPECT_THAT(text(), HasSubstr("Luogo e data\n")) << report_case.name;
    record.signs = false;
    EXPECT_THAT(text(), Not(HasSubstr("Luogo e data"))) << report_case.name;
    EXPECT_THAT(text(), HasSubstr("Dati di calcolo\n")) << report_case.name;
  }
}

TEST(WordReport, TheInputsFollowTheSignatureAndTheirFirstTableStaysWhole) {
  const ReportRecord record = RecordOf(ReportCases().front());
  const Package package(WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes);
  const pugi::xml_document document = ParseXml(package.Part(kDocument), kDocument);
  EXPECT_FALSE(document.find_node(
      [](pugi::xml_node node) { return std::string_view(node.name()) == "w:pageBreakBefore"; }));
  const pugi::xml_node body = document.document_element().child("w:body");
  pugi::xml_node table;
  for (const pugi::xml_node node : body.children("w:p")) {
    if (std::string_view(node.child("w:r").child("w:t").text().get()) == "Dati di calcolo")
      table = node.next_sibling("w:tbl");
  }
  ASSERT_TRUE(table);
  // What stands before it does not go along to the next page.
  for (const pugi::xml_node node : body.children("w:p")) {
    if (std::string_view(node.child("w:r").child("w:t").text().get()) == "Note: ") {
      EXPECT_FALSE(node.child("w:pPr").child("w:keepNext"));
    }
  }
  // It has no heads that a first row would be set as.
  EXPECT_STREQ(table.child("w:tblPr").child("w:tblLook").attribute("w:firstRow").value(), "0");
  for (const pugi::xml_node row : table.children("w:tr")) {
    for (const pugi::xml_node cell : row.children("w:tc"))
      EXPECT_TRUE(cell.child("w:p").child("w:pPr").child("w:keepNext"));
  }
}

TEST(WordReport, TellsTheRangesThatWereLeft) {
  ReportCase brick = ReportCases().front();
  brick.setup.calculation = elements::Calculation::kSingleWallBrick;
  brick.result.ranges_left.push_back({.check = MessagePiece(kBrickMassRangeRow),
                                      .value = 504.0,
                                      .lowest = 80.0,
                                      .highest = 400.0,
                                      .unit = "kg/m²",
                                      .quantity = kRangeMassRow});
  ReportRecord record = RecordOf(brick);
  AddConfidence(record, {{std::string("Rw 52 dB, nessuna stima")}}, CatalogueWords());
  EXPECT_THAT(TextOf(Package(WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record).bytes),
                     kDocument),
              HasSubstr("relazione [1]: m' = 504\u202Fkg/m² (da 80 a 400). Calcolo proseguito per scelta "
                        "dell'utente.\001"
                        "Rw 52\u202FdB, nessuna stima\n"));
}

TEST(WordReport, TellsWhereTheRatingIsNotThatOfTheCurve) {
  ReportCase brick = ReportCases().front();
  EXPECT_EQ(RecordOf(brick).rating_note, "");
  brick.result.relation_rating = 50.4;
  brick.result.rw = *brick.result.rw - 1.0;
  const ReportRecord record = RecordOf(brick);
  EXPECT_THAT(record.rating_note, testing::EndsWith(" 51,0 dB."));
}

TEST(WordReport, FillsAHundredThousandPlaceholdersOfAParagraph) {
  Package package(ShippedTemplate("Template_calcolo_drav_calc.docx"));
  std::string document = package.Part(kDocument);
  std::string many;
  for (int i = 0; i < 100000; ++i) many += "[P1_RIF10] ";
  document.replace(document.find("[P1_TITOLO]"), 11, many);
  package.Put(kDocument, document);
  const ReportRecord record = RecordOf(ReportCases().front());
  const std::string text = TextOf(Package(WriteWordReport(package.Bytes(), record).bytes), kDocument);
  std::string expected;
  for (int i = 0; i < 3; ++i) expected += record.bands[10].reference + " ";
  EXPECT_TRUE(text.starts_with(expected)) << text.substr(0, 40);
  EXPECT_EQ(text.find("P1_RIF10"), std::string::npos);
}

TEST(WordReport, KeepsHostileNamesAsText) {
  ReportCase brick = ReportCases().front();
  brick.setup.leaf1.rows[0].slot.name = "A & B <b> \"c\" [P1_NOTE] \x07 \xff è";
  const ReportRecord record = RecordOf(brick);
  const WrittenReport report = WriteWordReport(ShippedTemplate(WordTemplateName(record.family)), record);
  const Package package(report.bytes);
  EXPECT_THAT(FaultsOf(package), IsEmpty());
  EXPECT_THAT(TextOf(package, kDocument), HasSubstr("A & B <b> \"c\" [P1_NOTE]   è\n"));
  EXPECT_THAT(report.unknown_placeholders, IsEmpty());
}

}  // namespace
}  // namespace velmar::presentation
