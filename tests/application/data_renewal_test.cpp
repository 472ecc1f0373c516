#include "application/data_renewal.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/configuration/configuration.h"
#include "storage/materials/material_store.h"
#include "storage/tables/schema.h"
#include "tests/application/start_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using storage::ReadFile;
using storage::WriteFile;

/// A data folder of an earlier version, and what this version ships.
class DataRenewalTest : public testing::Test {
 protected:
  DataRenewalTest() {
    MakeShipped(old_, {"Vecchio", "Tolto"}, "testo 1");
    WriteFile(old_ / "Templates/word.docx", "modello 1");
    WriteFile(old_ / "Templates/excel.xlsx", "foglio 1");
    fs::copy(old_, mine_, fs::copy_options::recursive);
    MakeShipped(now_, {"Vecchio", "Tolto", "Nuovo"}, "testo 2");
    WriteFile(now_ / "Templates/word.docx", "modello 2");
    WriteFile(now_ / "Templates/excel.xlsx", "foglio 2");
    WriteFile(now_ / "Examples/nuovo.drav", "esempio");
  }

  static void MakeShipped(const fs::path& folder, const std::vector<std::string>& materials,
                          const std::string& text) {
    fs::create_directories(folder / "Databases/Database");
    fs::create_directories(folder / "Templates");
    fs::create_directories(folder / "Examples");
    const fs::path file = folder / storage::kMaterialDatabase;
    storage::MakeTables(file, storage::MaterialTables());
    for (const std::string& name : materials)
      storage::Execute(
          file, {"INSERT INTO Modulo_A1 (Materiale, [Densità (kg/m³)]) VALUES ('" + name + "', 1000)"});
    storage::MakeTables(folder / storage::kResultDatabase, storage::ResultTables());
    const std::vector<std::string> languages = {"Italiano", "English"};
    const fs::path messages = folder / storage::kMessageDatabase;
    storage::MakeTables(messages, {storage::CatalogueTable(languages), storage::FurtherTextTable(languages)});
    storage::Execute(messages,
                     {"INSERT INTO DRAV VALUES ('" + text + "', 'one'), ('due', 'two')",
                      "INSERT INTO Testi VALUES (1001, '" + text + "', 'x'), (1002, 'fermo', 'y')"});
  }
  void AsMadeByTheOldVersion() { RenewData(mine_, old_); }
  std::string Names() const {
    std::string names;
    for (const auto& material : storage::MaterialStore(mine_ / storage::kMaterialDatabase)
                                    .List(elements::MaterialFamily::kStructural))
      names += material.name + "|";
    return names;
  }
  std::string Text(const std::string& query) const {
    return storage::ReadDatabase(mine_ / storage::kMessageDatabase, [&](SQLite::Database& database) {
      return database.execAndGet(query).getString();
    });
  }
  int CopiesIn(const fs::path& folder) const {
    int copies = 0;
    for (const auto& entry : fs::directory_iterator(folder))
      copies += entry.path().filename().string().find(".copia-") != std::string::npos ? 1 : 0;
    return copies;
  }

  storage::TemporaryFolder folder_;
  fs::path old_ = folder_ / "old";
  fs::path now_ = folder_ / "now";
  fs::path mine_ = folder_ / "mine";
};

TEST_F(DataRenewalTest, AnUntouchedFolderBecomesThatOfThisVersionWithCopiesBefore) {
  AsMadeByTheOldVersion();
  const auto report = RenewData(mine_, now_);
  ASSERT_TRUE(report);
  EXPECT_EQ(LeadingRow(report->front()), kDataRenewedRow);
  EXPECT_EQ(Names(), "Vecchio|Tolto|Nuovo|");
  EXPECT_EQ(ReadFile(mine_ / "Templates/word.docx"), "modello 2");
  EXPECT_EQ(ReadFile(mine_ / "Examples/nuovo.drav"), "esempio");
  EXPECT_EQ(Text("SELECT Italiano FROM DRAV WHERE rowid = 1"), "testo 2");
  EXPECT_EQ(Text("SELECT Italiano FROM Testi WHERE Riga = 1001"), "testo 2");
  EXPECT_EQ(CopiesIn(mine_ / "Templates"), 2);
  EXPECT_EQ(CopiesIn(mine_ / "Databases/Database"), 1);
  EXPECT_EQ(CopiesIn(mine_ / "Databases"), 1);
}

TEST_F(DataRenewalTest, ItIsDoneOnce) {
  AsMadeByTheOldVersion();
  EXPECT_TRUE(RenewData(mine_, now_));
  storage::MaterialStore(mine_ / storage::kMaterialDatabase)
      .Delete(elements::MaterialFamily::kStructural, "Nuovo");
  EXPECT_FALSE(RenewData(mine_, now_));
  EXPECT_EQ(Names(), "Vecchio|Tolto|") << "deleted after it came: it stays so";
}

