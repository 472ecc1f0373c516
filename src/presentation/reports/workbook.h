#pragma once

#include <string>
#include <string_view>

#include "presentation/reports/cell_styles.h"
#include "presentation/reports/package.h"
#include "presentation/reports/worksheet.h"

namespace velmar::presentation {

/// A workbook made from a template, of which the first sheet is filled in.
class Workbook {
 public:
  /// @throws TemplateFailure when `xlsx` is none, or cannot be trusted
  explicit Workbook(std::string_view xlsx);

  Worksheet& Sheet() { return sheet_; }
  CellStyles& Styles() { return styles_; }

  /// Gives the cell the style that it has, changed.
  void ChangeStyle(CellPlace place, const StyleChange& change);

  /// The workbook as it stands now. Programs that open it form its formulas anew.
  std::string Bytes();

 private:
  void ForgetOldValues();

  Package package_;
  std::string main_part_;
  std::string sheet_part_;
  std::string styles_part_;
  Worksheet sheet_;
  CellStyles styles_;
};

}  // namespace velmar::presentation
