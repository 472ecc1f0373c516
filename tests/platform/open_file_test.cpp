#include "platform/open_file.h"

#include <array>
#include <cerrno>
#include <string>

#include <gtest/gtest.h>

#include "platform/file_system.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::platform {
namespace {

namespace fs = std::filesystem;

class OpenFileTest : public testing::Test {
 protected:
  std::string ContentOf(const fs::path& path) {
    OpenFile file = OpenFile::ForReading(path);
    std::array<char, 64> buffer{};
    const std::ptrdiff_t size = file.Read(buffer.data(), buffer.size());
    return size < 0 ? "error" : std::string(buffer.data(), static_cast<std::size_t>(size));
  }

  storage::TemporaryFolder folder_;
  fs::path path_ = folder_ / "a";
};

TEST_F(OpenFileTest, WhatWasWrittenIsRead) {
  OpenFile file = OpenFile::New(path_);
  ASSERT_TRUE(file.IsOpen());
  EXPECT_EQ(file.Write("ciao"), 0);
  EXPECT_EQ(file.Sync(), 0);
  EXPECT_EQ(file.Close(), 0);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(ContentOf(path_), "ciao");
}

TEST_F(OpenFileTest, ANewFileReplacesNothing) {
  ASSERT_TRUE(OpenFile::New(path_).IsOpen());
  const OpenFile again = OpenFile::New(path_);
  EXPECT_FALSE(again.IsOpen());
  EXPECT_EQ(again.Error(), EEXIST);
}

TEST_F(OpenFileTest, ALockKeepsTheNextOneOutUntilTheLastHolderCloses) {
  OpenFile first = OpenFile::New(path_);
  EXPECT_EQ(first.TakeLock(), Lock::kTaken);
  OpenFile second = OpenFile::ForReading(path_);
  EXPECT_EQ(second.TakeLock(), Lock::kHeldByOther);
  {
    const OpenFile held = first.Duplicate();
    first.Close();
    EXPECT_EQ(second.TakeLock(), Lock::kHeldByOther);
  }
  EXPECT_EQ(second.TakeLock(), Lock::kTaken);
}

TEST_F(OpenFileTest, KnowsWhenItsNameHasGoneToAnother) {
  const OpenFile file = OpenFile::New(path_);
  EXPECT_TRUE(file.IsAt(path_));
  fs::rename(path_, folder_ / "b");
  EXPECT_FALSE(file.IsAt(path_));
  OpenFile::New(path_);
  EXPECT_FALSE(file.IsAt(path_));
}

TEST_F(OpenFileTest, ALinkIsFollowedOnlyWhereAsked) {
  OpenFile::New(path_);
  fs::create_symlink(path_, folder_ / "link");
  EXPECT_TRUE(OpenFile::ForReading(folder_ / "link").IsOpen());
  EXPECT_FALSE(OpenFile::ForReadingUnlessLink(folder_ / "link").IsOpen());
}

TEST_F(OpenFileTest, TellsFoldersFromFilesAndTheirSize) {
  FileStatus status;
  OpenFile file = OpenFile::New(path_);
  file.Write("12345");
  ASSERT_EQ(file.Status(status), 0);
  EXPECT_TRUE(status.regular);
  EXPECT_FALSE(status.folder);
  EXPECT_EQ(status.size, 5u);
  ASSERT_EQ(StatusAt(folder_.Path(), status), 0);
  EXPECT_TRUE(status.folder);
  EXPECT_EQ(StatusAt(folder_ / "missing", status), ENOENT);
}

TEST_F(OpenFileTest, TakesOverThePermissionsOfTheFileThatItReplaces) {
  OpenFile::New(path_);
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
  FileStatus old;
  ASSERT_EQ(StatusAt(path_, old), 0);
  OpenFile next = OpenFile::New(folder_ / "b");
  EXPECT_EQ(next.TakeOverFrom(old), 0);
  EXPECT_EQ(fs::status(folder_ / "b").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(OpenFileTest, AMovedFileLeavesNothingOpenBehind) {
  OpenFile file = OpenFile::New(path_);
  const OpenFile moved = std::move(file);
  EXPECT_TRUE(moved.IsOpen());
  EXPECT_FALSE(file.IsOpen());  // NOLINT: that is what is tested
}

}  // namespace
}  // namespace velmar::platform
