#include "storage/files/whole_file.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/message_rows.h"
#include "storage/files/store_failure.h"
#include "tests/storage/support/full_disk.h"
#include "tests/storage/support/ordinary_user.h"
#include "tests/storage/support/temporary_folder.h"

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
  EXPECT_EQ(WriteFailure(At("loop")), StoreReason::kLinkLoop);
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
  std::optional<FullDisk> full(1000);
  std::optional<StoreReason> reason;
  try {
    WriteWhole(At("a"), std::string(5000, 'x'));
  } catch (const StoreFailure& failure) {
    reason = failure.Reason();
  }
  full.reset();
  EXPECT_EQ(reason, StoreReason::kDiskFull);
  EXPECT_EQ(Content(At("a")), "old");
  EXPECT_EQ(FileCount(), 1U);
}

/// The rows of what a failed write tells.
std::vector<int> RowsToldOf(const fs::path& path) {
  try {
    WriteWhole(path, "new");
  } catch (const StoreFailure& failure) {
    std::vector<int> rows;
    for (const MessageLine& line : failure.UserMessage()) rows.push_back(LeadingRow(line).number);
    return rows;
  }
  return {};
}

TEST(WriteWhole, SpeaksOfAFileBeforeOnlyWhereThereWasOne) {
  const OrdinaryUser user;
  const TemporaryFolder folder;
  WriteWhole(folder / "old", "old");
  fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(RowsToldOf(folder / "old"), (std::vector<int>{1133, 1136, 1165}));
  EXPECT_EQ(RowsToldOf(folder / "new"), (std::vector<int>{1133, 1136}));
  fs::permissions(folder.Path(), fs::perms::owner_all);
}

TEST(StoreFailure, TellsWhatTheSystemSaysWithoutItsEnglish) {
  const struct {
    int error;
    int row;
  } cases[] = {{ENOSPC, 1137}, {EDQUOT, 1137}, {EACCES, 1136}, {EROFS, 1136},  {ELOOP, 1166},
               {EIO, 1169},    {EMFILE, 1170}, {EBUSY, 1168},  {EISDIR, 1135}, {ENAMETOOLONG, 1167}};
  for (const auto& test : cases) {
    const StoreFailure failure(StoreAction::kWrite, test.error, "a", PreviousFile::kNone);
    EXPECT_EQ(failure.UserMessage().at(1), MessageLine{MessageRow{test.row}}) << test.error;
  }
  const StoreFailure other(StoreAction::kRead, EOVERFLOW, "a", PreviousFile::kNone);
  EXPECT_EQ(other.UserMessage().at(1), (MessageLine{MessageRow{1139}, " " + std::to_string(EOVERFLOW)}));
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
