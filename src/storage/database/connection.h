#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace SQLite {
class Database;
}

namespace velmar::storage {

class DatabaseFailure;

/// How long a change waits for another program that is changing the same file.
inline constexpr int kChangePatienceMs = 5000;
/// How long reading waits. Another program's change keeps readers out only while it reaches the disk; a file
/// that is held for longer is held for good, and a window must not stand still for it.
inline constexpr int kReadPatienceMs = 800;
/// How long a window waits that cannot go on painting meanwhile: what nobody feels.
inline constexpr int kWindowPatienceMs = 100;

/// One connection for an operation that asks a database several times; it is opened when it is first used.
/// After a failure that is about the file as a whole every further question fails in the same way and at
/// once: a file that is locked is waited for once, not once a question.
class DatabaseReading {
 public:
  /// @param patience_ms how long each question waits for another program
  explicit DatabaseReading(std::filesystem::path file, int patience_ms = kReadPatienceMs);
  DatabaseReading(const DatabaseReading&) = delete;
  DatabaseReading& operator=(const DatabaseReading&) = delete;
  ~DatabaseReading();

  /// Hands the connection to `work`, which cannot change the file.
  /// @throws DatabaseFailure as ReadDatabaseWith()
  void With(const std::function<void(SQLite::Database&)>& work);

  /// With() for work that gives a value.
  template <typename Work>
  auto Read(Work&& work) {
    std::optional<std::invoke_result_t<Work, SQLite::Database&>> outcome;
    With([&](SQLite::Database& database) { outcome.emplace(work(database)); });
    return *std::move(outcome);
  }

 private:
  struct State;

  [[noreturn]] void Fail(const DatabaseFailure& failure);

  std::filesystem::path file_;
  int patience_ms_;
  std::unique_ptr<State> state_;
};

/// Opens `file`, hands it to `work` and closes it: no connection outlives an operation. `work` cannot change
/// the file; only what an interrupted change left behind is undone.
/// @throws DatabaseFailure when the file is missing, damaged, locked or a genuine Access file
void ReadDatabaseWith(const std::filesystem::path& file, const std::function<void(SQLite::Database&)>& work);

/// Opens `file`, runs `work` in one transaction and closes it. When this returns the change has reached the
/// disk; when it throws, or the process ends inside, the file is as it was.
///
/// The change is journalled beside the file for its short time and never by a write-ahead log: a log needs
/// memory shared between programs, which network folders do not give, and leaves confirmed changes in a
/// second file, which a user who copies the database, or a program that syncs the folder, would miss.
/// @throws DatabaseFailure as above, or when the file is read-only or the disk is full
void ChangeDatabaseWith(const std::filesystem::path& file,
                        const std::function<void(SQLite::Database&)>& work);

/// ReadDatabaseWith() for work that gives a value.
template <typename Work>
auto ReadDatabase(const std::filesystem::path& file, Work&& work) {
  std::optional<std::invoke_result_t<Work, SQLite::Database&>> outcome;
  ReadDatabaseWith(file, [&](SQLite::Database& database) { outcome.emplace(work(database)); });
  return *std::move(outcome);
}

/// ChangeDatabaseWith() for work that gives a value.
template <typename Work>
auto ChangeDatabase(const std::filesystem::path& file, Work&& work) {
  std::optional<std::invoke_result_t<Work, SQLite::Database&>> outcome;
  ChangeDatabaseWith(file, [&](SQLite::Database& database) { outcome.emplace(work(database)); });
  return *std::move(outcome);
}

}  // namespace velmar::storage
