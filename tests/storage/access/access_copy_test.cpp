#include "storage/access/access_copy.h"

#include <chrono>
#include <string>
#include <thread>

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "storage/database/connection.h"
#include "tests/storage/access/access_fixture.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

MessageRow RowOfFailure(const AccessReader& reader, const fs::path& source, const fs::path& target) {
  try {
    CopyAccessFile(reader, source, target);
  } catch (const AccessFailure& failure) {
    return LeadingRow(failure.UserMessage().at(0));
  }
  return {};
}

TEST_F(AccessTest, IsCopiedUnderAnyName) {
  const fs::path source = Take("jet4-schema-generated.mdb", "-- \"l'archivio\" $(touch x) è.mdb");
  CopyAccessFile(reader_, source, folder_ / "copy");
  EXPECT_GT(ReadDatabase(folder_ / "copy",
                         [](SQLite::Database& database) {
                           return database.execAndGet("SELECT count(*) FROM sqlite_master").getInt();
                         }),
            0);
}

TEST_F(AccessTest, EncryptedIsRefused) {
  const fs::path source = Take("ace14-encrypted.accdb", "e.mdb");
  EXPECT_EQ(RowOfFailure(reader_, source, folder_ / "copy"), MessageRow{1109});
  EXPECT_FALSE(fs::exists(folder_ / "copy"));
}

TEST(AccessCopy, OfADamagedFileIsRefused) {
  const TemporaryFolder folder;
  WriteAccessHead(folder / "d.mdb");
  EXPECT_EQ(RowOfFailure({VELMAR_ACCESS_READER}, folder / "d.mdb", folder / "copy"), MessageRow{1109});
  EXPECT_FALSE(fs::exists(folder / "copy"));
}

TEST(AccessCopy, TellsThatTheReaderIsMissing) {
  const TemporaryFolder folder;
  for (const AccessReader& reader : {AccessReader{}, AccessReader{folder / "none"}}) {
    EXPECT_EQ(RowOfFailure(reader, folder / "a", folder / "b"), MessageRow{1145});
  }
}

TEST(AccessCopy, TakesNothingFromAReaderThatFails) {
  const TemporaryFolder folder;
  for (const char* commands : {"echo half > \"$2\"; exit 4", "echo half > \"$2\"; kill -SEGV $$"}) {
    EXPECT_EQ(RowOfFailure(Script(folder, commands), folder / "a", folder / "b"), MessageRow{1109})
        << commands;
    EXPECT_FALSE(fs::exists(folder / "b"));
  }
}

TEST(AccessCopy, KillsAReaderThatHangsWithItsChildren) {
  const TemporaryFolder folder;
  const AccessReader reader =
      Script(folder, "sleep 30 & echo $! > \"$1.child\"; wait", std::chrono::milliseconds(300));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(RowOfFailure(reader, folder / "a", folder / "b"), MessageRow{1109});
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  const std::string child = ReadFile(folder / "a.child");
  ASSERT_FALSE(child.empty());
  const fs::path state = "/proc/" + std::to_string(std::stoi(child)) + "/stat";
  for (int i = 0; i < 200 && fs::exists(state) && ReadFile(state).find(" Z ") == std::string::npos; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_TRUE(!fs::exists(state) || ReadFile(state).find(" Z ") != std::string::npos);
}

TEST(AccessCopy, LeavesTheReaderNoneOfOurFilesAndSettings) {
  const TemporaryFolder folder;
  ::setenv("VELMAR_SECRET", "x", 1);
  CopyAccessFile(Script(folder, "env > \"$2\"; ls /proc/self/fd | wc -l >> \"$2\""), folder / "a",
                 folder / "b");
  const std::string said = ReadFile(folder / "b");
  EXPECT_EQ(said.find("VELMAR_SECRET"), std::string::npos);
  EXPECT_NE(said.find("LC_ALL=C"), std::string::npos);
}

}  // namespace
}  // namespace velmar::storage
