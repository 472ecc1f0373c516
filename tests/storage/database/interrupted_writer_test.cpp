#include <chrono>
#include <random>
#include <string>
#include <thread>

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/set_aside.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

using Clock = std::chrono::steady_clock;

/// Writes pairs of rows for ever and reports each confirmed pair through `pipe`.
[[noreturn]] void WritePairs(const std::filesystem::path& file, int first, int pipe) {
  for (int number = first;; ++number) {
    ChangeDatabaseWith(file, [number](SQLite::Database& database) {
      const std::string value = std::to_string(number);
      database.exec("INSERT INTO t VALUES (" + value + ")");
      database.exec("INSERT INTO t VALUES (" + value + ")");
    });
    if (::write(pipe, &number, sizeof number) != sizeof number) ::_exit(1);
  }
}

/// Starts a writer and kills it `delay` after it confirmed its first pair.
/// @return the last pair it confirmed
int KillAWriter(const std::filesystem::path& file, int first, std::chrono::microseconds delay) {
  int ends[2];
  EXPECT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) WritePairs(file, first, ends[1]);
  ::close(ends[1]);
  int last = 0;
  EXPECT_EQ(::read(ends[0], &last, sizeof last), static_cast<ssize_t>(sizeof last));
  std::this_thread::sleep_for(delay);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  for (int number = 0; ::read(ends[0], &number, sizeof number) == sizeof number;) last = number;
  ::close(ends[0]);
  return last;
}

TEST(InterruptedWriter, LosesNothingThatWasConfirmedAndLeavesNothingHalf) {
  const TemporaryFolder folder;
  const auto file = folder / "t.mdb";
  Execute(file, {"CREATE TABLE t (n INTEGER)"});
  std::mt19937 random(1);
  std::uniform_int_distribution<int> delay(0, 3000);
  const auto end = Clock::now() + std::chrono::seconds(20);
  int confirmed = 0;
  int kills = 0;
  // On a busy machine it takes as long as it takes.
  for (; kills < 100 || (kills < 400 && Clock::now() < end); ++kills) {
    confirmed = KillAWriter(file, confirmed + 1, std::chrono::microseconds(delay(random)));
    const auto [highest, odd] = ReadDatabase(file, [](SQLite::Database& database) {
      return std::pair(
          database.execAndGet("SELECT ifnull(max(n), 0) FROM t").getInt(),
          database.execAndGet("SELECT count(*) FROM (SELECT n FROM t GROUP BY n HAVING count(*) <> 2)")
              .getInt());
    });
    ASSERT_GE(highest, confirmed) << "after kill " << kills;
    ASSERT_LE(highest, confirmed + 1) << "after kill " << kills;
    ASSERT_EQ(odd, 0) << "after kill " << kills;
    confirmed = highest;
  }
  EXPECT_EQ(ConditionOf(file), DatabaseCondition::kGood);
  EXPECT_GE(kills, 100);
  EXPECT_GE(confirmed, kills) << "each writer confirmed at least one pair";
  RecordProperty("kills", kills);
  RecordProperty("pairs", confirmed);
}

TEST(TwoWriters, WaitForEachOtherAndLoseNothing) {
  const TemporaryFolder folder;
  const auto file = folder / "t.mdb";
  Execute(file, {"CREATE TABLE t (n INTEGER)"});
  constexpr int kChanges = 60;
  const auto write = [&file](int base) {
    for (int i = 0; i < kChanges; ++i) {
      const auto change = [&](SQLite::Database& database) {
        // Read, then written: the case in which two programs could block each other for good.
        database.execAndGet("SELECT count(*) FROM t");
        database.exec("INSERT INTO t VALUES (" + std::to_string(base + i) + ")");
      };
      for (bool done = false; !done;) {
        try {
          ChangeDatabaseWith(file, change);
          done = true;
        } catch (const DatabaseFailure& failure) {
          // A busy machine may keep one of them waiting too long: it is told so, and asks again.
          if (failure.Problem() != DatabaseProblem::kLocked) throw;
        }
      }
    }
  };
  const pid_t child = ::fork();
  if (child == 0) {
    try {
      write(1000);
      ::_exit(0);
    } catch (...) {
      ::_exit(1);
    }
  }
  write(0);
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ReadDatabase(file,
                         [](SQLite::Database& database) {
                           return database.execAndGet("SELECT count(DISTINCT n) FROM t").getInt();
                         }),
            2 * kChanges);
}

}  // namespace
}  // namespace velmar::storage
