#include "storage/database/rename.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

TEST(Rename, NeverReplacesAFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "a", "A");
  WriteFile(folder / "b", "B");
  EXPECT_FALSE(RenameToFreeName(folder / "a", folder / "b"));
  EXPECT_EQ(ReadFile(folder / "b"), "B");
  EXPECT_TRUE(RenameToFreeName(folder / "a", folder / "c"));
  EXPECT_EQ(ReadFile(folder / "c"), "A");
}

TEST(Rename, CountsWhereTheEndingIsTaken) {
  const TemporaryFolder folder;
  for (const std::string bytes : {"1", "2", "3"}) {
    WriteFile(folder / "x.mdb", bytes);
    RenameWithEnding(folder / "x.mdb", ".originale");
  }
  EXPECT_EQ(ReadFile(folder / "x.mdb.originale"), "1");
  EXPECT_EQ(ReadFile(folder / "x.mdb.originale2"), "2");
  EXPECT_EQ(ReadFile(folder / "x.mdb.originale3"), "3");
}

TEST(Rename, TellsAFailure) {
  const TemporaryFolder folder;
  EXPECT_THROW(RenameToFreeName(folder / "none", folder / "b"), std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace velmar::storage
