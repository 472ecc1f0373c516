#include "platform/file_system.h"

#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::platform {
namespace {

namespace fs = std::filesystem;

TEST(FileSystem, ARenameReplacesOrLeavesAloneAsAsked) {
  const storage::TemporaryFolder folder;
  std::ofstream(folder / "a") << "1";
  std::ofstream(folder / "b") << "22";
  EXPECT_EQ(RenameUnlessTaken(folder / "a", folder / "b"), RenameOutcome::kTaken);
  EXPECT_EQ(fs::file_size(folder / "b"), 2u);
  EXPECT_EQ(Rename(folder / "a", folder / "b"), 0);
  EXPECT_EQ(fs::file_size(folder / "b"), 1u);
  EXPECT_EQ(RenameUnlessTaken(folder / "b", folder / "c"), RenameOutcome::kDone);
  EXPECT_THROW(RenameUnlessTaken(folder / "missing", folder / "d"), fs::filesystem_error);
  EXPECT_NE(Rename(folder / "missing", folder / "d"), 0);
}

TEST(FileSystem, NobodyWritesWhereThereIsNothing) {
  const storage::TemporaryFolder folder;
  EXPECT_TRUE(MayWrite(folder.Path()));
  EXPECT_FALSE(MayWrite(folder / "missing"));
}

TEST(FileSystem, SyncingWhatIsMissingIsNoFailure) { EXPECT_NO_THROW(SyncToDisk("/missing/file")); }

TEST(FileSystem, TheHomeFolderIsTheOneThatTheEnvironmentNames) {
  const char* before = std::getenv("HOME");
  const std::string kept = before == nullptr ? "" : before;
  ::setenv("HOME", "/casa/mia", 1);
  EXPECT_EQ(HomeFolder(), "/casa/mia");
  ::setenv("HOME", "", 1);
  EXPECT_TRUE(HomeFolder().is_absolute());
  ::setenv("HOME", kept.c_str(), 1);
}

}  // namespace
}  // namespace velmar::platform
