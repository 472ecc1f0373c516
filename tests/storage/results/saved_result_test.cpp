#include "storage/results/saved_result.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

TEST(SavedResult, GivesEveryColumnBack) {
  for (const ResultTable table : {ResultTable::kAirborne, ResultTable::kImpact, ResultTable::kLining}) {
    std::vector<Cell> cells;
    for (const ColumnSchema& column : SchemaOf(table).columns) {
      const double number = static_cast<double>(cells.size()) + 0.25;
      cells.push_back(column.type == ColumnType::kText ? Cell{column.name} : Cell{number});
    }
    EXPECT_EQ(CellsFromResult(table, ResultFromCells(table, cells)), cells);
  }
}

TEST(SavedResult, ANullStaysANull) {
  const std::vector<Cell> cells(SchemaOf(ResultTable::kAirborne).columns.size());
  const SavedResult result = ResultFromCells(ResultTable::kAirborne, cells);
  EXPECT_EQ(result, SavedResult{});
  EXPECT_EQ(CellsFromResult(ResultTable::kAirborne, result)[2], Cell{});
}

std::string Repeated(const std::string& unit, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += unit;
  return text;
}

TEST(CutDescription, CountsCharactersNotBytes) {
  EXPECT_EQ(CutDescription(Repeated("è", 250)), Repeated("è", 250));
  EXPECT_EQ(CutDescription(Repeated("è", 251)), Repeated("è", 250));
  EXPECT_EQ(CutDescription(""), "");
}

TEST(CutDescription, OfAFacadeEndsInDots) {
  EXPECT_EQ(CutFacadeDescription(Repeated("à", 250)), Repeated("à", 250));
  EXPECT_EQ(CutFacadeDescription(Repeated("à", 251)), Repeated("à", 247) + "...");
}

}  // namespace
}  // namespace velmar::storage
