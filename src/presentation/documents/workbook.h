#pragma once

#include <deque>
#include <optional>
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
  /// The sheet lives as long as the workbook, or until BeginCopy(). @param beside whether it is named after
  /// the copy that is being filled
  Worksheet& AddSheet(const std::string& name, bool landscape, const std::vector<double>& widths,
                      bool beside = true);

  /// The template's sheet is filled as a copy of it behind all others, called
  /// `name`, from now on, with its charts and pictures. Sheets that AddSheet() gave before
  /// are not to be used any more. What is added from now on is named after `name`.
  void BeginCopy(const std::string& name);

  /// Puts `front`, which AddSheet() gave last, in the place of the template's sheet, of which there are only
  /// copies now.
  void ReplacePattern(const Worksheet& front);

  /// Repeats row `row` of the sheet that stands first at the head of every printed page.
  void RepeatOnPages(int row);

  /// The name that `wanted` gets: without what a name of a sheet may not hold, cut to 31 characters, with a
  /// number where a sheet is called so already.
  std::string FreeSheetName(const std::string& wanted) const;

  /// What the sheet that is being filled is called.
  std::string SheetName() const;

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

  /// The sheet as the template has it, with all that it links to.
  struct Original {
    std::string name{};
    std::string sheet{};
    std::string defined_names{};  ///< those that belong to the sheet, as XML
  };

  std::string CopyPart(const std::string& part, const std::string& old_name, const std::string& new_name);
  void RemovePart(const std::string& part);
  void Flush();
  void AddDefinedNames(std::size_t sheet, const std::string& new_name);
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
  std::optional<Original> original_{};
  std::string copy_prefix_{};  ///< of the names of sheets that are added beside a copy
  bool lost_formula_ = false;
};

}  // namespace velmar::presentation
