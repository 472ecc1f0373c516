#pragma once

#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "presentation/documents/cell_styles.h"

namespace velmar::presentation {

/// A cell by row and column, both from 1.
struct CellPlace {
  int row = 1;
  int column = 1;
};

/// "B37".
std::string CellName(CellPlace place);

/// One sheet of a workbook. Rows and cells are kept in rising order, as the format demands.
class Worksheet {
 public:
  /// @throws TemplateFailure when `bytes` hold no sheet
  Worksheet(std::string_view bytes, const std::string& name);

  /// Puts `text` into the cell, as a text also when it looks like a formula. The cell keeps its style.
  void SetText(CellPlace place, std::string_view text);
  void SetNumber(CellPlace place, double value);
  void Clear(CellPlace place);

  int StyleOf(CellPlace place) const;
  void SetStyle(CellPlace place, int style);

  /// Makes one cell of columns `first` to `last` of a row. A row in which cells are already joined stays.
  void Merge(int row, int first, int last);
  /// Parts the cells that are joined across the rows `first` to `last` and columns `left` to `right`.
  void Unmerge(int first, int last, int left, int right);

  /// Makes one cell of a range of rows and columns.
  void MergeRange(CellPlace from, CellPlace to);
  void SetHeight(int row, double height_points);

  /// A link from the cell `place` to the cell A1 of the sheet `sheet`.
  void AddLink(CellPlace place, const std::string& sheet);

  /// Whether the sheet is among those that are shown when the workbook is opened.
  void SetSelected(bool selected);

  /// Rows up to `rows` are repeated when the sheet is scrolled.
  void Freeze(int rows);

  /// Links the sheet to its drawing. @param relationship identifier of the link
  void SetDrawing(const std::string& relationship);

  /// Puts `text` at the left of the foot of every printed page, unless the template has something there.
  void PutFoot(const std::string& text);

  /// Height of a row in points as the sheet states it; 0 where it leaves that to the program that shows it.
  double HeightOf(int row) const;

  /// Width of a column in characters.
  double WidthOf(int column) const;

  /// Whether a cell with a formula was written over.
  bool LostFormula() const { return lost_formula_; }
  bool HasFormula() const;
  std::string Bytes() const { return XmlBytesOf(); }

 private:
  pugi::xml_node Row(int row);
  pugi::xml_node Cell(CellPlace place);
  pugi::xml_node FindCell(CellPlace place) const;
  pugi::xml_node EmptiedCell(CellPlace place);
  std::string XmlBytesOf() const;

  pugi::xml_document xml_{};
  pugi::xml_node data_{};
  bool lost_formula_ = false;
};

}  // namespace velmar::presentation
