#include "storage/files/whole_file.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <optional>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/message_rows.h"
#include "storage/files/store_failure.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
 protected:
  WholeFileTest() : folder_(fs::temp_directory_path() / ("velmar-whole-file-" + std::to_string(::getpid()))) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~WholeFileTest() override { fs::remove_all(folder_); }

  fs::path At(const char* name) const { return folder_ / name; }
  static std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t FileCount() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
  }
  static StoreReason WriteFailure(const fs::path& path) {
    try {
      WriteWhole(path, "new");
    } catch (const StoreFailure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().at(0)), kCannotWriteRow);
      EXPECT_EQ(failure.UserMessage().size(), 2U);
      return failure.Reason();
    }
    ADD_FAILURE() << "written: " << path;
    return StoreReason::kSystem;
  }
  static StoreReason ReadFailure(const fs::path& path, std::size_t limit) {
    try {
      ReadWhole(path, limit);
    } catch (const StoreFailure& failure) {
      EXPECT_EQ(LeadingRow(failure.UserMessage().at(0)), kCannotReadRow);
      return failure.Reason();
    }
    ADD_FAILURE() << "read: " << path;
    return StoreReason::kSystem;
  }

  fs::path folder_;
};

TEST_F(WholeFileTest, HoldsExactlyTheBytes) {
  std::string bytes(200'000, 'x');
  bytes[7] = '\0';
  bytes[8] = '\n';
  WriteWhole(At("a"), bytes);
  EXPECT_EQ(ReadWhole(At("a"), bytes.size()), bytes);
  WriteWhole(At("a"), "");
  EXPECT_EQ(ReadWhole(At("a"), 10), "");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(WholeFileTest, KeepsThePermissionsOfWhatItReplaces) {
  WriteWhole(At("a"), "old");
  fs::permissions(At("a"), fs::perms{0640});
  WriteWhole(At("a"), "new");
  EXPECT_EQ(fs::status(At("a")).permissions(), fs::perms{0640});
  EXPECT_EQ(Content(At("a")), "new");
}

TEST_F(WholeFileTest, FollowsLinks) {
  WriteWhole(At("target"), "old");
  fs::create_symlink("target", At("link"));
  fs::create_symlink(At("link"), At("second"));
  WriteWhole(At("second"), "new");
  EXPECT_TRUE(fs::is_symlink(At("second")));
  EXPECT_TRUE(fs::is_symlink(At("link")));
  EXPECT_EQ(Content(At("target")), "new");

  fs::create_symlink("not-yet", At("dangling"));
  WriteWhole(At("dangling"), "made");
  EXPECT_EQ(Content(At("not-yet")), "made");

  fs::create_symlink("loop", At("loop"));
  EXPECT_EQ(WriteFailure(At("loop")), StoreReason::kSystem);
}

TEST_F(WholeFileTest, WritesIntoTheCurrentFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  WriteWhole("plain", "here");
  fs::current_path(before);
  EXPECT_EQ(Content(At("plain")), "here");
}

TEST_F(WholeFileTest, RefusesWhatIsNoFile) {
  fs::create_directory(At("folder"));
  EXPECT_EQ(WriteFailure(At("folder")), StoreReason::kIsFolder);
  EXPECT_EQ(ReadFailure(At("folder"), 10), StoreReason::kIsFolder);
  ASSERT_EQ(::mkfifo(At("pipe").c_str(), 0600), 0);
  EXPECT_EQ(WriteFailure(At("pipe")), StoreReason::kNotAFile);
  EXPECT_EQ(ReadFailure(At("pipe"), 10), StoreReason::kNotAFile);
}

TEST_F(WholeFileTest, SaysThatAFolderOrFileIsMissing) {
  EXPECT_EQ(WriteFailure(At("none") / "a"), StoreReason::kNotFound);
  WriteWhole(At("file"), "old");
  EXPECT_EQ(WriteFailure(At("file") / "a"), StoreReason::kNotFound);
  EXPECT_EQ(ReadFailure(At("none"), 10), StoreReason::kNotFound);
}

TEST_F(WholeFileTest, LeavesAReadOnlyFileAlone) {
  WriteWhole(At("a"), "old");
  fs::permissions(At("a"), fs::perms{0444});
  EXPECT_EQ(WriteFailure(At("a")), StoreReason::kNotAllowed);
  EXPECT_EQ(Content(At("a")), "old");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(WholeFileTest, AFullDiskLeavesTheOldFileAndNothingElse) {
  WriteWhole(At("a"), "old");
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 1000;
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  std::optional<StoreReason> reason;
  try {
    WriteWhole(At("a"), std::string(5000, 'x'));
  } catch (const StoreFailure& failure) {
    reason = failure.Reason();
  }
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(reason, StoreReason::kDiskFull);
  EXPECT_EQ(Content(At("a")), "old");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(WholeFileTest, ReadsNothingAboveItsLimit) {
  WriteWhole(At("a"), "12345");
  EXPECT_EQ(ReadWhole(At("a"), 5), "12345");
  EXPECT_EQ(ReadFailure(At("a"), 4), StoreReason::kTooLarge);
  // A file of a terabyte that takes no room.
  fs::resize_file(At("a"), std::uintmax_t{1} << 40);
  EXPECT_EQ(ReadFailure(At("a"), 1000), StoreReason::kTooLarge);
}

}  // namespace
}  // namespace velmar::storage
