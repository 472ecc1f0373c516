#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "data_builder/shipped_data.h"
#include "data_builder/table_text.h"
#include "elements/plausibility.h"
#include "storage/materials/material_store.h"
#include "storage/tables/schema.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;
using storage::QuotedName;

fs::path BuiltDatabase(const std::string& name) { return fs::path(VELMAR_BUILT_DATA) / "Databases" / name; }
fs::path MaterialDatabase() { return BuiltDatabase("Database/Database.mdb"); }

int Count(SQLite::Database& database, const std::string& table, const std::string& condition = "1") {
  return database.execAndGet("SELECT count(*) FROM " + QuotedName(table) + " WHERE " + condition).getInt();
}

std::string Bytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

struct TableCase {
  const char* name;
  const char* text;
  storage::TableSchema schema;
  int least_rows = 0;
};

class MaterialTableTest : public testing::TestWithParam<TableCase> {
 protected:
  SQLite::Database database_{MaterialDatabase().string()};
};

TEST_P(MaterialTableTest, HasEnoughRows) {
  EXPECT_GE(Count(database_, GetParam().schema.name), GetParam().least_rows);
}

TEST_P(MaterialTableTest, HoldsTheTextsValueByValueAndInOrder) {
  const storage::TableSchema& schema = GetParam().schema;
  const auto rows = data_builder::ReadRows(fs::path(VELMAR_TEXTS) / "materials" / GetParam().text, schema);
  SQLite::Statement read(database_, "SELECT * FROM " + QuotedName(schema.name) + " ORDER BY rowid");
  for (const auto& row : rows) {
    ASSERT_TRUE(read.executeStep());
    for (size_t i = 0; i < row.size(); ++i) {
      const SQLite::Column value = read.getColumn(static_cast<int>(i));
      const std::string where = schema.columns[i].name;
      if (std::holds_alternative<std::monostate>(row[i])) {
        EXPECT_TRUE(value.isNull()) << where;
      } else if (const auto* number = std::get_if<double>(&row[i])) {
        EXPECT_EQ(value.getDouble(), *number) << where;
      } else if (const auto* yes = std::get_if<bool>(&row[i])) {
        EXPECT_EQ(value.getInt(), *yes ? 1 : 0) << where;
      } else {
        EXPECT_EQ(value.getString(), std::get<std::string>(row[i])) << where;
      }
    }
  }
  EXPECT_FALSE(read.executeStep());
}

TEST_P(MaterialTableTest, EveryRowHasDescriptionThicknessDensityKeywordAndSource) {
  const storage::TableSchema& schema = GetParam().schema;
  for (const std::string& column :
       {schema.columns[1].name, std::string("s (mm)"), std::string("Densità (kg/m³)"),
        std::string("Parola chiave"), std::string("Fonte")}) {
    EXPECT_EQ(Count(database_, schema.name, QuotedName(column) + " IS NULL"), 0) << column;
  }
  EXPECT_EQ(Count(database_, schema.name, "\"s (mm)\" <= 0 OR \"Densità (kg/m³)\" <= 0"), 0);
}

