#include "cli/output/material_table.h"

#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

#include "foundation/message_rows.h"

namespace velmar::cli {
namespace {

using storage::Cell;
using storage::TableSchema;

/// Puts the value of `text` into the cell of `column`; the refusal when that cannot be.
std::optional<Message> SetCell(const TableSchema& schema, const std::string& column, const std::string& text,
                               Cells& cells) {
  const std::optional<std::size_t> place = schema.Find(column);
  if (!place) return Message{{kUnknownColumnRow, " " + column}};
  std::optional<Cell> cell = storage::ParseCell(schema.columns[*place].type, text);
  if (!cell) return Message{{kWrongCellRow, " " + column + ": \"" + text + "\""}};
  cells.at(*place) = *std::move(cell);
  return std::nullopt;
}

nlohmann::json CellJson(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) return *number;
  if (const auto* yes = std::get_if<bool>(&cell)) return *yes;
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  return nullptr;
}

}  // namespace

std::variant<Cells, Message> WithSettings(const TableSchema& schema, Cells cells,
                                          const std::vector<std::string>& settings) {
  for (const std::string& setting : settings) {
    const std::size_t sign = setting.find('=');
    const std::string column = setting.substr(0, sign);
    const std::string value = sign == std::string::npos ? std::string() : setting.substr(sign + 1);
    if (auto refusal = SetCell(schema, column, value, cells)) return *std::move(refusal);
  }
  return cells;
}

std::variant<std::vector<Cells>, Message> RowsOfCsv(const TableSchema& schema, const CsvTable& table) {
  std::vector<Cells> rows;
  for (const std::vector<std::string>& fields : table.rows) {
    Cells cells(schema.columns.size());
    for (std::size_t i = 0; i < table.header.size(); ++i) {
      if (auto refusal = SetCell(schema, table.header[i], fields[i], cells)) return *std::move(refusal);
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

nlohmann::json RowJson(const TableSchema& schema, const Cells& cells) {
  nlohmann::json json = nlohmann::json::object();
  for (std::size_t i = 0; i < cells.size(); ++i) json[schema.columns[i].name] = CellJson(cells[i]);
  return json;
}

std::string RowLines(const TableSchema& schema, const Cells& cells) {
  std::string lines;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::string value = storage::FormatCell(cells[i]);
    if (!value.empty()) lines += schema.columns[i].name + ": " + value + '\n';
  }
  return lines;
}

}  // namespace velmar::cli
