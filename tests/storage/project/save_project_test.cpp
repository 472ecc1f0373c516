#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "foundation/message_rows.h"
#include "storage/files/store_failure.h"
#include "storage/project/project_failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"
#include "tests/storage/project/sample_setup.h"
#include "tests/storage/support/full_disk.h"
#include "tests/storage/support/ordinary_user.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;
using enum elements::Calculation;

class SaveProjectTest : public testing::Test {
 protected:
  SaveProjectTest() : folder_(fs::temp_directory_path() / ("velmar-project-" + std::to_string(::getpid()))) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~SaveProjectTest() override { fs::remove_all(folder_); }

  static Message FailureOf(const fs::path& path) {
    try {
      OpenProject(path, {});
    } catch (const ProjectFileFailure& failure) {
      return failure.UserMessage();
    }
    ADD_FAILURE() << "opened: " << path;
    return {};
  }

  fs::path folder_;
};

TEST_F(SaveProjectTest, OpensWhatWasSaved) {
  const elements::Setup setup = SampleSetup(kCeilingSea);
  SaveProject(folder_ / "a.drav", setup);
  EXPECT_TRUE(OpenProject(folder_ / "a.drav", {}).setup == setup);
}

TEST_F(SaveProjectTest, AFailedSaveLeavesTheOldProject) {
  const fs::path path = folder_ / "a.drav";
  SaveProject(path, SampleSetup(kCeilingSea));
  fs::permissions(path, fs::perms{0444});
  EXPECT_THROW(SaveProject(path, SampleSetup(kSingleWallBrick)), StoreFailure);
  EXPECT_EQ(OpenProject(path, {}).setup.calculation, kCeilingSea);
  EXPECT_THROW(SaveProject(folder_ / "none" / "a.drav", {}), StoreFailure);
}

TEST_F(SaveProjectTest, AFullDiskLeavesTheOldProject) {
  const elements::Setup old = SampleSetup(kSingleWallGeneric);
  SaveProject(folder_ / "a.drav", old);
  elements::Setup longer = old;
  longer.leaf1.rows[0].slot.description = std::string(20000, 'x');
  std::optional<Message> told;
  {
    const FullDisk full(1000);
    try {
      SaveProject(folder_ / "a.drav", longer);
    } catch (const StoreFailure& failure) {
      told = failure.UserMessage();
    }
  }
  ASSERT_TRUE(told);
  EXPECT_EQ(LeadingRow(told->at(1)), kDiskFullRow);
  EXPECT_TRUE(OpenProject(folder_ / "a.drav", {}).setup == old);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

/// A program that saves `one` and `other` in turn, and is killed `delay` after its first save.
void KillASaver(const fs::path& path, const elements::Setup& one, const elements::Setup& other,
                std::chrono::microseconds delay) {
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    for (bool turn = false;; turn = !turn) {
      SaveProject(path, turn ? one : other);
      if (::write(ready[1], "x", 1) != 1) ::_exit(1);
    }
  }
  ::close(ready[1]);
  char byte = 0;
  EXPECT_EQ(::read(ready[0], &byte, 1), 1);
  std::this_thread::sleep_for(delay);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  ::close(ready[0]);
}

TEST_F(SaveProjectTest, AKilledSaveLeavesOneOfTheTwoProjectsWhole) {
  const fs::path path = folder_ / "a.drav";
  const elements::Setup one = SampleSetup(kCeilingSea);
  const elements::Setup other = SampleSetup(kSingleWallBrick);
  std::mt19937 random(1);
  std::uniform_int_distribution<int> delay_us(0, 3000);
  for (int kill = 0; kill < 60; ++kill) {
    KillASaver(path, one, other, std::chrono::microseconds(delay_us(random)));
    const elements::Setup found = OpenProject(path, {}).setup;
    ASSERT_TRUE(found == one || found == other) << "after kill " << kill;
  }
  // What the killed ones left beside it goes with the next save.
  SaveProject(path, one);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(SaveProjectTest, AMissingFileIsSaidInItsOwnWords) {
  EXPECT_EQ(FailureOf(folder_ / "none.drav"), (Message{{std::string(kProjectMissing)}}));
}

/// Nothing is said of damage where nothing could be read.
TEST_F(SaveProjectTest, WhatCannotBeReadIsNotCalledDamaged) {
  const Message folder = FailureOf(folder_);
  ASSERT_EQ(folder.size(), 2U);
  EXPECT_EQ(folder[0], (MessageLine{MessageRow{1132}, " " + folder_.string()}));
  EXPECT_EQ(LeadingRow(folder[1]), MessageRow{1135});

  fs::create_symlink(folder_ / "loop.drav", folder_ / "loop.drav");
  EXPECT_EQ(LeadingRow(FailureOf(folder_ / "loop.drav").at(1)), MessageRow{1166});

  const fs::path secret = folder_ / "secret.drav";
  SaveProject(secret, SampleSetup(kCeilingSea));
  fs::permissions(secret, fs::perms::none);
  const OrdinaryUser user;
  const Message refused = FailureOf(secret);
  EXPECT_EQ(LeadingRow(refused.at(0)), MessageRow{1132});
  EXPECT_EQ(LeadingRow(refused.at(1)), MessageRow{1136});
}

TEST_F(SaveProjectTest, ADamagedProjectIsNamed) {
  std::ofstream(folder_ / "a.drav") << "VELMAR 2.0.0\r\n";
  const Message damaged = FailureOf(folder_ / "a.drav");
  ASSERT_EQ(damaged.size(), 2U);
  EXPECT_EQ(LeadingRow(damaged[0]), kProjectDamagedRow);
  EXPECT_EQ(LeadingRow(damaged[1]), MessageRow{1120});
  EXPECT_EQ(damaged[1].back(), MessagePiece("\n" + (folder_ / "a.drav").string()));
}

TEST_F(SaveProjectTest, AHugeFileIsRefused) {
  const fs::path huge = folder_ / "huge.drav";
  std::ofstream(huge).put('x');
  fs::resize_file(huge, std::uintmax_t{100} << 20);
  EXPECT_EQ(LeadingRow(FailureOf(huge).at(1)), MessageRow{1138});
}

}  // namespace
}  // namespace velmar::storage