TEST_P(MaterialTableTest, NamesAreUniqueWithoutRegardToCase) {
  std::set<std::string> names;
  SQLite::Statement read(database_, "SELECT upper(\"Materiale\") FROM " + QuotedName(GetParam().schema.name));
  while (read.executeStep()) {
    EXPECT_TRUE(names.insert(read.getColumn(0).getString()).second) << read.getColumn(0).getString();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tables, MaterialTableTest,
    testing::Values(TableCase{"Structural", "structural.csv", storage::StructuralMaterialTable(), 200},
                    TableCase{"Fibrous", "fibrous.csv", storage::FibrousMaterialTable(), 51},
                    TableCase{"Resilient", "resilient.csv", storage::ResilientMaterialTable(), 44}),
    [](const auto& test) { return test.param.name; });

TEST(StructuralMaterials, CriticalFrequencyAndSurfaceMassFollowFromTheRow) {
  SQLite::Database database(MaterialDatabase().string());
  SQLite::Statement read(
      database,
      "SELECT \"Materiale\", \"s (mm)\", \"Densità (kg/m³)\", \"m' (kg/m²)\", \"Modulo di Young E "
      "(GPa)\", \"Frequenza di coincidenza fc (Hz)\", \"Rapporto di Poisson\", \"Fattore di "
      "perdita interna\" FROM Modulo_A1");
  while (read.executeStep()) {
    const double thickness_m = read.getColumn(1).getDouble() * 0.001;
    const double density = read.getColumn(2).getDouble();
    const double poisson = read.getColumn(6).getDouble();
    const double youngs_modulus_pa = read.getColumn(4).getDouble() * 1e9;
    const double plate_modulus_pa = youngs_modulus_pa / (1 - poisson * poisson);
    const double critical = 350.9 * 350.9 / 6.2832 * std::sqrt(12 * density / plate_modulus_pa) / thickness_m;
    EXPECT_NEAR(read.getColumn(5).getDouble(), critical, 0.005 + 1e-9) << read.getColumn(0).getString();
    EXPECT_NEAR(read.getColumn(3).getDouble(), density * thickness_m, 1e-4) << read.getColumn(0).getString();
    EXPECT_GT(youngs_modulus_pa, 0);
    EXPECT_GT(read.getColumn(7).getDouble(), 0);
    EXPECT_TRUE(poisson >= 0 && poisson < 0.5);
  }
}

TEST(StructuralMaterials, TheFirstIsMasonryAndTheNamedFiltersHaveRows) {
  SQLite::Database database(MaterialDatabase().string());
  EXPECT_EQ(database.execAndGet("SELECT \"Parola chiave\" FROM Modulo_A1 ORDER BY rowid").getString(),
            "murature");
  EXPECT_GE(Count(database, "Modulo_A1", "\"Parola chiave\" = 'vetrate'"), 4);
  EXPECT_GE(Count(database, "Modulo_A1", "\"Parola chiave\" = 'porte'"), 4);
  EXPECT_EQ(Count(database, "Modulo_A1", "\"Materiale\" LIKE 'vetro %' AND \"Parola chiave\" <> 'vetrate'"),
            0);
  EXPECT_EQ(Count(database, "Modulo_A1",
                  "\"Materiale\" LIKE '%di porta%' AND \"Parola chiave\" NOT IN ('porte', 'fuori elenco')"),
            0);
}

// A project of an older version may name any of them.
TEST(StructuralMaterials, WhatLeftTheListsStaysInTheTable) {
  SQLite::Database database(MaterialDatabase().string());
  for (const char* name : {"Mattone forato", "Laterizio forato leggero 8-12 cm", "Titanio", "Stagno",
                           "Magnesio", "Abete massiccio", "Rovere massiccio", "Pannello X-LAM (CLT)"}) {
    EXPECT_EQ(Count(database, "Modulo_A1",
                    "\"Materiale\" = '" + std::string(name) + "' AND \"Parola chiave\" = 'fuori elenco'"),
              1)
        << name;
  }
  EXPECT_EQ(Count(database, "Modulo_A1",
                  "\"Materiale\" = 'Mattone forato' AND \"Densità (kg/m³)\" = 1200 AND \"Modulo di Young E "
                  "(GPa)\" = 5"),
            1);
}

TEST(FibrousMaterials, AreDescribedByFlowResistanceOrByElasticity) {
  SQLite::Database database(MaterialDatabase().string());
  const std::string resistance = "\"Resistenza specifica al flusso Rs (Pa sec/m)\"";
  EXPECT_EQ(Count(database, "Modulo_A2", "fonoassorbente = 1 AND coalesce(" + resistance + ", 0) <= 0"), 0);
  EXPECT_EQ(
      Count(
          database, "Modulo_A2",
          "fonoassorbente = 0 AND (\"Modulo di Young E (GPa)\" IS NULL OR \"Fattore di perdita interna\" IS "
          "NULL OR \"Rapporto di Poisson\" IS NULL)"),
      0);
  EXPECT_EQ(Count(database, "Modulo_A2", "fonoassorbente NOT IN (0, 1)"), 0);
  int whole = 0;
  for (int band = 0; band < 19; ++band) {
    const std::string alpha = "Alfa" + std::to_string(band);
    EXPECT_EQ(Count(database, "Modulo_A2", alpha + " < 0 OR " + alpha + " > 1"), 0) << alpha;
    EXPECT_EQ(Count(database, "Modulo_A2", alpha + " IS NOT NULL AND \"Fonte\" NOT LIKE '%Delany e Bazley%'"),
              0);
    whole += Count(database, "Modulo_A2", alpha + " IS NOT NULL");
  }
  EXPECT_GT(whole, 19 * 20);
}

TEST(ResilientMaterials, ResonanceFollowsFromTheStiffness) {
  SQLite::Database database(MaterialDatabase().string());
  SQLite::Statement read(
      database, "SELECT \"Materiale\", \"s' (MN/m³)\", \"f0 (Hz)\", \"Delta Ln,w (dB)\" FROM Modulo_A3");
  while (read.executeStep()) {
    EXPECT_NEAR(read.getColumn(2).getDouble(), 160 * std::sqrt(read.getColumn(1).getDouble() / 100), 0.0501)
        << read.getColumn(0).getString();
    EXPECT_GT(read.getColumn(3).getDouble(), 0) << read.getColumn(0).getString();
  }
}

/// Every value of a shipped material is one that such materials have.
template <typename Material>
void ExpectUsual() {
  const storage::MaterialStore store(MaterialDatabase());
  for (const storage::MaterialRow<Material>& row : store.Rows<Material>()) {
    for (const elements::PropertyFinding& finding : elements::FindingsOf(row.record)) {
      ADD_FAILURE() << row.record.values.name << ": property " << static_cast<int>(finding.property) << " is "
                    << finding.value;
    }
  }
}

TEST(Materials, EveryShippedOneIsPlausible) {
  ExpectUsual<elements::StructuralMaterial>();
  ExpectUsual<elements::FibrousMaterial>();
  ExpectUsual<elements::ResilientMaterial>();
}

TEST(ResultDatabase, IsThereAndEmpty) {
  SQLite::Database database(BuiltDatabase("Database/Database_teorico.mdb").string());
  for (const storage::TableSchema& table : storage::ResultTables()) EXPECT_EQ(Count(database, table.name), 0);
}

TEST(MessageDatabase, HoldsTheCatalogueInOrderAndTheFurtherTexts) {
  SQLite::Database database(BuiltDatabase("InterfMess.mdb").string());
  EXPECT_EQ(Count(database, "DRAV"), 419);
  EXPECT_EQ(database.execAndGet("SELECT Italiano FROM DRAV WHERE rowid = 325").getString(),
            "non specificata");
  EXPECT_FALSE(database.execAndGet("SELECT English FROM Testi WHERE Riga = 1001").getString().empty());
}

TEST(BuildShippedData, GivesTheSameBytesAgain) {
  const fs::path again = fs::temp_directory_path() / ("velmar-built-twice-" + std::to_string(getpid()));
  fs::remove_all(again);
  data_builder::BuildShippedData(VELMAR_TEXTS, again);
  int files = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(again)) {
    if (!entry.is_regular_file()) continue;
    ++files;
    EXPECT_TRUE(Bytes(entry.path()) == Bytes(VELMAR_BUILT_DATA / fs::relative(entry.path(), again)))
        << entry.path();
  }
  EXPECT_GE(files, 20);
  fs::remove_all(again);
}

}  // namespace
}  // namespace velmar
