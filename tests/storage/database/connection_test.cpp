#include "storage/database/connection.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "storage/database/database_failure.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/full_disk.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

DatabaseProblem ProblemOfReading(const fs::path& file) {
  try {
    ReadDatabaseWith(file, [](SQLite::Database& database) { database.execAndGet("SELECT count(*) FROM t"); });
  } catch (const DatabaseFailure& failure) {
    EXPECT_FALSE(failure.UserMessage().empty());
    return failure.Problem();
  }
  ADD_FAILURE() << "was read";
  return {};
}

DatabaseProblem ProblemOfChanging(const fs::path& file, const char* statement) {
  try {
    ChangeDatabaseWith(file, [&](SQLite::Database& database) { database.exec(statement); });
  } catch (const DatabaseFailure& failure) {
    return failure.Problem();
  }
  ADD_FAILURE() << "was changed";
  return {};
}

class ConnectionTest : public testing::Test {
 protected:
  ConnectionTest() { Execute(file_, {"CREATE TABLE t (a TEXT)", "INSERT INTO t VALUES ('x')"}); }

  int Count() {
    return ReadDatabase(file_, [](SQLite::Database& database) {
      return database.execAndGet("SELECT count(*) FROM t").getInt();
    });
  }

  TemporaryFolder folder_;
  fs::path file_ = folder_ / "t.mdb";
};

TEST_F(ConnectionTest, TellsEveryKindOfUnusableFile) {
  WriteFile(folder_ / "empty.mdb", "");
  WriteFile(folder_ / "text.mdb", "Caro diario");
  WriteFile(folder_ / "access.mdb", std::string("\0\1\0\0Standard Jet DB\0", 20));
  WriteFile(folder_ / "head.mdb", std::string("SQLite format 3\0", 16) + std::string(200, 'x'));
  EXPECT_EQ(ProblemOfReading(folder_ / "none.mdb"), DatabaseProblem::kUnreadable);
  EXPECT_EQ(ProblemOfReading(folder_ / "empty.mdb"), DatabaseProblem::kDamaged);
  EXPECT_EQ(ProblemOfReading(folder_ / "text.mdb"), DatabaseProblem::kDamaged);
  EXPECT_EQ(ProblemOfReading(folder_ / "head.mdb"), DatabaseProblem::kDamaged);
  EXPECT_EQ(ProblemOfReading(folder_ / "access.mdb"), DatabaseProblem::kAccessFormat);
  EXPECT_EQ(ProblemOfReading(folder_.Path()), DatabaseProblem::kNoFile);
  EXPECT_FALSE(fs::exists(folder_ / "none.mdb")) << "reading makes no file";
  EXPECT_EQ(ReadFile(folder_ / "text.mdb"), "Caro diario");
}

TEST_F(ConnectionTest, ReadingCannotChange) {
  EXPECT_THROW(ReadDatabaseWith(file_, [](SQLite::Database& database) { database.exec("DELETE FROM t"); }),
               DatabaseFailure);
  EXPECT_EQ(Count(), 1);
}

TEST_F(ConnectionTest, AFailedChangeLeavesEverythingAsItWas) {
  EXPECT_THROW(ChangeDatabaseWith(file_,
                                  [](SQLite::Database& database) {
                                    database.exec("DELETE FROM t");
                                    throw std::runtime_error("half way");
                                  }),
               std::runtime_error);
  EXPECT_EQ(ProblemOfChanging(file_, "DELETE FROM t; INSERT INTO none VALUES (1)"),
            DatabaseProblem::kNotChanged);
  EXPECT_EQ(Count(), 1);
}

TEST_F(ConnectionTest, AMisspeltColumnIsNoText) {
  EXPECT_THROW(
      ReadDatabaseWith(file_,
                       [](SQLite::Database& database) { database.execAndGet("SELECT \"misspelt\" FROM t"); }),
      DatabaseFailure);
}

TEST_F(ConnectionTest, AFileMarkedReadOnlyIsReadButNotChanged) {
  fs::permissions(file_, fs::perms::owner_read | fs::perms::group_read);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(ProblemOfChanging(file_, "DELETE FROM t"), DatabaseProblem::kReadOnly);
  EXPECT_EQ(Count(), 1);
}

TEST_F(ConnectionTest, LeavesOneFileThatCanBeCopied) {
  Execute(file_, {"PRAGMA journal_mode = WAL"});
  ChangeDatabaseWith(file_, [](SQLite::Database& database) { database.exec("INSERT INTO t VALUES ('y')"); });
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_.Path()))
    EXPECT_EQ(entry.path(), file_);
  fs::copy_file(file_, folder_ / "copy.mdb");
  file_ = folder_ / "copy.mdb";
  EXPECT_EQ(Count(), 2);
}

TEST_F(ConnectionTest, IgnoresTriggersThatCameWithTheFile) {
  Execute(file_, {"CREATE TRIGGER evil AFTER INSERT ON t BEGIN DELETE FROM t; END"});
  ChangeDatabaseWith(file_, [](SQLite::Database& database) { database.exec("INSERT INTO t VALUES ('y')"); });
  EXPECT_EQ(Count(), 2);
}

TEST_F(ConnectionTest, TellsAFileThatAnotherProgramHolds) {
  SQLite::Database other(file_.string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  EXPECT_EQ(ProblemOfChanging(file_, "DELETE FROM t"), DatabaseProblem::kLocked);
  EXPECT_EQ(ProblemOfReading(file_), DatabaseProblem::kLocked);
  other.exec("ROLLBACK");
  EXPECT_EQ(Count(), 1);
}

/// A file that is held is waited for once: whoever asks again is refused at once, also when it is free by
/// then.
TEST_F(ConnectionTest, ALockEndsAReadingOfManyQuestions) {
  const auto count = [](SQLite::Database& database) {
    return database.execAndGet("SELECT count(*) FROM t").getInt();
  };
  SQLite::Database other(file_.string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  DatabaseReading reading(file_);
  EXPECT_THROW(reading.Read(count), DatabaseFailure);
  other.exec("ROLLBACK");
  EXPECT_THROW(reading.Read(count), DatabaseFailure);
  EXPECT_EQ(DatabaseReading(file_).Read(count), 1);
}

/// What is wrong with one row says nothing of the next.
TEST_F(ConnectionTest, AReadingGoesOnBehindADamagedRow) {
  DatabaseReading reading(file_);
  EXPECT_THROW(reading.With([&](SQLite::Database&) {
    throw DatabaseFailure(DatabaseProblem::kDamaged, file_, "row 7 is missing");
  }),
               DatabaseFailure);
  EXPECT_EQ(reading.Read([](SQLite::Database& database) {
    return database.execAndGet("SELECT count(*) FROM t").getInt();
  }),
            1);
}

/// A limit on the size of files takes the place of a full disk.
TEST_F(ConnectionTest, AFullDiskIsNotBlamedOnPermissions) {
  for (const rlim_t room : {0, 100, 20000}) {
    std::optional<FullDisk> full(room);
    const DatabaseProblem problem = ProblemOfChanging(file_, "INSERT INTO t VALUES (zeroblob(100000))");
    full.reset();
    EXPECT_EQ(problem, DatabaseProblem::kDiskFull) << room;
  }
  EXPECT_EQ(Count(), 1);
}

}  // namespace
}  // namespace velmar::storage
