#include "storage/files/unfinished.h"

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

TEST(Unfinished, StandsBesideItsFileAndGoesUnlessItIsRenamed) {
  const TemporaryFolder folder;
  fs::path given_up;
  {
    const Unfinished unfinished(folder / "a.mdb");
    given_up = unfinished.Path();
    EXPECT_EQ(given_up.parent_path(), folder.Path());
    WriteFile(given_up / "in a folder", "half");
  }
  EXPECT_FALSE(fs::exists(given_up));
  {
    const Unfinished unfinished(folder / "a.mdb");
    EXPECT_NE(unfinished.Path(), given_up);
    WriteFile(unfinished.Path(), "whole");
    fs::rename(unfinished.Path(), folder / "a.mdb");
  }
  EXPECT_EQ(ReadFile(folder / "a.mdb"), "whole");
}

TEST(RemoveAbandoned, TakesOnlyWhatIsOldAndUnfinished) {
  const TemporaryFolder folder;
  const auto two_hours_ago = fs::file_time_type::clock::now() - std::chrono::hours(2);
  const fs::path old = Unfinished(folder / "a.mdb").Path();
  const fs::path its_journal = old.string() + "-journal";
  const fs::path fresh = Unfinished(folder / "a.mdb").Path();
  for (const fs::path& file : {old, its_journal, folder / "mine.tmp", folder / "a.mdb"}) {
    WriteFile(file, "old");
    fs::last_write_time(file, two_hours_ago);
  }
  WriteFile(fresh, "at work");
  RemoveAbandoned(folder.Path());
  EXPECT_FALSE(fs::exists(old));
  EXPECT_FALSE(fs::exists(its_journal));
  EXPECT_TRUE(fs::exists(fresh));
  EXPECT_TRUE(fs::exists(folder / "mine.tmp"));
  EXPECT_TRUE(fs::exists(folder / "a.mdb"));
  RemoveAbandoned(folder / "none");
}

}  // namespace
}  // namespace velmar::storage
