#include "application/store_check.h"

#include <fstream>

#include <SQLiteCpp/Database.h>

#include "storage/database/file_kind.h"
#include "storage/database/set_aside.h"
#include "storage/files/unfinished.h"
#include "tests/application/start_fixture.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/ordinary_user.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using Said = std::vector<std::string>;
using storage::ReadFile;
using storage::WriteFile;

/// What a store that cannot be used costs.
std::string Without(Store store) {
  switch (store) {
    case Store::kMessages:
      return "1149";
    case Store::kMaterials:
      return "1147";
    case Store::kResults:
      return "1148";
  }
  return "";
}

fs::path With(const fs::path& file, const char* ending) { return file.string() + ending; }

class StoreCheckTest : public StartTest {};

TEST_F(StoreCheckTest, AGoodStoreIsLeftAlone) {
  for (const Store store : kStores) {
    WriteFile(FileOf(NameOf(store)), ShippedBytes(NameOf(store)));
    RecordedTalk recorded;
    EXPECT_TRUE(PrepareStore(store, places_, recorded.talk));
    EXPECT_EQ(recorded.said, Said());
    EXPECT_EQ(ReadFile(FileOf(NameOf(store))), ShippedBytes(NameOf(store)));
  }
}

struct Damage {
  const char* name;
  std::string (*apply)(std::string bytes);
};

const Damage kDamages[] = {
    {"no bytes", [](std::string) { return std::string(); }},
    {"no database", [](std::string) { return std::string("no database"); }},
    {"the first bytes alone", [](std::string bytes) { return bytes.substr(0, 10); }},
    {"half of it", [](std::string bytes) { return bytes.substr(0, bytes.size() / 2 + 100); }},
    {"a page of rubbish", [](std::string bytes) { return bytes.replace(4096, 4096, 4096, '\x55'); }},
    {"a header of rubbish", [](std::string bytes) { return bytes.replace(16, 84, 84, '\xAA'); }},
};

TEST_F(StoreCheckTest, ADamagedStoreIsSetAsideAndTheShippedOneTakesItsPlace) {
  for (const Store store : kStores) {
    const fs::path file = FileOf(NameOf(store));
    int number = 0;
    for (const Damage& damage : kDamages) {
      SCOPED_TRACE(std::string(NameOf(store)) + ": " + damage.name);
      const std::string damaged = damage.apply(ShippedBytes(NameOf(store)));
      WriteFile(file, damaged);
      RecordedTalk recorded;
      EXPECT_TRUE(PrepareStore(store, places_, recorded.talk));
      EXPECT_EQ(recorded.said, Said({"warn 1115+1151"}));
      const std::string ending = ++number == 1 ? "" : std::to_string(number);
      EXPECT_EQ(ReadFile(With(file, (".danneggiato" + ending).c_str())), damaged) << "kept under a free name";
      EXPECT_EQ(ReadFile(file), ShippedBytes(NameOf(store)));
      RecordedTalk second;
      EXPECT_TRUE(PrepareStore(store, places_, second.talk));
      EXPECT_EQ(second.said, Said()) << "told once";
    }
  }
}

TEST_F(StoreCheckTest, AMissingStoreIsRestored) {
  for (const Store store : kStores) {
    RecordedTalk recorded;
    EXPECT_TRUE(PrepareStore(store, places_, recorded.talk));
    EXPECT_EQ(recorded.said, Said({"warn 1152+1151"}));
    EXPECT_EQ(ReadFile(FileOf(NameOf(store))), ShippedBytes(NameOf(store)));
  }
}

TEST_F(StoreCheckTest, WithoutShippedDataTheStartGoesOnWithout) {
  places_.shipped.reset();
  for (const Store store : kStores) {
    RecordedTalk recorded;
    EXPECT_FALSE(PrepareStore(store, places_, recorded.talk));
    WriteFile(FileOf(NameOf(store)), "damaged");
    EXPECT_FALSE(PrepareStore(store, places_, recorded.talk));
    EXPECT_EQ(recorded.said, Said({"warn 1153+" + Without(store), "warn 1115+" + Without(store)}));
    EXPECT_EQ(ReadFile(With(FileOf(NameOf(store)), ".danneggiato")), "damaged");
  }
}

/// A start that was killed between setting aside and restoring leaves a journal that no longer fits.
TEST_F(StoreCheckTest, AStrayJournalDoesNotReachTheRestoredDatabase) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  WriteFile(With(file, "-journal"), "journal of another file");
  WriteFile(With(file, "-wal"), "log of another file");
  RecordedTalk recorded;
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  EXPECT_FALSE(fs::exists(With(file, "-journal")));
  EXPECT_FALSE(fs::exists(With(file, "-wal")));
  EXPECT_EQ(ReadFile(With(file, ".danneggiato-journal")), "journal of another file");
  EXPECT_EQ(ReadFile(With(file, ".danneggiato-wal")), "log of another file");
}

TEST_F(StoreCheckTest, AStoreThatAnotherProgramHoldsIsLeftAlone) {
  const fs::path file = FileOf(storage::kResultDatabase);
  WriteFile(file, ShippedBytes(storage::kResultDatabase));
  SQLite::Database other(file.string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  RecordedTalk recorded;
  EXPECT_FALSE(PrepareStore(Store::kResults, places_, recorded.talk));
  EXPECT_EQ(recorded.said, Said({"warn 1107+1148"}));
  EXPECT_EQ(ReadFile(file), ShippedBytes(storage::kResultDatabase));
}

TEST_F(StoreCheckTest, WhatAKilledStartLeftUnfinishedGoes) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  WriteFile(file, ShippedBytes(storage::kMaterialDatabase));
  const fs::path left = file.parent_path() / ".velmar-1-2.tmp";
  WriteFile(left, "half");
  const storage::Unfinished at_work(file);
  RecordedTalk recorded;
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  EXPECT_FALSE(fs::exists(left));
  EXPECT_TRUE(fs::exists(at_work.Path().parent_path())) << "somebody is at work there";
}

