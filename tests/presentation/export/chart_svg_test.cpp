#include "presentation/export/chart_svg.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;

CurveChart BrickChart() {
  return CurveChartOf(samples::PlasteredBrickWall(), samples::Result(), CatalogueWords()).value();
}

/// The picture read again; a fault in it fails the test.
struct Svg {
  explicit Svg(const CurveChart& chart, const std::string& title = "Parete") : bytes(ChartSvg(chart, title)) {
    const pugi::xml_parse_result parsed = xml.load_buffer(bytes.data(), bytes.size(), pugi::parse_full);
    EXPECT_TRUE(parsed) << parsed.description();
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& found : xml.select_nodes("//text")) {
      std::string text = found.node().text().get();
      text.erase(0, text.find_first_not_of(" \n"));
      texts.push_back(text);
    }
    return texts;
  }
  std::size_t Lines(const std::string& colour) const {
    return xml.select_nodes(("//g[@stroke='" + colour + "']/polyline").c_str()).size() +
           xml.select_nodes(("//g[@stroke='" + colour + "']/path").c_str()).size();
  }

  std::string bytes;
  pugi::xml_document xml;
};

TEST(ChartSvg, IsAPictureOf160By100MillimetresWithItsTitle) {
  const Svg svg(BrickChart(), "Parete <1> & \"due\", città");
  const pugi::xml_node root = svg.xml.child("svg");
  EXPECT_STREQ(root.child("title").text().get(), "Parete <1> & \"due\", città");
  double x = 1.0, y = 1.0, width = 0.0, height = 0.0;
  ASSERT_EQ(std::sscanf(root.attribute("viewBox").value(), "%lf %lf %lf %lf", &x, &y, &width, &height), 4);
  EXPECT_EQ(x, 0.0);
  EXPECT_EQ(y, 0.0);
  EXPECT_NEAR(width, 160.0 / 25.4 * 96.0, 0.01);
  EXPECT_NEAR(height, 100.0 / 25.4 * 96.0, 0.01);
}

TEST(ChartSvg, SaysWhatTheAxesAndCurvesAre) {
  EXPECT_THAT(Svg(BrickChart()).Texts(),
              testing::IsSupersetOf(
                  {"Frequenza [Hz]", "Ri [dB]", "63", "4000", "10", "80", "Curva teorica", "Curva di rif."}));
}

TEST(ChartSvg, DrawsEveryCurveInItsColour) {
  CurveChart chart = BrickChart();
  const Svg alone(chart);
  EXPECT_GT(alone.Lines("#a90384"), 0U);
  EXPECT_EQ(alone.Lines("#e77427"), 0U);
  EXPECT_THAT(alone.bytes, testing::Not(testing::HasSubstr("<image")));
  chart.laboratory.emplace().fill(40.0);
  chart.in_situ.emplace().fill(35.0);
  const Svg compared(chart);
  EXPECT_GT(compared.Lines("#e77427"), 0U);
  EXPECT_GT(compared.Lines("#00c000"), 0U);
  EXPECT_THAT(compared.Texts(), testing::IsSupersetOf({"Dati di lab.", "Dati in opera"}));
}

TEST(ChartSvg, IsTheSameTwice) { EXPECT_EQ(Svg(BrickChart()).bytes, Svg(BrickChart()).bytes); }

}  // namespace
}  // namespace velmar::presentation
