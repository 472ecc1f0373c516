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

}  // namespace

std::vector<ListedResult> ResultsStore::List(ResultTable table) const {
  return ReadDatabase(file_, [table](SQLite::Database& database) {
    std::vector<ListedResult> results;
    for (const StoredRow& row : TableRows(database, Only(SchemaOf(table), {"Nome", "Descrizione"})).All()) {
      results.push_back({TextOf(row.cells[0]), TextOf(row.cells[1])});
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