std::string Fixture(const char* name) { return ReadFile(fs::path(DAMAGED_DATABASES) / name); }

TEST_F(StoreCheckTest, AnIndexThatDoesNotAgreeIsBuiltAnewWhenAsked) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  const std::string damaged = Fixture("row-deleted-past-its-index-materials.mdb");
  WriteFile(file, damaged);
  EXPECT_EQ(storage::ConditionOf(file), storage::DatabaseCondition::kIndex);

  RecordedTalk declined({{1163, false}});
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, declined.talk)) << "the tables are whole";
  EXPECT_EQ(declined.said, Said({"ask 1163"}));
  EXPECT_EQ(ReadFile(file), damaged);

  RecordedTalk accepted({{1163, true}});
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, accepted.talk));
  EXPECT_EQ(accepted.said, Said({"ask 1163", "tell 1164"}));
  EXPECT_EQ(storage::ConditionOf(file), storage::DatabaseCondition::kGood);
  std::vector<fs::path> copies;
  for (const auto& entry : fs::directory_iterator(file.parent_path())) {
    if (entry.path().filename().string().starts_with("Database.mdb.copia-")) copies.push_back(entry.path());
  }
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(ReadFile(copies[0]), damaged);
  RecordedTalk second;
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, second.talk));
  EXPECT_EQ(second.said, Said()) << "told once";
}

TEST_F(StoreCheckTest, AnIndexThatCannotBeBuiltAnewIsSetAside) {
  // Two rows of one name, under an index that allows one.
  const fs::path file = FileOf(storage::kResultDatabase);
  fs::create_directories(file.parent_path());
  storage::Execute(file,
                   {"CREATE TABLE t (a TEXT)", "CREATE INDEX i ON t (a)", "INSERT INTO t VALUES ('x'), ('x')",
                    "PRAGMA writable_schema = ON",
                    "UPDATE sqlite_master SET sql = 'CREATE UNIQUE INDEX i ON t (a)' WHERE name = 'i'"});
  ASSERT_EQ(storage::ConditionOf(file), storage::DatabaseCondition::kIndex);
  const std::string damaged = ReadFile(file);
  RecordedTalk recorded({{1163, true}});
  EXPECT_TRUE(PrepareStore(Store::kResults, places_, recorded.talk));
  EXPECT_EQ(ReadFile(file), ShippedBytes(storage::kResultDatabase));
  EXPECT_EQ(ReadFile(With(file, ".danneggiato")), damaged);
}

TEST_F(StoreCheckTest, PagesThatDoNotFitTogetherAreSetAside) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  WriteFile(file, Fixture("pages-swapped-materials.mdb"));
  RecordedTalk recorded;
  EXPECT_TRUE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  EXPECT_EQ(recorded.said, Said({"warn 1115+1151"}));
}

TEST_F(StoreCheckTest, AFolderUnderTheNameIsLeftAloneAndNotCalledDamaged) {
  const fs::path file = FileOf(storage::kMaterialDatabase);
  fs::create_directories(file / "mine");
  RecordedTalk recorded;
  EXPECT_FALSE(PrepareStore(Store::kMaterials, places_, recorded.talk));
  EXPECT_EQ(recorded.said, Said({"warn 1113+1135+1147"}));
  EXPECT_TRUE(fs::exists(file / "mine"));
}

/// A folder in which nothing can be written, and a file that may not be read.
class ReadOnlyStoreTest : public testing::Test {
 protected:
  void Lock(const std::string& bytes) {
    if (!bytes.empty()) WriteFile(file_, bytes);
    fs::create_directories(file_.parent_path());
    fs::permissions(file_.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  }
  void TearDown() override { fs::permissions(file_.parent_path(), fs::perms::owner_all); }

  Said Prepare(std::map<int, bool> answers = {}) const {
    RecordedTalk recorded(std::move(answers));
    EXPECT_FALSE(PrepareStore(Store::kMaterials, places_, recorded.talk));
    return recorded.said;
  }

  storage::OrdinaryUser user_;
  storage::TemporaryFolder folder_;
  StorePlaces places_{.data_folder = folder_ / "data", .shipped = fs::path(SHIPPED), .reader = {"none"}};
  fs::path file_ = places_.data_folder / storage::kMaterialDatabase;
};

TEST_F(ReadOnlyStoreTest, ADamagedStoreStays) {
  Lock("damaged");
  EXPECT_EQ(Prepare(), Said({"warn 1104+1147"}));
  EXPECT_EQ(ReadFile(file_), "damaged");
}

TEST_F(ReadOnlyStoreTest, AMissingStoreStaysMissing) {
  Lock("");
  EXPECT_EQ(Prepare(), Said({"warn 1153+1147"}));
  EXPECT_TRUE(fs::is_empty(file_.parent_path()));
}

TEST_F(ReadOnlyStoreTest, AnAccessStoreIsNotOfferedForConversion) {
  Lock(std::string("\0\1\0\0Standard Jet DB\0\1", 21));
  EXPECT_EQ(Prepare({{1110, true}}), Said({"warn 1154+1147"}));
}

TEST_F(ReadOnlyStoreTest, AStoreThatMayNotBeReadIsLeftAlone) {
  Lock("secret");
  fs::permissions(file_, fs::perms::none);
  EXPECT_EQ(Prepare(), Said({"warn 1113+1147"}));
  fs::permissions(file_, fs::perms::owner_read);
  EXPECT_EQ(ReadFile(file_), "secret");
}

}  // namespace
}  // namespace velmar::application
