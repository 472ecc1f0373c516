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
    EXPECT_EQ(test.area_m2, number("Area (m²)"));
    EXPECT_EQ(test.mass_kg_m2, number("m' (kg/m²)"));
    EXPECT_EQ(test.picture, "Immagine");
    EXPECT_EQ(test.octaves[0], number(folder.band_prefix + " ottava - 63Hz (dB)")) << folder.key;
    EXPECT_EQ(test.octaves[7], number(folder.band_prefix + " ottava - 8000Hz (dB)")) << folder.key;
    EXPECT_EQ(test.index_kind, "Indice");
    EXPECT_EQ(test.index_value, number("Valore indice (dB)"));
    EXPECT_EQ(test.rating_origin, "Origine indice");
    EXPECT_EQ(test.uncertainty_db, number("Incertezza (dB)"));
    EXPECT_EQ(test.source, "Fonte");
    EXPECT_EQ(test.Proof(), "Certificato");
  }
}

TEST(MeasuredTest, OnlyATestInABuildingHasFieldData) {
  int field_kinds = 0;
  for (const LibraryFolder& folder : LibraryFolders()) {
    const std::vector<Cell> cells = CellsOf(folder);
    const FieldData field = TestFromCells(folder, cells).field;
    const auto number = [&](const char* column) -> std::optional<double> {
      const auto place = folder.table.Find(column);
      return place ? std::optional(std::get<double>(cells[*place])) : std::nullopt;
    };
    EXPECT_EQ(field.thickness_mm, number("s (mm)")) << folder.key;
    EXPECT_EQ(field.source_volume_m3, number("Ve (m³)")) << folder.key;
    EXPECT_EQ(field.receiving_volume_m3, number("Vr (m³)")) << folder.key;
    EXPECT_EQ(field.site, folder.field ? "Cantiere" : "") << folder.key;
    EXPECT_EQ(field.source_volume_m3.has_value(), folder.field) << folder.key;
    field_kinds += folder.field ? 1 : 0;
  }
  EXPECT_EQ(field_kinds, 2);
}

struct DateCase {
  const char* name;
  const char* stored;
  const char* shown;
};
class TestDateTest : public testing::TestWithParam<DateCase> {};

TEST_P(TestDateTest, StandsAsItIsWrittenInItaly) {
  const LibraryFolder folder = *FindLibraryFolder("R'w");
  std::vector<Cell> cells(folder.table.columns.size());
  cells[*folder.table.Find("Data Prova")] = std::string(GetParam().stored);
  EXPECT_EQ(TestFromCells(folder, cells).date, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Dates, TestDateTest,
                         testing::Values(DateCase{"DateColumn", "1998-05-12T00:00:00", "12/05/1998"},
                                         DateCase{"Day", "1998-05-12", "12/05/1998"},
                                         DateCase{"Typed", "12/05/1998", "12/05/1998"},
                                         DateCase{"Words", "maggio 1998", "maggio 1998"},
                                         DateCase{"Number", "1998-05-1234", "1998-05-1234"},
                                         DateCase{"NoDigits", "abcd-ef-gh", "abcd-ef-gh"},
                                         DateCase{"Empty", "", ""}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(MeasuredTest, ANullIsNothing) {
  const LibraryFolder folder = *FindLibraryFolder("Rw");
  const MeasuredTest test = TestFromCells(folder, std::vector<Cell>(folder.table.columns.size()));
  EXPECT_EQ(test.rating, std::nullopt);
  for (const auto& band : test.bands) EXPECT_EQ(band, std::nullopt);
  EXPECT_EQ(CurveOf(folder, test).mass_kg_m2, 0.0);
  EXPECT_EQ(CurveOf(folder, test).area_m2, std::nullopt);
}

TEST(MeasuredTest, ASmallElementHandsOverAreaZero) {
  MeasuredTest test;
  test.area_m2 = 1.5;
  const LibraryFolder vents = *FindLibraryFolder("Piccoli elementi");
  EXPECT_EQ(CurveOf(vents, test).area_m2, 0.0);
  EXPECT_EQ(CurveOf(*FindLibraryFolder("Infissi"), test).area_m2, 1.5);
}

}  // namespace
}  // namespace velmar::storage
