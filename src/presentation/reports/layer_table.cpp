#include "presentation/reports/layer_table.h"

#include <string>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "presentation/reports/cell_text.h"
#include "presentation/reports/word_placeholders.h"

namespace velmar::presentation {
namespace {

constexpr int kNameColumn = 1;
constexpr int kRatingColumn = 4;
constexpr int kAreaColumn = 5;
constexpr int kShareColumn = 6;
constexpr int kThicknessColumn = 6;
constexpr int kMassColumn = 7;
constexpr const char* kOneDecimal = "0.0";
constexpr const char* kAsNeeded = "General";

/// A row of the table, whatever it tells of.
struct TableRow {
  std::string name{};
  std::optional<double> rating_db{};
  std::string area{};
  std::string share{};
  std::optional<double> thickness_mm{};
  std::optional<double> mass_kg_m2{};
  bool heading = false;
};

std::string NameWithSheets(const StructureRow& row) {
  std::string name = FullName(row);
  if (row.multiplicity > 1 && row.thickness_mm > 0.0) name += " (" + ThicknessText(row) + " mm)";
  return name;
}

TableRow TableRowOf(const StructureRow& row, const ReportRecord& record) {
  if (row.kind == StructureKind::kHeading) return {.name = row.name, .heading = true};
  TableRow cells{
      .name = NameWithSheets(row), .area = row.area, .share = row.share, .mass_kg_m2 = row.mass_kg_m2};
  if (record.family == elements::Family::kFacade && !row.note.empty()) cells.name += " - " + row.note;
  if (!row.rating.empty()) cells.rating_db = ParseDecimal(row.rating);
  if (row.thickness_mm > 0.0) cells.thickness_mm = row.thickness_mm * row.multiplicity;
  return cells;
}

/// Joins what is beyond the last row, so that no layer goes missing: names in one cell, numbers added up.
void JoinOverflow(std::vector<TableRow>& rows) {
  constexpr std::size_t kMost = kLastLayerRow - kFirstLayerRow + 1;
  while (rows.size() > kMost) {
    TableRow last = rows.back();
    rows.pop_back();
    TableRow& into = rows.back();
    into.name += "\n" + last.name;
    if (last.thickness_mm) into.thickness_mm = into.thickness_mm.value_or(0.0) + *last.thickness_mm;
    if (last.mass_kg_m2) into.mass_kg_m2 = into.mass_kg_m2.value_or(0.0) + *last.mass_kg_m2;
    into.heading = false;
  }
}

std::vector<TableRow> TableRowsOf(const ReportRecord& record) {
  std::vector<TableRow> rows;
  for (const StructureRow& row : record.structure) rows.push_back(TableRowOf(row, record));
  if (!record.hanger_line.empty()) rows.push_back({.name = record.hanger_line});
  // Resilient layers are announced in words of their own.
  if (record.family == elements::Family::kImpact) {
    for (TableRow& row : rows) {
      if (row.heading && row.name == record.resilient_name) row.name = record.resilient_heading;
    }
  }
  JoinOverflow(rows);
  return rows;
}

void SetOptional(Workbook& workbook, CellPlace place, std::optional<double> value, const char* format) {
  if (!value) {
    workbook.Sheet().Clear(place);
    return;
  }
  workbook.Sheet().SetNumber(place, *value);
  workbook.ChangeStyle(place, {.number_format = format});
}

void SetNumberOrText(Workbook& workbook, CellPlace place, const std::string& text, const char* format) {
  if (const std::optional<double> number = ParseDecimal(text)) {
    SetOptional(workbook, place, number, format);
  } else {
    workbook.Sheet().SetText(place, text);
  }
}

void Draw(Workbook& workbook, int row, int last_name_column) {
  for (int column = kNameColumn; column <= kMassColumn; ++column) {
    workbook.ChangeStyle({row, column}, {.left = column == kNameColumn,
                                         .right = column == kMassColumn,
                                         .top = true,
                                         .bottom = true,
                                         .horizontal = "center",
                                         .wrap = column <= last_name_column});
  }
}

void WriteHeading(Workbook& workbook, const ReportRecord& record, bool facade) {
  Worksheet& sheet = workbook.Sheet();
  if (facade) {
    sheet.SetText({kLayerHeadingRow, kNameColumn}, record.part_heading);
    sheet.SetText({kLayerHeadingRow, kRatingColumn}, "Rw [dB]");
    sheet.SetText({kLayerHeadingRow, kAreaColumn}, "Area [m²]");
    sheet.SetText({kLayerHeadingRow, kShareColumn}, "[%]");
  } else {
    sheet.SetText({kLayerHeadingRow, kThicknessColumn}, " [mm]");
  }
  sheet.SetText({kLayerHeadingRow, kMassColumn}, "m' [Kg/m²]");
}

}  // namespace

void WriteLayerTable(Workbook& workbook, const ReportRecord& record) {
  const bool facade = record.family == elements::Family::kFacade;
  const int last_name_column = facade ? kRatingColumn - 1 : kThicknessColumn - 1;
  Worksheet& sheet = workbook.Sheet();
  WriteHeading(workbook, record, facade);
  sheet.Merge(kLayerHeadingRow, kNameColumn, last_name_column);
  int row = kFirstLayerRow;
  for (const TableRow& cells : TableRowsOf(record)) {
    sheet.SetText({row, kNameColumn}, cells.name);
    SetOptional(workbook, {row, kMassColumn}, cells.mass_kg_m2, kOneDecimal);
    if (facade) {
      SetOptional(workbook, {row, kRatingColumn}, cells.rating_db, kAsNeeded);
      SetNumberOrText(workbook, {row, kAreaColumn}, cells.area, "0.00");
      SetNumberOrText(workbook, {row, kShareColumn}, cells.share, kOneDecimal);
    } else {
      SetOptional(workbook, {row, kThicknessColumn}, cells.thickness_mm, kAsNeeded);
    }
    Draw(workbook, row, last_name_column);
    sheet.Merge(row, kNameColumn, last_name_column);
    FitHeight(sheet, row, cells.name, kNameColumn, last_name_column);
    ++row;
  }
}

}  // namespace velmar::presentation
