#include "storage/messages/catalogue_rules.h"

#include <map>
#include <memory>
#include <utility>
#include <variant>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "storage/database/connection.h"
#include "storage/database/table_rows.h"
#include "storage/tables/cell.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// The columns of `table` but the number of the row.
std::vector<std::string> LanguagesIn(SQLite::Database& database, const std::string& table) {
  SQLite::Statement query(database, "SELECT name FROM pragma_table_info(?)");
  query.bind(1, table);
  std::vector<std::string> languages;
  while (query.executeStep()) {
    std::string name = query.getColumn(0).getString();
    if (name != "Riga") languages.push_back(std::move(name));
  }
  return languages;
}

std::vector<TableSchema> CatalogueTables(SQLite::Database& database) {
  std::vector<TableSchema> tables;
  const std::vector<std::string> languages = LanguagesIn(database, "DRAV");
  if (!languages.empty()) tables.push_back(CatalogueTable(languages));
  const std::vector<std::string> further = LanguagesIn(database, "Testi");
  if (!further.empty()) tables.push_back(FurtherTextTable(further));
  return tables;
}

std::string TextOf(const Cell& cell) {
  const auto* text = std::get_if<std::string>(&cell);
  return text == nullptr ? std::string() : *text;
}

/// The texts of the shipped catalogue for the rows of another one.
class ShippedTexts {
 public:
  ShippedTexts(const fs::path& shipped, const fs::path& own, const std::vector<TableSchema>& tables)
      : own_rows_(RowsOf(own, tables)), shipped_rows_(RowsOf(shipped, tables)) {}

  std::string Text(const TableSchema& table, std::size_t row, std::size_t column) const {
    const auto& shipped = shipped_rows_.at(table.name);
    if (table.key.empty())
      return row < shipped.size() ? TextOf(shipped[row].cells.at(column)) : std::string();
    const Cell& number = own_rows_.at(table.name).at(row).cells.at(0);
    for (const StoredRow& candidate : shipped) {
      if (candidate.cells.at(0) == number) return TextOf(candidate.cells.at(column));
    }
    return {};
  }

 private:
  using Rows = std::map<std::string, std::vector<StoredRow>>;

  static Rows RowsOf(const fs::path& file, const std::vector<TableSchema>& tables) {
    return ReadDatabase(file, [&](SQLite::Database& database) {
      Rows rows;
      for (const TableSchema& table : tables) rows[table.name] = TableRows(database, table).All();
      return rows;
    });
  }

  Rows own_rows_;
  Rows shipped_rows_;
};

}  // namespace

RowRules CatalogueRules(const fs::path& file, const std::optional<fs::path>& shipped) {
  RowRules rules;
  rules.tables = ReadDatabase(file, [](SQLite::Database& database) { return CatalogueTables(database); });
  if (!shipped) return rules;
  const auto texts = std::make_shared<ShippedTexts>(*shipped, file, rules.tables);
  rules.shipped_text = [texts](const auto& table, std::size_t row, std::size_t column) {
    return texts->Text(table, row, column);
  };
  return rules;
}

}  // namespace velmar::storage
