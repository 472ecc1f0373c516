#include "storage/results/saved_result.h"

#include <variant>

#include "foundation/utf8.h"

namespace velmar::storage {
namespace {

/// What differs between the tables.
struct ResultColumns {
  std::string_view rating;
  std::string_view band_prefix;
  std::string_view adaptation;
  std::string_view other_adaptation;
};

ResultColumns ColumnsOf(ResultTable table) {
  switch (table) {
    case ResultTable::kAirborne:
      return {"Rw (dB)", "R", "C (dB)", "Ctr (dB)"};
    case ResultTable::kImpact:
      return {"Lnw (dB)", "Ln", "Ci (dB)", "Ci 50_5000 (dB)"};
    case ResultTable::kLining:
      return {"DRw (dB)", "R", "C (dB)", "Ctr (dB)"};
  }
  return {};
}

/// Calls `visit` with every column that holds a number and the member it belongs to.
template <typename Result, typename Visit>
void ForEachNumber(ResultTable table, Result& result, Visit visit) {
  const ResultColumns columns = ColumnsOf(table);
  visit(columns.rating, result.rating);
  visit("Area (m²)", result.area_m2);
  visit("s (mm)", result.thickness_mm);
  visit("m' (kg/m²)", result.mass_kg_m2);
  const std::vector<std::string> bands = BandColumns(columns.band_prefix);
  for (std::size_t i = 0; i < bands.size(); ++i) visit(bands[i], result.bands.at(i));
  visit(columns.adaptation, result.adaptation);
  visit(columns.other_adaptation, result.other_adaptation);
  visit("fc (Hz)", result.critical_frequency_hz);
  visit("Eta int", result.loss_factor);
}

template <typename Result, typename Visit>
void ForEachText(Result& result, Visit visit) {
  visit("Nome", result.name);
  visit("Descrizione", result.description);
  visit("Immagine", result.picture);
}

/// As the shipped databases have it.
TableSchema ShippedSchema(ResultTable table) {
  switch (table) {
    case ResultTable::kAirborne:
      return AirborneResultTable();
    case ResultTable::kImpact:
      return ImpactResultTable();
    case ResultTable::kLining:
      return LiningResultTable();
  }
  return {};
}

}  // namespace

std::string CutDescription(const std::string& description) {
  return FirstCharacters(description, kDescriptionLength);
}

std::string CutFacadeDescription(const std::string& description) {
  if (CountCharacters(description) <= kDescriptionLength) return description;
  const std::string dots = "...";
  return FirstCharacters(description, kDescriptionLength - dots.size()) + dots;
}

std::string_view RatingColumn(ResultTable table) { return ColumnsOf(table).rating; }

TableSchema SchemaOf(ResultTable table) {
  TableSchema schema = ShippedSchema(table);
  schema.columns.push_back({kMessagesColumn, ColumnType::kText});
  return schema;
}

SavedResult ResultFromCells(ResultTable table, const std::vector<Cell>& cells) {
  const TableSchema schema = SchemaOf(table);
  SavedResult result;
  ForEachText(result, [&](std::string_view column, std::string& member) {
    const auto place = schema.Find(column);
    if (!place) return;
    if (const auto* text = std::get_if<std::string>(&cells.at(*place))) member = *text;
  });
  if (const auto* messages = std::get_if<std::string>(&cells.at(schema.Find(kMessagesColumn).value())))
    result.messages = *messages;
  ForEachNumber(table, result, [&](std::string_view column, std::optional<double>& member) {
    const auto place = schema.Find(column);
    if (!place) return;
    if (const auto* number = std::get_if<double>(&cells.at(*place))) member = *number;
  });
  return result;
}

std::vector<Cell> CellsFromResult(ResultTable table, const SavedResult& result) {
  const TableSchema schema = SchemaOf(table);
  std::vector<Cell> cells(schema.columns.size());
  ForEachText(result, [&](std::string_view column, const std::string& member) {
    if (const auto place = schema.Find(column)) cells[*place] = Cell{member};
  });
  if (!result.messages.empty()) cells.at(schema.Find(kMessagesColumn).value()) = Cell{result.messages};
  ForEachNumber(table, result, [&](std::string_view column, const std::optional<double>& member) {
    const auto place = schema.Find(column);
    if (place && member) cells[*place] = Cell{*member};
  });
  return cells;
}

}  // namespace velmar::storage
