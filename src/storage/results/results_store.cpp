#include "storage/results/results_store.h"

#include <variant>

#include <SQLiteCpp/Database.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/table_rows.h"

namespace velmar::storage {
namespace {

std::string TextOf(const Cell& cell) {
  const auto* text = std::get_if<std::string>(&cell);
  return text == nullptr ? std::string() : *text;
}

std::optional<double> NumberOf(const Cell& cell) {
  const auto* number = std::get_if<double>(&cell);
  return number == nullptr ? std::nullopt : std::optional(*number);
}

/// Makes sure that `table` can hold what a run told.
void AddMessagesColumn(SQLite::Database& database, const TableSchema& schema) {
  if (TableRows(database, schema).Has(kMessagesColumn)) return;
  database.exec("ALTER TABLE " + QuotedName(schema.name) + " ADD COLUMN " + QuotedName(kMessagesColumn) +
                " TEXT");
}

}  // namespace

std::vector<ListedResult> ResultsStore::List(ResultTable table) const {
  return ReadDatabase(file_, [table](SQLite::Database& database) {
    std::vector<ListedResult> results;
    const TableSchema listed = Only(SchemaOf(table), {"Nome", "Descrizione", RatingColumn(table)});
    for (const StoredRow& row : TableRows(database, listed).All()) {
      results.push_back({TextOf(row.cells[0]), TextOf(row.cells[1]), NumberOf(row.cells[2])});
    }
    return results;
  });
}

std::optional<SavedResult> ResultsStore::Find(ResultTable table, std::string_view name) const {
  return ReadDatabase(file_, [&](SQLite::Database& database) -> std::optional<SavedResult> {
    const auto row = TableRows(database, SchemaOf(table)).Find(name);
    if (!row) return std::nullopt;
    return ResultFromCells(table, row->cells);
  });
}

SaveStatus ResultsStore::Save(ResultTable table, const SavedResult& result) {
  if (result.name.empty()) return SaveStatus::kNoName;
  if (IsBlank(result.name) || HoldsControlCharacter(result.name) || !IsUtf8(result.name))
    return SaveStatus::kBadName;
  return ChangeDatabase(file_, [&](SQLite::Database& database) {
    if (!result.messages.empty()) AddMessagesColumn(database, SchemaOf(table));
    TableRows rows(database, SchemaOf(table));
    if (rows.Find(result.name)) return SaveStatus::kNameExists;
    SavedResult row = result;
    row.description = CutDescription(WithReplacements(row.description));
    rows.Insert(CellsFromResult(table, row));
    return SaveStatus::kSaved;
  });
}

bool ResultsStore::Delete(ResultTable table, std::string_view name) {
  return ChangeDatabase(file_, [&](SQLite::Database& database) {
    TableRows rows(database, Only(SchemaOf(table), {"Nome"}));
    const auto id = rows.FindExactly(name);
    if (id) rows.Delete(*id);
    return id.has_value();
  });
}

}  // namespace velmar::storage
