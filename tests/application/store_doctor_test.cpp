#include "application/store_doctor.h"

#include <algorithm>
#include <map>

#include <SQLiteCpp/Database.h>

#include "foundation/utf8.h"
#include "storage/database/set_aside.h"
#include "storage/materials/material_store.h"
#include "storage/messages/message_table_reader.h"
#include "tests/application/start_fixture.h"
#include "tests/storage/support/databases.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using storage::ReadFile;
using storage::WriteFile;
using enum StoreProblem;

std::string Fixture(const char* name) { return ReadFile(fs::path(DAMAGED_DATABASES) / name); }

/// A whole data folder of its own.
class StoreDoctorTest : public StartTest {
 protected:
  StoreDoctorTest() {
    fs::copy(*places_.shipped, places_.data_folder, fs::copy_options::recursive);
    for (const Store store : kStores)
      fs::permissions(FileOf(NameOf(store)), fs::perms::owner_write, fs::perm_options::add);
  }

  /// Every file of the data folder with its bytes.
  std::map<fs::path, std::string> Contents() const {
    std::map<fs::path, std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(places_.data_folder)) {
      if (entry.is_regular_file()) contents[entry.path()] = ReadFile(entry.path());
    }
    return contents;
  }

  static std::vector<StoreProblem> ProblemsOf(const std::vector<StoreFinding>& findings) {
    std::vector<StoreProblem> problems;
    for (const StoreFinding& finding : findings) problems.push_back(finding.problem);
    return problems;
  }

  /// What is found, that finding it changed nothing, and that one repair is enough.
  std::vector<StoreFinding> RepairedAtOnce(const std::vector<StoreProblem>& expected) const {
    const auto before = Contents();
    EXPECT_EQ(ProblemsOf(ExamineStores(places_)), expected);
    EXPECT_EQ(Contents(), before) << "looking changed something";
    std::vector<StoreFinding> repaired = RepairStores(places_);
    EXPECT_EQ(ProblemsOf(repaired), expected);
    EXPECT_TRUE(std::ranges::all_of(repaired, &StoreFinding::repaired));
    EXPECT_TRUE(ExamineStores(places_).empty());
    return repaired;
  }
};

TEST_F(StoreDoctorTest, TheShippedDataAreInOrder) {
  const auto before = Contents();
  EXPECT_TRUE(ExamineStores(places_).empty());
  EXPECT_TRUE(RepairStores(places_).empty());
  EXPECT_EQ(Contents(), before);
}

TEST_F(StoreDoctorTest, AMissingFolderIsMadeOnlyWhenRepairIsAsked) {
  fs::remove_all(places_.data_folder);
  EXPECT_EQ(ProblemsOf(ExamineStores(places_)), (std::vector{kMissing, kMissing, kMissing}));
  EXPECT_FALSE(fs::exists(places_.data_folder));
  EXPECT_EQ(RepairStores(places_).size(), 1U);
  EXPECT_TRUE(ExamineStores(places_).empty());
}

TEST_F(StoreDoctorTest, DamagedStoresAreSetAsideAndReplaced) {
  const std::string swapped = Fixture("pages-swapped-materials.mdb");
  WriteFile(FileOf(storage::kMaterialDatabase), swapped);
  WriteFile(FileOf(storage::kResultDatabase), "no database");
  fs::remove(FileOf(storage::kMessageDatabase));
  const auto repaired = RepairedAtOnce({kMissing, kDamaged, kDamaged});
  EXPECT_EQ(ReadFile(repaired[1].copy), swapped);
  EXPECT_EQ(ReadFile(repaired[2].copy), "no database");
}

TEST_F(StoreDoctorTest, AnIndexIsBuiltAnewAndTheDataStay) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  const std::string damaged = Fixture("row-deleted-past-its-index-materials.mdb");
  WriteFile(file, damaged);
  const auto rows = storage::MaterialStore(file).List(elements::MaterialFamily::kStructural).size();
  const auto repaired = RepairedAtOnce({kIndex});
  EXPECT_EQ(ReadFile(repaired[0].copy), damaged);
  EXPECT_NE(repaired[0].copy.filename().string().find(".copia-20"), std::string::npos);
  EXPECT_EQ(storage::MaterialStore(file).List(elements::MaterialFamily::kStructural).size(), rows);
}

