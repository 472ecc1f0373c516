#include "presentation/reports/data_sheet.h"

#include <optional>
#include <string>
#include <vector>

#include "foundation/decimal.h"
#include "presentation/documents/cell_text.h"

namespace velmar::presentation {
namespace {

const std::vector<double> kWidths = {10, 40, 11, 11, 11, 11, 11, 11, 11, 46};
constexpr int kLastColumn = 10;
/// The weight from which on a column holds sentences.
constexpr double kWideColumn = 3.0;

class DataSheet {
 public:
  DataSheet(Workbook& workbook, Worksheet& sheet) : workbook_(workbook), sheet_(sheet) {}

  void Title(const std::string& text) {
    sheet_.SetText({row_, 1}, text);
    workbook_.ChangeStyle(sheet_, {row_, 1}, {.bold = true});
    ++row_;
  }

  void Field(const DataField& field) {
    sheet_.SetText({row_, 1}, field.caption);
    sheet_.SetText({row_, 3}, field.value);
    ++row_;
  }

  void Table(const DataTable& table) {
    Title(table.title);
    const bool wide = !table.weights.empty() && table.weights.back() >= kWideColumn;
    Row(table.heads, true, wide);
    for (const auto& row : table.rows) Row(row, false, wide);
    ++row_;
  }

  void Line(const std::string& text) {
    sheet_.SetText({row_, 1}, text);
    workbook_.ChangeStyle(sheet_, {row_, 1}, {.horizontal = "left", .wrap = true});
    sheet_.Merge(row_, 1, kLastColumn);
    FitHeight(sheet_, row_, text, 1, kLastColumn);
    ++row_;
  }

  void Space() { ++row_; }

 private:
  /// @param wide the last cell takes all columns that are left
  void Row(const std::vector<std::string>& cells, bool head, bool wide) {
    int column = 1;
    for (const std::string& cell : cells) {
      const CellPlace place{row_, column++};
      const std::optional<double> number = head ? std::nullopt : ParseDecimal(cell);
      if (number) {
        sheet_.SetNumber(place, *number);
      } else {
        sheet_.SetText(place, cell);
      }
      workbook_.ChangeStyle(sheet_, place,
                            {.left = true,
                             .right = true,
                             .top = true,
                             .bottom = true,
                             .horizontal = number || head ? "center" : "left",
                             .wrap = true,
                             .bold = head});
      const bool spans = wide && place.column == static_cast<int>(cells.size());
      const int last = spans ? kLastColumn : place.column;
      if (spans && place.column < kLastColumn) sheet_.MergeRange(place, {row_, kLastColumn});
      FitHeight(sheet_, row_, cell, place.column, last);
    }
    ++row_;
  }

  Workbook& workbook_;
  Worksheet& sheet_;
  int row_ = 1;
};

}  // namespace

void WriteDataSheet(Workbook& workbook, const CalculationData& told, DocumentLanguage language) {
  if (told.title.empty()) return;
  CalculationData data = told;
  // Numbers stay numbers.
  for (DataField& field : data.fields) {
    if (!field.as_it_stands && !ParseDecimal(field.value)) field.value = ForPaper(field.value, language);
  }
  DataSheet sheet(workbook, workbook.AddSheet(data.title, true, kWidths));
  sheet.Title(data.title);
  for (const DataField& field : data.fields) sheet.Field(field);
  sheet.Space();
  for (const DataTable& table : data.tables) sheet.Table(table);
  sheet.Title(data.references_title);
  for (const std::string& reference : data.references) sheet.Line(reference);
}

}  // namespace velmar::presentation
