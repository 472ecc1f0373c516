#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

namespace SQLite {
class Database;
}

namespace velmar::storage {

/// How long a program waits for another one that is changing the same file.
inline constexpr int kBusyTimeoutMs = 5000;

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
