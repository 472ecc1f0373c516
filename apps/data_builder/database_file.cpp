#include "data_builder/database_file.h"

#include <type_traits>
#include <variant>

#include <SQLiteCpp/Statement.h>

namespace velmar::data_builder {
namespace {

void Bind(SQLite::Statement& statement, int column, const storage::Cell& cell) {
  std::visit(
      [&](const auto& value) {
        using Type = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Type, std::monostate>) {
          statement.bind(column);
        } else if constexpr (std::is_same_v<Type, bool>) {
          statement.bind(column, value ? 1 : 0);
        } else {
          statement.bind(column, value);
        }
      },
      cell);
}

std::filesystem::path MakeRoom(const std::filesystem::path& path) {
  std::filesystem::create_directories(path.parent_path());
  std::filesystem::path unfinished = path;
  unfinished += ".unfinished";
  std::filesystem::remove(unfinished);
  return unfinished;
}

}  // namespace

DatabaseFile::DatabaseFile(const std::filesystem::path& path)
    : path_(path),
      unfinished_(MakeRoom(path)),
      database_(unfinished_.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE),
      transaction_(database_) {}

void DatabaseFile::Add(const storage::TableSchema& schema,
                       const std::vector<std::vector<storage::Cell>>& rows) {
  for (const std::string& statement : storage::CreateStatements(schema)) database_.exec(statement);
  SQLite::Statement insert(database_, storage::InsertStatement(schema));
  for (const std::vector<storage::Cell>& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) Bind(insert, static_cast<int>(i) + 1, row[i]);
    insert.exec();
    insert.reset();
  }
}

void DatabaseFile::Commit() {
  transaction_.commit();
  std::filesystem::rename(unfinished_, path_);
}

}  // namespace velmar::data_builder