TEST_F(StoreDoctorTest, BrokenTextsOfTheCatalogueAreTheShippedOnesAgain) {
  const fs::path file = FileOf(storage::kMessageDatabase);
  WriteFile(file, Fixture("line-break-in-texts-messages.mdb"));
  const auto found = ExamineStores(places_);
  ASSERT_FALSE(found.empty());
  for (const StoreFinding& finding : found) EXPECT_EQ(finding.problem, kText) << finding.detail;
  const auto repaired = RepairStores(places_);
  EXPECT_EQ(repaired.size(), found.size());
  EXPECT_TRUE(ExamineStores(places_).empty());
  // Read without the help of the shipped file.
  EXPECT_EQ(storage::ReadMessageTable(file, "Italiano").Text(MessageRow{1231}), "Opzioni");
}

TEST_F(StoreDoctorTest, ImpossibleRowsAndNamesAreMended) {
  const fs::path materials = FileOf(storage::kMaterialDatabase);
  storage::Execute(materials, {"INSERT INTO Modulo_A1 (Materiale, [Rapporto di Poisson], [s (mm)]) "
                               "VALUES ('Impossibile', 1.5, -50)",
                               "INSERT INTO Modulo_A2 (Materiale) VALUES (' ')"});
  const fs::path results = FileOf(storage::kResultDatabase);
  storage::Execute(
      results, {"INSERT INTO Potere_fonoisolante (Nome) VALUES ('due' || char(10) || 'righe')",
                "INSERT INTO Potere_fonoisolante (Nome) VALUES (CAST(x'63E8' AS TEXT))", "DROP TABLE DRw"});
  const auto repaired = RepairedAtOnce({kValue, kValue, kName, kName, kText, kNoTable});
  EXPECT_EQ(repaired[0].detail, "Modulo_A1, Impossibile, s (mm): -50");
  EXPECT_EQ(repaired[1].detail, "Modulo_A1, Impossibile, Rapporto di Poisson: 1.5");
  for (const StoreFinding& finding : repaired) {
    EXPECT_TRUE(IsUtf8(finding.detail));
    EXPECT_TRUE(fs::exists(finding.copy)) << "a copy is kept before anything is changed";
  }
  EXPECT_EQ(storage::ConditionOf(results), storage::DatabaseCondition::kGood);
}

TEST_F(StoreDoctorTest, WhatAKilledProgramLeftIsRemoved) {
  const fs::path left = FileOf(storage::kMaterialDatabase).parent_path() / ".velmar-1.tmp";
  WriteFile(left, "half");
  RepairedAtOnce({kAbandoned});
  EXPECT_FALSE(fs::exists(left));
}

TEST_F(StoreDoctorTest, WhatCannotBeRepairedIsToldAndLeftAlone) {
  const std::string access("\0\1\0\0Standard Jet DB\0\1", 21);
  WriteFile(FileOf(storage::kMaterialDatabase), access);
  SQLite::Database other(FileOf(storage::kResultDatabase).string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  const auto repaired = RepairStores(places_);
  EXPECT_EQ(ProblemsOf(repaired), (std::vector{kAccess, kLocked}));
  EXPECT_TRUE(std::ranges::none_of(repaired, &StoreFinding::repaired));
  EXPECT_EQ(ReadFile(FileOf(storage::kMaterialDatabase)), access);
}

TEST_F(StoreDoctorTest, ADamagedFileOfTheLibraryIsFound) {
  fs::path file;
  for (const auto& entry :
       fs::recursive_directory_iterator(places_.data_folder / "Databases/Database/Infissi"))
    file = entry.path();
  ASSERT_FALSE(file.empty());
  fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
  WriteFile(file, "damaged");
  RepairedAtOnce({kDamaged});
}

}  // namespace
}  // namespace velmar::application
