#include "storage/tables/cell.h"

#include <string>

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

struct CellCase {
  const char* name;
  ColumnType type;
  std::string text;
  std::optional<Cell> cell;
};

class ParseCellTest : public testing::TestWithParam<CellCase> {};

TEST_P(ParseCellTest, GivesTheValue) {
  EXPECT_EQ(ParseCell(GetParam().type, GetParam().text), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseCellTest,
    testing::Values(CellCase{"NullNumber", ColumnType::kNumber, "", Cell{}},
                    CellCase{"NullText", ColumnType::kText, "", Cell{}},
                    CellCase{"Point", ColumnType::kNumber, "12.5", Cell{12.5}},
                    CellCase{"Comma", ColumnType::kNumber, "12,5", Cell{12.5}},
                    CellCase{"WordAsNumber", ColumnType::kNumber, "dodici", std::nullopt},
                    CellCase{"One", ColumnType::kYesNo, "1", Cell{true}},
                    CellCase{"Falso", ColumnType::kYesNo, "FALSO", Cell{false}},
                    CellCase{"Si", ColumnType::kYesNo, "Sì", Cell{true}},
                    CellCase{"SiCapitals", ColumnType::kYesNo, "SÌ", Cell{true}},
                    CellCase{"Two", ColumnType::kYesNo, "2", std::nullopt},
                    CellCase{"Whole", ColumnType::kWhole, "1001", Cell{1001.0}},
                    CellCase{"NotWhole", ColumnType::kWhole, "1,5", std::nullopt},
                    CellCase{"TextOfDigits", ColumnType::kText, "12", Cell{std::string("12")}}),
    [](const auto& test) { return test.param.name; });

TEST(FormatCell, ReadsBack) {
  EXPECT_EQ(FormatCell(Cell{0.1}), "0.1");
  EXPECT_EQ(FormatCell(Cell{true}), "1");
  EXPECT_EQ(FormatCell(Cell{}), "");
  EXPECT_EQ(ParseCell(ColumnType::kNumber, FormatCell(Cell{1.5e-7})), Cell{1.5e-7});
}

}  // namespace
}  // namespace velmar::storage