TEST_F(DataRenewalTest, WhatTheUserChangedOrDeletedStaysSo) {
  AsMadeByTheOldVersion();
  storage::Execute(mine_ / storage::kMaterialDatabase,
                   {"UPDATE Modulo_A1 SET [Densità (kg/m³)] = 777 WHERE Materiale = 'Vecchio'",
                    "DELETE FROM Modulo_A1 WHERE Materiale = 'Tolto'",
                    "INSERT INTO Modulo_A1 (Materiale) VALUES ('Mio')"});
  storage::Execute(now_ / storage::kMaterialDatabase,
                   {"UPDATE Modulo_A1 SET [Densità (kg/m³)] = 1100 WHERE Materiale = 'Vecchio'"});
  storage::Execute(mine_ / storage::kMessageDatabase, {"UPDATE DRAV SET Italiano = 'mio' WHERE rowid = 1"});
  WriteFile(mine_ / "Templates/word.docx", "carta intestata");
  fs::remove(mine_ / "Templates/excel.xlsx");
  RenewData(mine_, now_);
  EXPECT_EQ(Names(), "Vecchio|Mio|Nuovo|");
  const auto row = storage::MaterialStore(mine_ / storage::kMaterialDatabase)
                       .Find<elements::StructuralMaterial>("Vecchio");
  EXPECT_EQ(row->record.values.density_kg_m3, 777.0);
  EXPECT_EQ(Text("SELECT Italiano FROM DRAV WHERE rowid = 1"), "mio");
  EXPECT_EQ(ReadFile(mine_ / "Templates/word.docx"), "carta intestata");
  EXPECT_FALSE(fs::exists(mine_ / "Templates/excel.xlsx"));
}

TEST_F(DataRenewalTest, ResultsAndOwnMeasurementsAreNotTouched) {
  AsMadeByTheOldVersion();
  storage::Execute(mine_ / storage::kResultDatabase,
                   {"INSERT INTO Potere_fonoisolante (Nome, [Rw (dB)]) VALUES ('Parete', 50)"});
  const std::string results = ReadFile(mine_ / storage::kResultDatabase);
  WriteFile(mine_ / "Databases/Database/Infissi/Misure proprie.mdb", "mie");
  RenewData(mine_, now_);
  EXPECT_TRUE(ReadFile(mine_ / storage::kResultDatabase) == results);
  EXPECT_EQ(ReadFile(mine_ / "Databases/Database/Infissi/Misure proprie.mdb"), "mie");
}

TEST_F(DataRenewalTest, AFreshFolderIsToldNothing) {
  fs::remove_all(mine_);
  fs::copy(now_, mine_, fs::copy_options::recursive);
  EXPECT_FALSE(RenewData(mine_, now_));
  EXPECT_TRUE(fs::exists(mine_ / kShippedCopy));
}

TEST_F(DataRenewalTest, WithoutACopyOfWhatWasShippedTheFormerVersionServes) {
  fs::create_directories(now_ / "Former");
  fs::copy(old_ / "Databases", now_ / "Former/Databases", fs::copy_options::recursive);
  storage::MaterialStore(mine_ / storage::kMaterialDatabase)
      .Delete(elements::MaterialFamily::kStructural, "Tolto");
  RenewData(mine_, now_);
  EXPECT_EQ(Names(), "Vecchio|Nuovo|");
  EXPECT_EQ(Text("SELECT Italiano FROM DRAV WHERE rowid = 1"), "testo 2");
  EXPECT_EQ(ReadFile(mine_ / "Templates/word.docx"), "modello 1") << "whose it is cannot be told: it stays";
}

TEST_F(DataRenewalTest, ADamagedDatabaseIsToldAndTheNextStartGoesOn) {
  AsMadeByTheOldVersion();
  const std::string good = ReadFile(mine_ / storage::kMessageDatabase);
  WriteFile(mine_ / storage::kMessageDatabase, "no database");
  EXPECT_THROW(RenewData(mine_, now_), Failure);
  EXPECT_EQ(ReadFile(mine_ / storage::kMessageDatabase), "no database");
  WriteFile(mine_ / storage::kMessageDatabase, good);
  EXPECT_TRUE(RenewData(mine_, now_));
  EXPECT_EQ(Names(), "Vecchio|Tolto|Nuovo|");
}

TEST_F(DataRenewalTest, TheShippedFolderItselfIsLeftAlone) {
  EXPECT_FALSE(RenewData(now_, now_));
  EXPECT_FALSE(fs::exists(now_ / kShippedCopy));
}

}  // namespace
}  // namespace velmar::application
