#include "presentation/drawing/chart_numbers.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

CurveChart Wall() {
  CurveChart chart;
  chart.values.fill(40.0);
  chart.values[0] = 0.0;
  chart.shift = 44.0;
  chart.laboratory.emplace().fill(41.25);
  chart.marks.deviations = true;
  chart.words = {.frequency_axis = "Hz",
                 .calculated = "calcolata",
                 .reference = "riferimento",
                 .laboratory = "laboratorio",
                 .deviation = "scostamento"};
  return chart;
}

std::string Said(const std::vector<ChartNumber>& numbers) {
  std::string said;
  for (const ChartNumber& number : numbers)
    said += number.name + ' ' + std::to_string(static_cast<int>(number.level_db)) + ' ';
  return said;
}

TEST(NumbersAt, NamesAllCurvesAndTheDeviation) {
  EXPECT_EQ(Said(NumbersAt(Wall(), 16)), "calcolata 40 riferimento 44 laboratorio 41 scostamento 4 ");
  EXPECT_EQ(Said(NumbersAt(Wall(), 3)), "calcolata 40 riferimento 21 laboratorio 41 ");
  EXPECT_EQ(Said(NumbersAt(Wall(), 20)), "calcolata 40 laboratorio 41 ");
  EXPECT_EQ(Said(NumbersAt(Wall(), 0)), "laboratorio 41 ");
}

TEST(NumbersTable, HasARowForEachBandAndLeavesOutWhatIsMissing) {
  const std::string table = NumbersTable(Wall());
  EXPECT_EQ(table.substr(0, table.find('\n') + 1), "Hz\tcalcolata\triferimento\tlaboratorio\n");
  EXPECT_NE(table.find("\n50\t\t\t41,2\n"), std::string::npos) << table;
  EXPECT_NE(table.find("\n500\t40,0\t40,0\t41,2\n"), std::string::npos) << table;
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 22);
}

TEST(NumbersTable, KeepsALiningToItsBands) {
  CurveChart chart = Wall();
  chart.first_band = 3;
  chart.last_band = 18;
  EXPECT_TRUE(NumbersAt(chart, 2).empty());
  const std::string table = NumbersTable(chart);
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 17);
}

}  // namespace
}  // namespace velmar::presentation
