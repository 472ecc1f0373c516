#include "storage/database/table_rows.h"

#include <cmath>
#include <type_traits>
#include <variant>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "foundation/utf8.h"
#include "storage/database/database_failure.h"

namespace velmar::storage {
namespace {

std::optional<std::string> FoldedIn(const std::vector<std::string>& names, std::string_view name) {
  for (const std::string& candidate : names) {
    if (SameName(candidate, name)) return candidate;
  }
  return std::nullopt;
}

std::vector<std::string> Texts(SQLite::Statement& query) {
  std::vector<std::string> texts;
  while (query.executeStep()) texts.push_back(query.getColumn(0).getString());
  return texts;
}

/// The name that SQL gives the number of a row, in a table with `columns` of its own; empty when they hide
/// all.
std::string RowIdBeside(const std::vector<std::string>& columns) {
  for (const char* name : {"rowid", "_rowid_", "oid"}) {
    if (!FoldedIn(columns, name)) return name;
  }
  return {};
}

Cell FiniteOrNull(double number) { return std::isfinite(number) ? Cell{number} : Cell{}; }

Cell ReadNumber(const SQLite::Column& column, ColumnType type) {
  if (type == ColumnType::kText) {
    return column.isInteger() ? Cell{std::to_string(column.getInt64())}
                              : Cell{FormatCell(Cell{column.getDouble()})};
  }
  if (type == ColumnType::kYesNo) return Cell{column.getDouble() != 0.0};
  return FiniteOrNull(column.getDouble());
}

Cell ReadCell(const SQLite::Column& column, ColumnType type) {
  if (column.isInteger() || column.isFloat()) return ReadNumber(column, type);
  if (!column.isText()) return Cell{};
  const std::string text = column.getString();
  if (type == ColumnType::kText) return Cell{text};
  return ParseCell(type, text).value_or(Cell{});
}

void Bind(SQLite::Statement& statement, int parameter, const Cell& cell) {
  std::visit(
      [&](const auto& value) {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::monostate>) {
          statement.bind(parameter);
        } else if constexpr (std::is_same_v<Value, bool>) {
          statement.bind(parameter, value ? 1 : 0);
        } else {
          statement.bind(parameter, value);
        }
      },
      cell);
}

bool IsAscii(std::string_view text) {
  for (const char c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

}  // namespace

TableSchema Only(const TableSchema& schema, const std::vector<std::string_view>& columns) {
  TableSchema part = schema;
  part.columns.clear();
  for (const std::string_view name : columns) {
    if (const auto place = schema.Find(name)) part.columns.push_back(schema.columns[*place]);
  }
  return part;
}

TableRows::TableRows(SQLite::Database& database, const TableSchema& schema)
    : database_(&database), schema_(schema) {
  SQLite::Statement tables(database, "SELECT name FROM sqlite_master WHERE type = 'table'");
  const std::optional<std::string> table = FoldedIn(Texts(tables), schema.name);
  if (!table) throw DatabaseFailure(DatabaseProblem::kMissingTable, database.getFilename(), schema.name);
  table_ = QuotedName(*table);

  SQLite::Statement names(database, "SELECT name FROM pragma_table_info(?)");
  names.bind(1, *table);
  const std::vector<std::string> columns = Texts(names);
  row_id_ = RowIdBeside(columns);
  if (row_id_.empty())
    throw DatabaseFailure(DatabaseProblem::kDamaged, database.getFilename(), "columns hide the row number");
  if (!schema.key.empty()) {
    const std::optional<std::string> key = FoldedIn(columns, schema.key);
    if (!key) throw DatabaseFailure(DatabaseProblem::kMissingColumn, database.getFilename(), schema.key);
    key_ = QuotedName(*key);
  }
  selection_ = "SELECT " + row_id_;
  for (const ColumnSchema& column : schema.columns) {
    stored_.push_back(FoldedIn(columns, column.name).value_or(std::string()));
    selection_ += ", " + (stored_.back().empty() ? std::string("NULL") : QuotedName(stored_.back()));
  }
  selection_ += " FROM " + table_;
}

bool TableRows::Has(std::string_view column) const {
  const auto place = schema_.Find(column);
  return place && !stored_.at(*place).empty();
}

std::vector<StoredRow> TableRows::Select(const std::string& condition, std::string_view name) const {
  SQLite::Statement query(*database_, selection_ + condition);
  if (query.getBindParameterCount() > 0) query.bind(1, std::string(name));
  std::vector<StoredRow> rows;
  while (query.executeStep()) {
    StoredRow row;
    row.id = query.getColumn(0).getInt64();
    for (std::size_t i = 0; i < schema_.columns.size(); ++i) {
      row.cells.push_back(ReadCell(query.getColumn(static_cast<int>(i) + 1), schema_.columns[i].type));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<StoredRow> TableRows::All(const std::string& column) const {
  return Select(" ORDER BY " + column, "");
}

StoredRow TableRows::At(std::int64_t id) const {
  std::vector<StoredRow> rows = Select(" WHERE " + row_id_ + " = " + std::to_string(id), "");
  if (rows.empty())
    throw DatabaseFailure(DatabaseProblem::kDamaged, database_->getFilename(),
                          "row " + std::to_string(id) + " of " + table_ + " is missing");
  return std::move(rows.front());
}

std::optional<StoredRow> TableRows::First() const {
  std::vector<StoredRow> rows = Select(" ORDER BY " + row_id_ + " LIMIT 1", "");
  if (rows.empty()) return std::nullopt;
  return std::move(rows.front());
}

std::optional<StoredRow> TableRows::Find(std::string_view name) const {
  if (const auto id = FindExactly(name)) return At(*id);
  // The index folds ASCII letters only.
  if (IsAscii(name)) {
    std::vector<StoredRow> rows =
        Select(" WHERE " + key_ + " = ? COLLATE NOCASE ORDER BY " + row_id_ + " LIMIT 1", name);
    if (rows.empty()) return std::nullopt;
    return std::move(rows.front());
  }
  const std::string folded = FoldCase(name);
  SQLite::Statement query(*database_,
                          "SELECT " + row_id_ + ", " + key_ + " FROM " + table_ + " ORDER BY " + row_id_);
  while (query.executeStep()) {
    if (FoldCase(query.getColumn(1).getString()) != folded) continue;
    return At(query.getColumn(0).getInt64());
  }
  return std::nullopt;
}

std::optional<std::int64_t> TableRows::FindExactly(std::string_view name) const {
  // The second comparison is the answer, the first one lets the index find it.
  SQLite::Statement query(*database_, "SELECT " + row_id_ + " FROM " + table_ + " WHERE " + key_ +
                                          " = ?1 COLLATE NOCASE AND " + key_ +
                                          " = ?1 COLLATE BINARY ORDER BY " + row_id_ + " LIMIT 1");
  query.bind(1, std::string(name));
  if (!query.executeStep()) return std::nullopt;
  return query.getColumn(0).getInt64();
}

void TableRows::Insert(const std::vector<Cell>& cells) {
  std::string names;
  std::string parameters;
  for (const std::string& column : stored_) {
    if (column.empty()) continue;
    names += (names.empty() ? "" : ", ") + QuotedName(column);
    parameters += parameters.empty() ? "?" : ", ?";
  }
  SQLite::Statement insert(*database_,
                           "INSERT INTO " + table_ + " (" + names + ") VALUES (" + parameters + ")");
  int parameter = 0;
  for (std::size_t i = 0; i < stored_.size(); ++i) {
    if (!stored_[i].empty()) Bind(insert, ++parameter, cells.at(i));
  }
  insert.exec();
}

void TableRows::Update(const StoredRow& row) {
  std::string assignments;
  for (const std::string& column : stored_) {
    if (column.empty()) continue;
    assignments += (assignments.empty() ? "" : ", ") + QuotedName(column) + " = ?";
  }
  SQLite::Statement update(*database_,
                           "UPDATE " + table_ + " SET " + assignments + " WHERE " + row_id_ + " = ?");
  int parameter = 0;
  for (std::size_t i = 0; i < stored_.size(); ++i) {
    if (!stored_[i].empty()) Bind(update, ++parameter, row.cells.at(i));
  }
  update.bind(++parameter, row.id);
  update.exec();
}

void TableRows::Delete(std::int64_t id) {
  SQLite::Statement remove(*database_, "DELETE FROM " + table_ + " WHERE " + row_id_ + " = ?");
  remove.bind(1, id);
  remove.exec();
}

}  // namespace velmar::storage
