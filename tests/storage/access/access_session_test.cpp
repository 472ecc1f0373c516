#include "storage/access/access_session.h"

#include <gtest/gtest.h>

#include "tests/storage/access/access_fixture.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// Counts its calls in "$1.calls".
constexpr const char* kCounting = "echo x >> \"$1.calls\"; echo copy > \"$2\"";

std::size_t Calls(const fs::path& file) { return ReadFile(file.string() + ".calls").size() / 2; }

TEST(AccessSession, LeavesOtherFilesAsTheyAre) {
  const TemporaryFolder folder;
  AccessSession session(Script(folder, kCounting));
  WriteFile(folder / "a.mdb", std::string("SQLite format 3\0", 16));
  EXPECT_EQ(session.Readable(folder / "a.mdb"), folder / "a.mdb");
  EXPECT_EQ(session.Readable(folder / "none.mdb"), folder / "none.mdb");
}

TEST(AccessSession, CopiesOnceUntilTheFileChanges) {
  const TemporaryFolder folder;
  const fs::path file = folder / "a.mdb";
  WriteAccessHead(file);
  fs::path copy;
  {
    AccessSession session(Script(folder, kCounting));
    copy = session.Readable(file);
    EXPECT_EQ(session.Readable(file), copy);
    EXPECT_EQ(Calls(file), 1U);
    EXPECT_EQ(fs::status(copy.parent_path()).permissions(), fs::perms::owner_all);
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(2));
    EXPECT_NE(session.Readable(file), copy);
    EXPECT_EQ(Calls(file), 2U);
    fs::remove(copy);
    fs::last_write_time(file, fs::last_write_time(file) - std::chrono::seconds(2));
    EXPECT_TRUE(fs::exists(session.Readable(file))) << "a copy that was cleaned away is made again";
  }
  EXPECT_FALSE(fs::exists(copy.parent_path()));
}

TEST(AccessSession, DoesNotTryAFileAgainThatFailed) {
  const TemporaryFolder folder;
  const fs::path file = folder / "a.mdb";
  WriteAccessHead(file);
  AccessSession session(Script(folder, "echo x >> \"$1.calls\"; exit 4"));
  EXPECT_THROW(session.Readable(file), AccessFailure);
  EXPECT_THROW(session.Readable(file), AccessFailure);
  EXPECT_EQ(Calls(file), 1U);
}

}  // namespace
}  // namespace velmar::storage
