#include "storage/results/results_store.h"

#include <gtest/gtest.h>

#include "storage/database/database_failure.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/full_disk.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

SavedResult Wall(const std::string& name) {
  SavedResult result;
  result.name = name;
  result.description = "PARETE 1: Mattone (80 mm)";
  result.rating = 43.0;
  result.bands.fill(40.0 + 0.1 + 0.2);
  result.adaptation = -1.0;
  result.other_adaptation = -5.0;
  return result;
}

class ResultsStoreTest : public testing::Test {
 protected:
  ResultsStoreTest() { MakeTables(file_, ResultTables()); }

  std::string Names(ResultTable table = ResultTable::kAirborne) {
    std::string names;
    for (const ListedResult& result : store_.List(table)) names += result.name + "|";
    return names;
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "Database_teorico.mdb";
  ResultsStore store_{file_};
};

TEST_F(ResultsStoreTest, GivesBackWhatWasSaved) {
  const SavedResult wall = Wall("Parete \"x\" dell'ingresso");
  EXPECT_EQ(store_.Save(ResultTable::kAirborne, wall), SaveStatus::kSaved);
  EXPECT_EQ(store_.Find(ResultTable::kAirborne, "PARETE \"X\" DELL'INGRESSO"), wall);
  EXPECT_EQ(store_.List(ResultTable::kAirborne)[0].description, wall.description);
}

TEST_F(ResultsStoreTest, ANameIsThereOnceWithoutRegardToCase) {
  store_.Save(ResultTable::kAirborne, Wall("Città"));
  EXPECT_EQ(store_.Save(ResultTable::kAirborne, Wall("CITTÀ")), SaveStatus::kNameExists);
  EXPECT_EQ(store_.Save(ResultTable::kImpact, Wall("Città")), SaveStatus::kSaved)
      << "each table has its own names";
  EXPECT_EQ(Names(), "Città|");
}

TEST_F(ResultsStoreTest, AnEmptyNameSavesNothing) {
  EXPECT_EQ(store_.Save(ResultTable::kAirborne, Wall("")), SaveStatus::kNoName);
  EXPECT_EQ(Names(), "");
}

/// Lists and tables show a name in one line, and look-ups ask for it.
TEST_F(ResultsStoreTest, ANameThatCannotBeShownSavesNothing) {
  for (const char* name : {" ", "\t", "\u00A0", "Parete\nest", "Parete\r", "a\x01", "citt\xE0"}) {
    EXPECT_EQ(store_.Save(ResultTable::kAirborne, Wall(name)), SaveStatus::kBadName)
        << testing::PrintToString(name);
  }
  EXPECT_EQ(Names(), "");
}

TEST_F(ResultsStoreTest, ATableWithAColumnNamedRowidIsReadAndChanged) {
  std::filesystem::copy_file(std::filesystem::path(DAMAGED_DATABASES) / "own-rowid-column-results.mdb", file_,
                             std::filesystem::copy_options::overwrite_existing);
  for (const ResultTable table : {ResultTable::kAirborne, ResultTable::kImpact, ResultTable::kLining}) {
    const auto listed = store_.List(table);
    ASSERT_FALSE(listed.empty());
    for (const ListedResult& result : listed) EXPECT_TRUE(store_.Find(table, result.name)) << result.name;
    EXPECT_EQ(store_.Save(table, Wall("Nuovo")), SaveStatus::kSaved);
    EXPECT_TRUE(store_.Delete(table, listed.front().name));
    EXPECT_EQ(store_.List(table).size(), listed.size());
    EXPECT_FALSE(store_.Find(table, listed.front().name));
  }
}

TEST_F(ResultsStoreTest, TheColumnOfTheMessagesComesWithTheFirstOfThem) {
  const auto has_column = [this] {
    return ReadDatabase(file_, [](SQLite::Database& database) {
      return TableRows(database, SchemaOf(ResultTable::kAirborne)).Has(kMessagesColumn);
    });
  };
  store_.Save(ResultTable::kAirborne, Wall("a"));
  EXPECT_FALSE(has_column());
  SavedResult told = Wall("b");
  told.messages = "Fuori dal campo\nProseguito";
  EXPECT_EQ(store_.Save(ResultTable::kAirborne, told), SaveStatus::kSaved);
  EXPECT_TRUE(has_column());
  EXPECT_EQ(store_.Find(ResultTable::kAirborne, "b"), told);
  EXPECT_EQ(store_.Find(ResultTable::kAirborne, "a"), Wall("a"));
  store_.Save(ResultTable::kAirborne, told);
  EXPECT_EQ(store_.List(ResultTable::kAirborne).size(), 2U);
}

TEST_F(ResultsStoreTest, ALongDescriptionIsStoredCut) {
  SavedResult wall = Wall("a");
  wall.description.assign(300, 'x');
  store_.Save(ResultTable::kAirborne, wall);
  EXPECT_EQ(store_.Find(ResultTable::kAirborne, "a")->description.size(), 250U);
}

TEST_F(ResultsStoreTest, DeletingRegardsCaseWhereTheLookUpDoesNot) {
  store_.Save(ResultTable::kAirborne, Wall("Parete"));
  store_.Save(ResultTable::kAirborne, Wall("Solaio"));
  EXPECT_FALSE(store_.Delete(ResultTable::kAirborne, "PARETE"));
  EXPECT_TRUE(store_.Delete(ResultTable::kAirborne, "Parete"));
  EXPECT_FALSE(store_.Delete(ResultTable::kAirborne, "Parete"));
  EXPECT_EQ(Names(), "Solaio|");
}

TEST_F(ResultsStoreTest, AMissingFileSavesNothingAndMakesNone) {
  ResultsStore store(folder_ / "none.mdb");
  EXPECT_THROW(store.Save(ResultTable::kAirborne, Wall("a")), DatabaseFailure);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "none.mdb"));
}

TEST_F(ResultsStoreTest, AFullDiskLeavesTheTable) {
  store_.Save(ResultTable::kAirborne, Wall("Parete"));
  std::optional<DatabaseProblem> problem;
  {
    const FullDisk full(1000);
    try {
      store_.Save(ResultTable::kAirborne, Wall("Altra"));
    } catch (const DatabaseFailure& failure) {
      problem = failure.Problem();
    }
  }
  EXPECT_EQ(problem, DatabaseProblem::kDiskFull);
  EXPECT_EQ(Names(), "Parete|");
  EXPECT_EQ(store_.Save(ResultTable::kAirborne, Wall("Altra")), SaveStatus::kSaved);
}

}  // namespace
}  // namespace velmar::storage
