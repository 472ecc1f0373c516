#include "presentation/reports/layer_table.h"

#include <string>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "presentation/documents/cell_text.h"
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
  int number = 0;  ///< as the section shows it; 0 for none
  bool heading = false;
};

std::string NameWithSheets(const StructureRow& row, DocumentLanguage language) {
  std::string name = FullName(row);
  if (row.kind == StructureKind::kWords) name = ForPaper(name, language);
  if (row.multiplicity > 1 && row.thickness_mm > 0.0)
    name += ForPaper(" (" + ThicknessText(row) + " mm)", language);
  return name;
}

TableRow TableRowOf(const StructureRow& row, const ReportRecord& record) {
  if (row.kind == StructureKind::kHeading) return {.name = row.name, .heading = true};
  TableRow cells{.name = NameWithSheets(row, record.language),
                 .area = row.area,
                 .share = row.share,
                 .mass_kg_m2 = row.mass_kg_m2};
  if (record.family == elements::Family::kFacade && !row.note.empty()) cells.name += " - " + row.note;
  if (!row.rating.empty()) cells.rating_db = ParseDecimal(row.rating);
  cells.number = row.number;
  if (row.thickness_mm > 0.0) cells.thickness_mm = row.thickness_mm * row.multiplicity;
  return cells;
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
  return rows;
}

void SetOptional(Workbook& workbook, Worksheet& sheet, CellPlace place, std::optional<double> value,
                 const char* format) {
  if (!value) {
    sheet.Clear(place);
    return;
  }
  sheet.SetNumber(place, *value);
  workbook.ChangeStyle(sheet, place, {.number_format = format});
}

void SetNumberOrText(Workbook& workbook, Worksheet& sheet, CellPlace place, const std::string& text,
                     const char* format) {
  if (const std::optional<double> number = ParseDecimal(text)) {
    SetOptional(workbook, sheet, place, number, format);
  } else {
    sheet.SetText(place, text);
  }
}

/// The number before the name is a matter of show: the cell holds the name alone.
std::string NumberedFormat(int number) {
  return number > 0 ? "\"" + std::to_string(number) + ".  \"@" : std::string();
}

void Draw(Workbook& workbook, Worksheet& sheet, int row, int last_name_column, const StyleChange& own) {
  for (int column = kNameColumn; column <= kMassColumn; ++column) {
    StyleChange change = column == kNameColumn ? own : StyleChange{};
    change.left = column == kNameColumn;
    change.right = column == kMassColumn;
    change.top = true;
    change.bottom = true;
    change.horizontal = "center";
    change.wrap = column <= last_name_column;
    workbook.ChangeStyle(sheet, {row, column}, change);
  }
}

/// A place for rows of layers: the table of the template, or a sheet of its own.
class LayerSheet {
 public:
  LayerSheet(Workbook& workbook, Worksheet& sheet, const ReportRecord& record)
      : workbook_(workbook),
        sheet_(sheet),
        record_(record),
        facade_(record.family == elements::Family::kFacade),
        last_name_column_(facade_ ? kRatingColumn - 1 : kThicknessColumn - 1) {}

  void WriteHeading(int row) {
    if (facade_) {
      sheet_.SetText({row, kNameColumn}, record_.part_heading);
      sheet_.SetText({row, kRatingColumn}, "Rw [dB]");
      sheet_.SetText({row, kAreaColumn}, "Area [m²]");
      sheet_.SetText({row, kShareColumn}, "[%]");
    } else {
      sheet_.SetText({row, kThicknessColumn}, " [mm]");
    }
    sheet_.SetText({row, kMassColumn}, "m' [kg/m²]");
    sheet_.Merge(row, kNameColumn, last_name_column_);
  }

  void Write(int row, const TableRow& cells) {
    sheet_.SetText({row, kNameColumn}, cells.name);
    SetOptional(workbook_, sheet_, {row, kMassColumn}, cells.mass_kg_m2, kOneDecimal);
    if (facade_) {
      SetOptional(workbook_, sheet_, {row, kRatingColumn}, cells.rating_db, kAsNeeded);
      SetNumberOrText(workbook_, sheet_, {row, kAreaColumn}, cells.area, "0.00");
      SetNumberOrText(workbook_, sheet_, {row, kShareColumn}, cells.share, kOneDecimal);
    } else {
      SetOptional(workbook_, sheet_, {row, kThicknessColumn}, cells.thickness_mm, kAsNeeded);
    }
    Draw(workbook_, sheet_, row, last_name_column_,
         {.bold = cells.heading, .number_format = NumberedFormat(cells.number)});
    sheet_.Merge(row, kNameColumn, last_name_column_);
    FitHeight(sheet_, row, cells.name, kNameColumn, last_name_column_);
  }

 private:
  Workbook& workbook_;
  Worksheet& sheet_;
  const ReportRecord& record_;
  bool facade_;
  int last_name_column_;
};

}  // namespace

void WriteLayerTable(Workbook& workbook, const ReportRecord& record) {
  constexpr std::size_t kMost = kLastLayerRow - kFirstLayerRow + 1;
  const std::vector<TableRow> rows = TableRowsOf(record);
  LayerSheet table(workbook, workbook.Sheet(), record);
  table.WriteHeading(kLayerHeadingRow);
  // The last row tells where the list goes on.
  const std::size_t here = rows.size() > kMost ? kMost - 1 : rows.size();
  for (std::size_t i = 0; i < here; ++i) table.Write(kFirstLayerRow + static_cast<int>(i), rows[i]);
  if (here == rows.size()) return;
  table.Write(kLastLayerRow, {.name = record.more_layers});
  Worksheet& sheet = workbook.AddSheet(record.layer_sheet, false, {15, 13, 10, 11, 13, 13, 13});
  LayerSheet further(workbook, sheet, record);
  further.WriteHeading(1);
  for (std::size_t i = here; i < rows.size(); ++i) further.Write(2 + static_cast<int>(i - here), rows[i]);
}

}  // namespace velmar::presentation
