#include "storage/materials/material_store.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "storage/database/database_failure.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/full_disk.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

using elements::MaterialFamily;
using elements::StructuralMaterial;

StructuralRow Brick(const std::string& name, double thickness_mm = 80.0) {
  StructuralRow row;
  row.record.values.name = name;
  row.record.values.thickness_mm = thickness_mm;
  row.record.values.density_kg_m3 = 800.0;
  row.record.nulls = {&StructuralMaterial::thermal_conductance_w_m2k};
  row.keyword = "laterizi";
  return row;
}

class MaterialStoreTest : public testing::Test {
 protected:
  MaterialStoreTest() { MakeTables(store_.File(), MaterialTables()); }

  std::string Names(MaterialFamily family = MaterialFamily::kStructural) {
    std::string names;
    for (const ListedMaterial& material : store_.List(family)) names += material.name + "|";
    return names;
  }

  TemporaryFolder folder_;
  MaterialStore store_{folder_ / "Database.mdb"};
};

TEST_F(MaterialStoreTest, ListsInTheOrderOfInsertion) {
  EXPECT_EQ(store_.Add<StructuralMaterial>({Brick("Zeta"), Brick("alfa"), Brick("Mattone")}), std::nullopt);
  EXPECT_EQ(Names(), "Zeta|alfa|Mattone|");
  EXPECT_EQ(store_.List(MaterialFamily::kStructural)[0].keyword, "laterizi");
  EXPECT_EQ(store_.First<StructuralMaterial>()->record.values.name, "Zeta");
  EXPECT_EQ(Names(MaterialFamily::kFibrous), "");
  EXPECT_EQ(store_.First<elements::FibrousMaterial>().has_value(), false);
}

TEST_F(MaterialStoreTest, FindsByNameWithoutRegardToCase) {
  store_.Add<StructuralMaterial>({Brick("l'intonaco \"à la carte\"", 15.0)});
  const auto row = store_.Find<StructuralMaterial>("L'INTONACO \"À LA CARTE\"");
  ASSERT_TRUE(row);
  EXPECT_EQ(row->record.values.thickness_mm, 15.0);
  EXPECT_FALSE(row->record.Holds(&StructuralMaterial::thermal_conductance_w_m2k));
  EXPECT_TRUE(row->record.Holds(&StructuralMaterial::density_kg_m3));
  EXPECT_FALSE(store_.Find<StructuralMaterial>("altro"));
}

TEST_F(MaterialStoreTest, AddsAllOrNone) {
  store_.Add<StructuralMaterial>({Brick("Perché")});
  for (const auto& [rows, refusal] : std::vector<std::pair<std::vector<StructuralRow>, Message>>{
           {{Brick("nuovo"), Brick("PERCHÉ")}, {{MessageRow{354}}, {"PERCHÉ"}}},
           {{Brick("Uno"), Brick("uno")}, {{MessageRow{354}}, {"uno"}}},
           {{Brick("perché")}, {{MessageRow{354}}}},
           {{Brick("nuovo"), Brick("")}, {{MessageRow{347}}}}}) {
    EXPECT_EQ(store_.Add(rows), refusal);
    EXPECT_EQ(Names(), "Perché|");
  }
}

TEST_F(MaterialStoreTest, AChangeKeepsTheRowsPlace) {
  store_.Add<StructuralMaterial>({Brick("a"), Brick("b"), Brick("c")});
  const auto rename = [this](const char* from, const char* to) {
    return store_.Change<StructuralMaterial>(from, [to](StructuralRow& row) { row.record.values.name = to; });
  };
  EXPECT_EQ(rename("B", "È"), std::nullopt);
  EXPECT_EQ(Names(), "a|È|c|");
  EXPECT_EQ(rename("È", "è"), std::nullopt) << "its own name in other case";
  EXPECT_EQ(rename("è", "C"), (Message{{MessageRow{354}}}));
  EXPECT_EQ(rename("è", ""), (Message{{MessageRow{347}}}));
  EXPECT_EQ(rename("z", "y"), (Message{{MessageRow{1140}, " z"}}));
  EXPECT_EQ(Names(), "a|è|c|");
}

TEST_F(MaterialStoreTest, DeletesOneRow) {
  store_.Add<StructuralMaterial>({Brick("a"), Brick("b")});
  EXPECT_TRUE(store_.Delete(MaterialFamily::kStructural, "A"));
  EXPECT_FALSE(store_.Delete(MaterialFamily::kStructural, "a"));
  EXPECT_FALSE(store_.Delete(MaterialFamily::kFibrous, "b"));
  EXPECT_EQ(Names(), "b|");
}

