#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/documents/cell_styles.h"
#include "presentation/documents/document_properties.h"
#include "presentation/documents/package.h"
#include "presentation/documents/picture.h"
#include "presentation/documents/worksheet.h"

namespace velmar::presentation {

/// A workbook made from a template, of which the first sheet is filled in. Further sheets may be added.
class Workbook {
 public:
  /// @throws TemplateFailure when `xlsx` is none, or cannot be trusted
  explicit Workbook(std::string_view xlsx);

  Worksheet& Sheet() { return sheet_; }
  CellStyles& Styles() { return styles_; }

  /// Gives the cell the style that it has, changed.
  void ChangeStyle(CellPlace place, const StyleChange& change) { ChangeStyle(sheet_, place, change); }
  void ChangeStyle(Worksheet& sheet, CellPlace place, const StyleChange& change);

  /// A new sheet behind the others, printed on A4 as wide as the paper. A name that is taken gets a number;
  /// of one in two languages the first stands, without what no name may hold.
  /// @param landscape of the paper
  /// @param widths of the columns, in characters
  /// The sheet lives as long as the workbook.
  Worksheet& AddSheet(const std::string& name, bool landscape, const std::vector<double>& widths);

  /// Lets the print of the first sheet reach down to `row`, where the workbook says how far it reaches.
  void PrintDownTo(int row);

  /// Takes the charts off the first sheet.
  void RemoveCharts();

  /// Takes the curves out of the charts of the first sheet whose values stand in column `column` of a sheet.
  void RemoveCurve(const std::string& column);

  /// Lays `picture` over the cells of `sheet`, its corner at `corner`.
  void AddPicture(Worksheet& sheet, CellPlace corner, const Picture& picture);

  void SetProperties(const DocumentProperties& properties) { SetDocumentProperties(package_, properties); }

  /// The workbook as it stands now. Programs that open it form its formulas anew.
  std::string Bytes();

 private:
  struct AddedSheet {
    std::string part{};
    Worksheet sheet;
  };

  void ForgetOldValues();
  const std::string& PartOf(const Worksheet& sheet) const;
  /// The part of the drawing of `sheet`, made when there is none.
  std::string DrawingOf(Worksheet& sheet);

  Package package_;
  std::string main_part_;
  std::string sheet_part_;
  std::string styles_part_;
  Worksheet sheet_;
  CellStyles styles_;
  std::deque<AddedSheet> added_{};
};

}  // namespace velmar::presentation
