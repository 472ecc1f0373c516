#include "platform/process.h"

#include <cerrno>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/storage/support/temporary_folder.h"

namespace velmar::platform {
namespace {

using namespace std::chrono_literals;

TEST(Process, EndsWellOnlyWithItsOwnZero) {
  EXPECT_TRUE(RunProgram("/bin/sh", {"-c", "exit 0"}, 10s).well);
  EXPECT_FALSE(RunProgram("/bin/sh", {"-c", "exit 3"}, 10s).well);
  EXPECT_FALSE(RunProgram("/bin/sh", {"-c", "kill -9 $$"}, 10s).well);
}

TEST(Process, AProgramThatIsNotThereIsTold) {
  EXPECT_EQ(RunProgram("/missing/program", {}, 10s).start_error, ENOENT);
  EXPECT_EQ(RunProgram("", {}, 10s).start_error, ENOENT);
}

TEST(Process, WhatTakesTooLongIsEndedWithAllThatItStarted) {
  const storage::TemporaryFolder folder;
  const std::string mark = (folder / "alive").string();
  const ProcessEnd end = RunProgram("/bin/sh", {"-c", "(sleep 3; touch '" + mark + "') & sleep 60"}, 100ms);
  EXPECT_EQ(end.start_error, 0);
  EXPECT_FALSE(end.well);
  // The child would have left its mark by now.
  RunProgram("/bin/sh", {"-c", "sleep 4"}, 10s);
  EXPECT_FALSE(std::filesystem::exists(mark));
}

TEST(Process, ArgumentsArriveAsTheyAre) {
  const storage::TemporaryFolder folder;
  const std::string target = (folder / "with 'quotes' and blanks").string();
  EXPECT_TRUE(RunProgram("/bin/sh", {"-c", ": > \"$0\"", target}, 10s).well);
  EXPECT_TRUE(std::filesystem::exists(target));
}

}  // namespace
}  // namespace velmar::platform
