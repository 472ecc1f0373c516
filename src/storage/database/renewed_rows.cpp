#include "storage/database/renewed_rows.h"

#include <map>
#include <string>
#include <utility>
#include <variant>

#include <SQLiteCpp/Database.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

std::vector<StoredRow> RowsOf(const fs::path& file, const TableSchema& table) {
  return ReadDatabase(file,
                      [&table](SQLite::Database& database) { return TableRows(database, table).All(); });
}

/// What tells the row at `place` of a table apart.
std::string KeyOf(const TableSchema& table, const StoredRow& row, std::size_t place) {
  const auto key = table.Find(table.key);
  return key ? FoldCase(FormatCell(row.cells.at(*key))) : std::to_string(place);
}

std::map<std::string, StoredRow> ByKey(const TableSchema& table, const std::vector<StoredRow>& rows) {
  std::map<std::string, StoredRow> by_key;
  for (std::size_t place = 0; place < rows.size(); ++place)
    by_key.emplace(KeyOf(table, rows[place], place), rows[place]);
  return by_key;
}

/// Whether a row of that name stands in `rows`; never where rows are told apart by their place.
bool IsTaken(const TableSchema& table, const TableRows& rows, const std::vector<Cell>& cells) {
  const auto key = table.Find(table.key);
  const auto* name = key ? std::get_if<std::string>(&cells.at(*key)) : nullptr;
  return name != nullptr && rows.Find(*name).has_value();
}

}  // namespace

RowChanges ChangesOfRows(const fs::path& mine, const fs::path& before, const fs::path& now,
                         const std::vector<TableSchema>& tables) {
  RowChanges changes;
  for (std::size_t i = 0; i < tables.size(); ++i) {
    const TableSchema& table = tables[i];
    const auto stands = ByKey(table, RowsOf(mine, table));
    const auto shipped =
        before.empty() ? std::map<std::string, StoredRow>() : ByKey(table, RowsOf(before, table));
    const std::vector<StoredRow> rows = RowsOf(now, table);
    for (std::size_t place = 0; place < rows.size(); ++place) {
      const std::string key = KeyOf(table, rows[place], place);
      const auto own = stands.find(key);
      const auto old = shipped.find(key);
      if (own == stands.end()) {
        if (old == shipped.end()) changes.push_back({i, std::nullopt, rows[place].cells});
        continue;
      }
      const bool untouched = old != shipped.end() && own->second.cells == old->second.cells;
      if (untouched && own->second.cells != rows[place].cells)
        changes.push_back({i, own->second, rows[place].cells});
    }
  }
  return changes;
}

int ApplyRowChanges(const fs::path& file, const std::vector<TableSchema>& tables, const RowChanges& changes) {
  return ChangeDatabase(file, [&](SQLite::Database& database) {
    int added = 0;
    for (std::size_t i = 0; i < tables.size(); ++i) {
      TableRows rows(database, tables[i]);
      std::map<std::int64_t, StoredRow> by_id;
      for (StoredRow& row : rows.All()) by_id.emplace(row.id, std::move(row));
      const auto stands = [&by_id](const StoredRow& row) {
        const auto found = by_id.find(row.id);
        return found != by_id.end() && found->second.cells == row.cells;
      };
      for (const RowChange& change : changes) {
        if (change.table != i) continue;
        if (change.stands) {
          if (stands(*change.stands)) rows.Update({change.stands->id, change.cells});
        } else if (!IsTaken(tables[i], rows, change.cells)) {
          rows.Insert(change.cells);
          ++added;
        }
      }
    }
    return added;
  });
}

}  // namespace velmar::storage
