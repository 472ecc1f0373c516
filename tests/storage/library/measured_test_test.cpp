#include "storage/library/measured_test.h"

#include <gtest/gtest.h>

#include "storage/library/library_store.h"

namespace velmar::storage {
namespace {

std::vector<Cell> CellsOf(const LibraryFolder& folder) {
  std::vector<Cell> cells;
  for (const ColumnSchema& column : folder.table.columns) {
    const double number = static_cast<double>(cells.size());
    cells.push_back(column.type == ColumnType::kText ? Cell{column.name} : Cell{number});
  }
  return cells;
}

TEST(MeasuredTest, TakesEveryFolderByItsOwnColumns) {
  for (const LibraryFolder& folder : LibraryFolders()) {
    const std::vector<Cell> cells = CellsOf(folder);
    const auto number = [&](const std::string& column) {
      return std::get<double>(cells[*folder.table.Find(column)]);
    };
    const MeasuredTest test = TestFromCells(folder, cells);
    EXPECT_EQ(test.rating, number(folder.rating)) << folder.key;
    EXPECT_EQ(test.bands[0], number(folder.band_prefix + " - 50Hz (dB)")) << folder.key;
    EXPECT_EQ(test.bands[20], number(folder.band_prefix + " - 5000Hz (dB)")) << folder.key;
    EXPECT_TRUE(test.adaptation) << folder.key;
    EXPECT_EQ(test.other_adaptation.has_value(), folder.key != "DLw") << folder.key;
    EXPECT_NE(test.other_adaptation, test.bands[0]) << folder.key;
    EXPECT_EQ(test.laboratory, "Ente di prova");
    EXPECT_EQ(test.client, "Società richiedente");
  }
}

TEST(MeasuredTest, ANullIsNothing) {
  const LibraryFolder folder = *FindLibraryFolder("Rw");
  const MeasuredTest test = TestFromCells(folder, std::vector<Cell>(folder.table.columns.size()));
  EXPECT_EQ(test.rating, std::nullopt);
  for (const auto& band : test.bands) EXPECT_EQ(band, std::nullopt);
  EXPECT_EQ(CurveOf(folder, test).mass_kg_m2, 0.0);
  EXPECT_EQ(CurveOf(folder, test).area_m2, std::nullopt);
  EXPECT_EQ(RatingLabel(folder, test), "Rw(C,Ctr)= (, ) dB");
}

TEST(MeasuredTest, ASmallElementHandsOverAreaZero) {
  MeasuredTest test;
  test.area_m2 = 1.5;
  test.rating = 40;
  test.adaptation = -1;
  test.other_adaptation = -2.5;
  const LibraryFolder vents = *FindLibraryFolder("Piccoli elementi");
  EXPECT_EQ(CurveOf(vents, test).area_m2, 0.0);
  EXPECT_EQ(RatingLabel(vents, test), "Dnew(C,Ctr)= 40(-1, -2,5) dB");
  EXPECT_EQ(CurveOf(*FindLibraryFolder("Infissi"), test).area_m2, 1.5);
}

}  // namespace
}  // namespace velmar::storage
