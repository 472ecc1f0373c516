#include "storage/materials/material_row.h"

#include <gtest/gtest.h>

#include "elements/layers.h"
#include "elements/setup_text.h"

namespace velmar::storage {
namespace {

using elements::FibrousMaterial;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

/// A cell of its own for every column.
std::vector<Cell> DistinctCells(const TableSchema& table) {
  std::vector<Cell> cells;
  for (const ColumnSchema& column : table.columns) {
    const double number = static_cast<double>(cells.size()) + 0.5;
    switch (column.type) {
      case ColumnType::kText:
        cells.emplace_back("testo " + std::to_string(cells.size()));
        break;
      case ColumnType::kNumber:
        cells.emplace_back(number);
        break;
      case ColumnType::kYesNo:
        cells.emplace_back(true);
        break;
      case ColumnType::kWhole:
        ADD_FAILURE() << column.name << ": no material table has a column of whole numbers";
        break;
    }
  }
  return cells;
}

template <typename Material>
class MaterialRowTest : public testing::Test {};
using Materials = testing::Types<StructuralMaterial, FibrousMaterial, ResilientMaterial>;
TYPED_TEST_SUITE(MaterialRowTest, Materials);

TYPED_TEST(MaterialRowTest, GivesEveryColumnBack) {
  const std::vector<Cell> cells = DistinctCells(TableOf<TypeParam>());
  EXPECT_EQ(CellsFromRow(RowFromCells<TypeParam>(cells)), cells);
}

/// A layer holds what its material's record holds, and variants hold layers as texts.
TYPED_TEST(MaterialRowTest, ALayerOfItKeepsEveryColumnInTheTextOfASetup) {
  elements::LayerRow<TypeParam> layer;
  layer.slot = RowFromCells<TypeParam>(DistinctCells(TableOf<TypeParam>())).record.values;
  elements::LayerRow<TypeParam> back;
  ASSERT_TRUE(elements::ReadRowText(elements::WriteRowText(layer), back));
  EXPECT_EQ(back, layer);
}

TYPED_TEST(MaterialRowTest, ANullStaysANull) {
  std::vector<Cell> cells(TableOf<TypeParam>().columns.size());
  cells[0] = Cell{"nome"};
  const MaterialRow<TypeParam> row = RowFromCells<TypeParam>(cells);
  EXPECT_FALSE(row.record.Holds(&TypeParam::thickness_mm));
  EXPECT_EQ(row.record.values.thickness_mm, 0.0);
  EXPECT_EQ(row.picture, "senza");
  const std::vector<Cell> written = CellsFromRow(row);
  const TableSchema table = TableOf<TypeParam>();
  for (std::size_t i = 1; i < written.size(); ++i) {
    if (table.columns[i].type != ColumnType::kNumber) continue;
    EXPECT_EQ(written[i], Cell{}) << table.columns[i].name;
  }
}

TEST(FibrousRow, AnAbsorptionWithoutAValueIsMinusOne) {
  const TableSchema table = TableOf<FibrousMaterial>();
  std::vector<Cell> cells(table.columns.size());
  cells[*table.Find("Alfa0")] = Cell{0.15};
  cells[*table.Find("Alfa18")] = Cell{1.0};
  const elements::Absorption absorption = RowFromCells<FibrousMaterial>(cells).record.values.absorption;
  EXPECT_EQ(absorption[0], 0.15F);
  EXPECT_EQ(absorption[1], -1.0F);
  EXPECT_EQ(absorption[18], 1.0F);
}

TEST(FibrousRow, AnAbsorptionIsWrittenWithTheDigitsItWasTypedWith) {
  const TableSchema table = TableOf<FibrousMaterial>();
  FibrousRow row;
  row.record.values.absorption[3] = 0.7F;
  EXPECT_EQ(CellsFromRow(row)[*table.Find("Alfa3")], Cell{0.7});
}

}  // namespace
}  // namespace velmar::storage
