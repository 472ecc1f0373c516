#include "storage/configuration/first_start.h"

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

class FirstStartTest : public testing::Test {
 protected:
  FirstStartTest() {
    WriteFile(shipped_ / "Databases/InterfMess.mdb", "messages");
    WriteFile(shipped_ / "Databases/Database/Infissi/a.mdb", "windows");
    fs::permissions(shipped_ / "Databases/InterfMess.mdb", fs::perms::owner_read);
  }
  TemporaryFolder folder_;
  fs::path shipped_ = folder_ / "share";
  fs::path data_ = folder_ / "home/Documenti/VELMARpro";
};

TEST_F(FirstStartTest, CopiesTheShippedDataWhole) {
  EXPECT_EQ(PrepareDataFolder(data_, shipped_), DataFolderState::kCreated);
  EXPECT_EQ(ReadFile(data_ / "Databases/InterfMess.mdb"), "messages");
  EXPECT_EQ(ReadFile(data_ / "Databases/Database/Infissi/a.mdb"), "windows");
  const fs::perms copied = fs::status(data_ / "Databases/InterfMess.mdb").permissions();
  EXPECT_NE(copied & fs::perms::owner_write, fs::perms::none)
      << "a read-only original gives a copy one can change";
  EXPECT_EQ(std::distance(fs::directory_iterator(data_.parent_path()), {}), 1) << "nothing unfinished stays";
}

TEST_F(FirstStartTest, WhatTheFirstVersionShippedIsNotCopied) {
  WriteFile(shipped_ / "Former/Databases/InterfMess.mdb", "x");
  PrepareDataFolder(data_, shipped_);
  EXPECT_FALSE(fs::exists(data_ / "Former"));
}

TEST_F(FirstStartTest, NeverTouchesAFolderThatIsThere) {
  WriteFile(data_ / "mine.txt", "mine");
  EXPECT_EQ(PrepareDataFolder(data_, shipped_), DataFolderState::kThere);
  EXPECT_FALSE(fs::exists(data_ / "Databases"));
  fs::remove_all(data_);
  fs::create_directory(data_);
  EXPECT_EQ(PrepareDataFolder(data_, shipped_), DataFolderState::kThere);
  EXPECT_TRUE(fs::is_empty(data_));
}

TEST_F(FirstStartTest, RemovesWhatAnEarlierOneLeftUnfinished) {
  const fs::path abandoned = data_.parent_path() / ".velmar-1-2.tmp";
  WriteFile(abandoned / "Databases/InterfMess.mdb", "half");
  PrepareDataFolder(data_, shipped_);
  EXPECT_FALSE(fs::exists(abandoned));
}

TEST_F(FirstStartTest, TakesATrailingSeparator) {
  EXPECT_EQ(PrepareDataFolder(data_.string() + "/", shipped_), DataFolderState::kCreated);
  EXPECT_TRUE(fs::exists(data_ / "Databases"));
}

TEST_F(FirstStartTest, AFailureHasWordsAndLeavesNothing) {
  WriteFile(folder_ / "home/Documenti", "a file where a folder is due");
  try {
    PrepareDataFolder(data_, shipped_);
    FAIL();
  } catch (const Failure& failure) {
    for (const MessageLine& line : failure.UserMessage()) {
      EXPECT_EQ(LeadingRow(line), MessageRow{}) << "no catalogue is there to take rows from";
    }
  }
  EXPECT_THROW(PrepareDataFolder(folder_ / "other", folder_ / "no share"), Failure);
  EXPECT_FALSE(fs::exists(folder_ / "other"));
}

/// The reason is said in both languages, and only what it is.
TEST_F(FirstStartTest, AFailureNamesItsReason) {
  WriteFile(folder_ / "home/Documenti", "a file where a folder is due");
  try {
    PrepareDataFolder(data_, shipped_);
    FAIL();
  } catch (const Failure& failure) {
    std::string said;
    for (const MessageLine& line : failure.UserMessage()) said += std::get<std::string>(line.at(0)) + "\n";
    EXPECT_NE(said.find("non esiste"), std::string::npos) << said;
    EXPECT_NE(said.find("does not exist"), std::string::npos) << said;
    EXPECT_EQ(said.find("permessi"), std::string::npos) << said;
    EXPECT_EQ(said.find("filesystem error"), std::string::npos) << said;
  }
}

TEST_F(FirstStartTest, RestoresAFileOnlyWhenAskedAndMissing) {
  PrepareDataFolder(data_, shipped_);
  fs::remove(data_ / "Databases/InterfMess.mdb");
  PrepareDataFolder(data_, shipped_);
  EXPECT_FALSE(fs::exists(data_ / "Databases/InterfMess.mdb"));
  EXPECT_TRUE(RestoreShippedFile(data_, shipped_, "Databases/InterfMess.mdb"));
  WriteFile(data_ / "Databases/InterfMess.mdb", "mine");
  EXPECT_FALSE(RestoreShippedFile(data_, shipped_, "Databases/InterfMess.mdb"));
  EXPECT_EQ(ReadFile(data_ / "Databases/InterfMess.mdb"), "mine");
}

}  // namespace
}  // namespace velmar::storage