TEST_F(MaterialStoreTest, ReadsAFileThatHoldsANameTwice) {
  Execute(store_.File(), {"DROP INDEX [Modulo_A1 Materiale]",
                          "INSERT INTO Modulo_A1 (Materiale, [s (mm)]) VALUES ('Gesso', 1), ('GESSO', 2)"});
  EXPECT_EQ(Names(), "Gesso|GESSO|");
  EXPECT_EQ(store_.Find<StructuralMaterial>("GESSO")->record.values.thickness_mm, 2.0);
  EXPECT_EQ(store_.Find<StructuralMaterial>("gesso")->record.values.thickness_mm, 1.0);
}

TEST_F(MaterialStoreTest, ReadsATableThatLacksColumns) {
  Execute(store_.File(), {"DROP TABLE Modulo_A3", "CREATE TABLE Modulo_A3 (Materiale TEXT, [s (mm)] REAL)",
                          "INSERT INTO Modulo_A3 VALUES ('Gomma', 5)"});
  const auto row = store_.Find<elements::ResilientMaterial>("gomma");
  EXPECT_EQ(row->record.values.thickness_mm, 5.0);
  EXPECT_FALSE(row->record.Holds(&elements::ResilientMaterial::dynamic_stiffness_mn_m3));
  EXPECT_EQ(row->keyword, "");
}

TEST_F(MaterialStoreTest, AMissingTableIsNamed) {
  Execute(store_.File(), {"DROP TABLE Modulo_A2"});
  EXPECT_THROW(store_.List(MaterialFamily::kFibrous), DatabaseFailure);
  EXPECT_EQ(Names(), "");
}

TEST_F(MaterialStoreTest, GivesSetUpsTheirLookUps) {
  store_.Add<StructuralMaterial>({Brick("Mattone", 120.0)});
  const elements::MaterialLookup lookup = MaterialLookupIn(store_.File());
  EXPECT_EQ(lookup.structural("MATTONE")->values.thickness_mm, 120.0);
  EXPECT_FALSE(lookup.structural("altro"));
  EXPECT_FALSE(lookup.fibrous("Mattone"));
  EXPECT_FALSE(lookup.resilient("Mattone"));
}

TEST_F(MaterialStoreTest, ALookUpWaitsNoLongerThanItIsTold) {
  SQLite::Database other(store_.File().string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  const elements::MaterialLookup lookup = MaterialLookupIn(store_.File(), kWindowPatienceMs);
  EXPECT_THROW(lookup.structural("a"), DatabaseFailure);
  other.exec("ROLLBACK");
  EXPECT_NO_THROW(lookup.structural("a"));
  // What a hand takes for an answer at once.
  static_assert(kWindowPatienceMs <= 100);
}

/// A set-up of many layers asks many times: a file that another program holds is waited for once.
TEST_F(MaterialStoreTest, LookUpsOfOneOperationStopAtTheFirstLock) {
  const elements::MaterialLookup each = MaterialLookupIn(store_.File());
  SQLite::Database other(store_.File().string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  const elements::MaterialLookup once = elements::ForOneOperation(each);
  EXPECT_THROW(once.structural("a"), DatabaseFailure);
  other.exec("ROLLBACK");
  EXPECT_THROW(once.structural("a"), DatabaseFailure) << "not tried again";
  EXPECT_THROW(once.fibrous("a"), DatabaseFailure) << "in no table";
  EXPECT_NO_THROW(each.structural("a"));
  EXPECT_NO_THROW(elements::ForOneOperation(each).structural("a"));
}

TEST_F(MaterialStoreTest, AFullDiskLeavesTheTable) {
  store_.Add<StructuralMaterial>({Brick("Mattone", 120.0)});
  StructuralRow large = Brick("Altro", 80.0);
  large.record.values.description = std::string(200000, 'x');
  std::optional<DatabaseProblem> problem;
  {
    const FullDisk full(1000);
    try {
      store_.Add<StructuralMaterial>({large});
    } catch (const DatabaseFailure& failure) {
      problem = failure.Problem();
    }
  }
  EXPECT_EQ(problem, DatabaseProblem::kDiskFull);
  EXPECT_EQ(Names(), "Mattone|");
  store_.Add<StructuralMaterial>({large});
  EXPECT_EQ(Names(), "Mattone|Altro|");
}

}  // namespace
}  // namespace velmar::storage
