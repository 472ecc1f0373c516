#include "storage/database/permissions.h"

#include <gtest/gtest.h>

#include "tests/storage/support/ordinary_user.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

TEST(MayBeChanged, NeedsAWritableFileInAWritableFolder) {
  const OrdinaryUser user;
  const TemporaryFolder folder;
  const fs::path file = folder / "data/d.mdb";
  WriteFile(file, "");
  EXPECT_TRUE(MayBeChanged(file));
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(MayBeChanged(file));
  EXPECT_FALSE(TakesFiles(file.parent_path()));
  fs::permissions(file.parent_path(), fs::perms::owner_all);
  EXPECT_TRUE(TakesFiles(file.parent_path()));
  EXPECT_FALSE(MayBeChanged(folder / "none"));
}

TEST(MayBeChanged, HoldsAMarkAlsoForTheSuperuser) {
  const TemporaryFolder folder;
  WriteFile(folder / "d.mdb", "");
  fs::permissions(folder / "d.mdb", fs::perms::owner_read);
  EXPECT_FALSE(MayBeChanged(folder / "d.mdb"));
}

}  // namespace
}  // namespace velmar::storage
