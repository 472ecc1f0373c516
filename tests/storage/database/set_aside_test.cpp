#include "storage/database/set_aside.h"

#include <gtest/gtest.h>

#include "storage/database/database_failure.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

TEST(SetAside, KeepsTheDamagedBytesUnderAnotherName) {
  const TemporaryFolder folder;
  WriteFile(folder / "d.mdb", "damaged once");
  EXPECT_EQ(SetAside(folder / "d.mdb"), folder / "d.mdb.danneggiato");
  WriteFile(folder / "d.mdb", "damaged twice");
  WriteFile(folder / "d.mdb-journal", "journal");
  EXPECT_EQ(SetAside(folder / "d.mdb"), folder / "d.mdb.danneggiato2");
  EXPECT_EQ(ReadFile(folder / "d.mdb.danneggiato"), "damaged once");
  EXPECT_EQ(ReadFile(folder / "d.mdb.danneggiato2"), "damaged twice");
  EXPECT_EQ(ReadFile(folder / "d.mdb.danneggiato2-journal"), "journal");
  EXPECT_FALSE(std::filesystem::exists(folder / "d.mdb"));
  EXPECT_THROW(SetAside(folder / "d.mdb"), DatabaseFailure);
}

TEST(ConditionOf, TellsADamagedPageFromAGoodFile) {
  const TemporaryFolder folder;
  const auto file = folder / "d.mdb";
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kMissing);
  Execute(file, {"CREATE TABLE t (a TEXT)", "CREATE INDEX i ON t (a)",
                 "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) "
                 "INSERT INTO t SELECT 'row ' || i FROM n"});
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kGood);
  std::string bytes = ReadFile(file);
  ASSERT_GT(bytes.size(), 5 * 4096U);
  bytes.replace(2 * 4096, 4096, 4096, '\x55');
  WriteFile(file, bytes);
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kDamaged);
  WriteFile(file, bytes.substr(0, bytes.size() / 2));
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kDamaged);
  WriteFile(file, std::string("\0\1\0\0Standard ACE DB\0", 20));
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kAccess);
}

}  // namespace
}  // namespace velmar::storage
