#include "cli/drawn/drawn_formats.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "cli/commands/project_run.h"
#include "foundation/failure.h"
#include "presentation/documents/package.h"
#include "presentation/texts/results_table.h"
#include "storage/materials/material_store.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

ReportContent ContentOf(const std::string& example) {
  const elements::MaterialLookup materials =
      storage::MaterialLookupIn(SHIPPED "/Databases/Database/Database.mdb");
  const ProjectRun run = RunProject(std::filesystem::path(EXAMPLES) / (example + ".drav"), materials, true);
  return {.name = example,
          .setup = run.setup,
          .result = run.outcome.result.value(),
          .totals = run.totals,
          .words = presentation::CatalogueWords()};
}

std::string BytesOf(const std::string& extension, const ReportContent& content) {
  for (const ReportFormat& format : DrawnFormats({.templates = SHIPPED "/Templates"})) {
    if (format.extension == extension) return format.bytes(content);
  }
  return {};
}

class DrawnTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    ::unsetenv("QT_QPA_PLATFORM");
  }
};

TEST_P(DrawnTest, PagesAreAPdfWithoutADisplay) {
  const std::string pdf = BytesOf("pdf", ContentOf(GetParam()));
  EXPECT_THAT(pdf, AllOf(StartsWith("%PDF"), HasSubstr("/Count "), HasSubstr("%%EOF")));
  EXPECT_GT(pdf.size(), 5000U);
}

INSTANTIATE_TEST_SUITE_P(Families, DrawnTest,
                         testing::Values("parete-forato-intonacata", "cartongesso-lastra-doppia",
                                         "facciata-nove-componenti", "calpestio-galleggiante",
                                         "controsoffitto-pendini-a-molla", "controplaccaggio-generico"));

TEST_P(DrawnTest, WordAndExcelReportsAreWrittenWithoutADisplay) {
  const ReportContent content = ContentOf(GetParam());
  const presentation::Package word(BytesOf("docx", content));
  EXPECT_TRUE(word.Has("word/media/velmar1.png")) << "a chart, a section, or both";
  EXPECT_EQ(presentation::Package(BytesOf("xlsx", content)).Has("xl/charts/chart1.xml"),
            presentation::ShownBands(content.setup).has_value());
}

TEST_F(DrawnTest, AMissingTemplateIsNamed) {
  const ReportContent content = ContentOf("facciata");
  for (const ReportFormat& format : DrawnFormats({.templates = "/nowhere"})) {
    if (format.extension != "docx" && format.extension != "xlsx") continue;
    try {
      format.bytes(content);
      ADD_FAILURE() << format.extension;
    } catch (const Failure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().front()).number, 271);
    }
  }
}

/// The texts of an SVG picture, in the order drawn.
std::vector<std::string> TextsOf(const std::string& svg) {
  pugi::xml_document document;
  const pugi::xml_parse_result parsed = document.load_buffer(svg.data(), svg.size());
  EXPECT_TRUE(parsed) << parsed.description();
  std::vector<std::string> texts;
  for (const auto& found : document.select_nodes("//text")) {
    texts.emplace_back(found.node().text().get());
    const std::size_t from = texts.back().find_first_not_of(" \n");
    if (from != std::string::npos) texts.back().erase(0, from);
  }
  return texts;
}

TEST_F(DrawnTest, ChartIsAnSvgPictureWithItsWords) {
  const std::string svg = BytesOf("svg", ContentOf("parete-forato-intonacata"));
  EXPECT_THAT(svg, HasSubstr("<title>parete-forato-intonacata</title>"));
  EXPECT_THAT(TextsOf(svg), testing::IsSupersetOf({"Frequenza [Hz]", "1000", "80", "10"}));
}

TEST_F(DrawnTest, AChartThatLeavesItsScaleIsFitted) {
  const ReportContent content = ContentOf("controsoffitto-pendini-a-molla");
  ASSERT_GT((*content.result.spectrum)[15], 90.0);
  const auto texts = TextsOf(BytesOf("svg", content));
  EXPECT_THAT(texts, testing::Contains("160"));
  EXPECT_THAT(texts, testing::Not(testing::Contains("10")));
}

TEST_F(DrawnTest, NoChartOfACalculationWithoutCurve) {
  EXPECT_THROW(BytesOf("svg", ContentOf("controplaccaggio-generico")), Failure);
}

TEST_F(DrawnTest, KeepsTheNumberFormatOfTheProcess) {
  ::setenv("LC_ALL", "it_IT.UTF-8", 1);
  std::setlocale(LC_NUMERIC, "C");
  BytesOf("pdf", ContentOf("parete-forato-intonacata"));
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_EQ(std::to_string(0.5), "0.500000");
  ::unsetenv("LC_ALL");
}

}  // namespace
}  // namespace velmar::cli
