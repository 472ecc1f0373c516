#include "data_builder/message_tables.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "data_builder/database_file.h"
#include "data_builder/table_text.h"

namespace velmar::data_builder {
namespace {

using storage::Cell;
using storage::ColumnType;

constexpr size_t kFirstLanguage = 3;  // behind "row", "name" and "use"

std::vector<std::string> LanguagesOf(const CsvTable& table, const std::filesystem::path& file) {
  if (table.header.size() <= kFirstLanguage || table.header[0] != "row") {
    throw std::runtime_error(file.string() + ": the heading is not row, name, use and the languages");
  }
  return {table.header.begin() + kFirstLanguage, table.header.end()};
}

std::vector<Cell> TextsOf(const std::vector<std::string>& fields) {
  std::vector<Cell> texts;
  for (size_t i = kFirstLanguage; i < fields.size(); ++i) {
    texts.push_back(*storage::ParseCell(ColumnType::kText, fields[i]));
  }
  return texts;
}

/// @throws std::runtime_error when row n does not stand at place n
std::vector<std::vector<Cell>> CatalogueRows(const CsvTable& catalogue) {
  std::vector<std::vector<Cell>> rows;
  for (const std::vector<std::string>& fields : catalogue.rows) {
    rows.push_back(TextsOf(fields));
    if (fields[0] != std::to_string(rows.size())) {
      throw std::runtime_error("catalogue.csv: row " + fields[0] + " stands at place " +
                               std::to_string(rows.size()));
    }
  }
  return rows;
}

std::vector<std::vector<Cell>> FurtherRows(const CsvTable& further) {
  std::vector<std::vector<Cell>> rows;
  for (const std::vector<std::string>& fields : further.rows) {
    const std::optional<Cell> number = storage::ParseCell(ColumnType::kWhole, fields[0]);
    if (!number || fields[0].empty())
      throw std::runtime_error("texts.csv: row \"" + fields[0] + "\" is no number");
    rows.push_back(TextsOf(fields));
    rows.back().insert(rows.back().begin(), *number);
  }
  return rows;
}

}  // namespace

void BuildMessages(const std::filesystem::path& texts, const std::filesystem::path& file) {
  const CsvTable catalogue = ReadTableText(texts / "catalogue.csv");
  const CsvTable further = ReadTableText(texts / "texts.csv");
  const std::vector<std::string> languages = LanguagesOf(catalogue, texts / "catalogue.csv");
  if (further.header != catalogue.header)
    throw std::runtime_error("texts.csv: other languages than catalogue.csv");
  DatabaseFile database(file);
  database.Add(storage::CatalogueTable(languages), CatalogueRows(catalogue));
  database.Add(storage::FurtherTextTable(languages), FurtherRows(further));
  database.Commit();
}

}  // namespace velmar::data_builder
