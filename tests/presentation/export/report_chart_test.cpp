#include "presentation/export/report_chart.h"

#include <QImage>
#include <ostream>

#include <gtest/gtest.h>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;

elements::ResultSet ResultOf(double level_db) {
  elements::ResultSet result = samples::Result();
  result.spectrum->fill(level_db);
  return result;
}

/// What the screen shows, and whether paper fits the scale to the curves.
struct Shown {
  const char* name;
  double level_db;
  double base_db;
  double laboratory_db;
  bool ticked;
  bool fitted;
};

void PrintTo(const Shown& shown, std::ostream* out) { *out << shown.name; }

class WholeChart : public testing::TestWithParam<Shown> {};

TEST_P(WholeChart, FitsItsScaleWhereACurveWouldLeaveIt) {
  const Shown& shown = GetParam();
  elements::Setup setup = samples::Lining(Calculation::kLiningFrame);
  CurveChart chart = CurveChartOf(setup, ResultOf(shown.level_db), CatalogueWords()).value();
  chart.base.emplace().fill(shown.base_db);
  if (shown.laboratory_db != 0.0) chart.laboratory.emplace().fill(shown.laboratory_db);
  chart.autoscale = shown.ticked;
  const auto whole = WholeChartOf(setup, ResultOf(shown.level_db), CatalogueWords(), chart);
  ASSERT_TRUE(whole);
  EXPECT_EQ(whole->autoscale, shown.fitted);
  EXPECT_EQ(whole->laboratory, chart.laboratory);
}

INSTANTIATE_TEST_SUITE_P(Scales, WholeChart,
                         testing::Values(Shown{"inside", 60.0, 50.0, 55.0, false, false},
                                         Shown{"at the edges", 90.0, 0.0, 90.0, false, false},
                                         Shown{"above", 90.1, 50.0, 0.0, false, true},
                                         Shown{"below", -0.1, 50.0, 0.0, false, true},
                                         Shown{"base above", 60.0, 91.0, 0.0, false, true},
                                         Shown{"laboratory above", 60.0, 50.0, 91.0, false, true},
                                         Shown{"ticked", 60.0, 50.0, 55.0, true, true}),
                         [](const auto& test) {
                           std::string name = test.param.name;
                           std::replace(name.begin(), name.end(), ' ', '_');
                           return name;
                         });

TEST(WholeChartOf, ALiningIsJudgedByTheBandsThatItShows) {
  const elements::Setup setup = samples::Lining(Calculation::kLiningFrame);
  elements::ResultSet result = ResultOf(60.0);
  result.spectrum->back() = 120.0;
  EXPECT_FALSE(WholeChartOf(setup, result, CatalogueWords())->autoscale);
}

TEST(WholeChartOf, AReferenceCurveThatWouldLeaveTheScaleCountsToo) {
  elements::ResultSet result = ResultOf(85.0);
  const elements::Setup floor = samples::FloatingFloor();
  result.shift = 90.0;  // its highest value, at 100 Hz
  EXPECT_FALSE(WholeChartOf(floor, result, CatalogueWords())->autoscale);
  result.shift = 90.1;
  EXPECT_TRUE(WholeChartOf(floor, result, CatalogueWords())->autoscale);
}

TEST(WholeChartOf, IsNothingWithoutACurve) {
  EXPECT_FALSE(
      WholeChartOf(samples::Lining(Calculation::kLiningGeneric), samples::Result(), CatalogueWords()));
}

TEST(ReportChartOf, IsASharpPictureAsWideAsItsColumn) {
  const auto picture = ReportChartOf(samples::PlasteredBrickWall(), samples::Result(), CatalogueWords());
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width_emu, 116 * 36000);
  EXPECT_EQ(picture->height_emu, 66 * 36000);
  const QImage image = QImage::fromData(QByteArray::fromStdString(picture->png), "PNG");
  EXPECT_NEAR(image.width(), 116.0 / 25.4 * 300.0, 1.0);
  EXPECT_NEAR(image.height(), 66.0 / 25.4 * 300.0, 1.0);
  EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
  EXPECT_NE(picture->alternative_text.find("Rw(C; Ctr)= 51,0 (-1; -3) dB"), std::string::npos);
}

TEST(ReportChartOf, ShowsWhatTheScreenShows) {
  const elements::Setup setup = samples::PlasteredBrickWall();
  CurveChart shown = CurveChartOf(setup, samples::Result(), CatalogueWords()).value();
  const std::string plain = ReportChartOf(setup, samples::Result(), CatalogueWords())->png;
  EXPECT_EQ(ReportChartOf(setup, samples::Result(), CatalogueWords(), shown)->png, plain);
  shown.in_situ.emplace().fill(40.0);
  EXPECT_NE(ReportChartOf(setup, samples::Result(), CatalogueWords(), shown)->png, plain);
}

}  // namespace
}  // namespace velmar::presentation
