#pragma once

#include <QRectF>
#include <vector>

#include "presentation/drawing/printed_page.h"

class QPainter;

namespace velmar::presentation {

/// How a table takes its room.
struct TableStyle {
  double points = 8.0;
  std::vector<double> weights{};  ///< of the columns' widths
  bool first_left = true;         ///< the first column stands left, the others are centred
  bool words_left = false;        ///< so do columns with words, and the cells of a row begin at its top
  double largest_height = 0.0;    ///< rows that would go beyond it are left to the next page
  bool shrinks = true;            ///< the text, before rows are left out
};

/// What was drawn of a table.
struct DrawnTable {
  double height = 0.0;
  std::size_t next_row = 0;  ///< the first row that found no room; the number of rows when all did
};

/// Draws `table` from the top of `area`. Cells break to lines; the text shrinks to 7 points before rows are
/// left out.
DrawnTable DrawTable(QPainter& painter, const QRectF& area, const PageTable& table, const TableStyle& style);

/// How many lines a value of the first page may take; longer ones stand behind it.
inline constexpr int kMostFieldLines = 3;

/// Whether the value of `field` takes more lines than that in one of `columns` columns of `width`.
bool IsLongField(const PageField& field, double width, double points, int columns);

/// Draws `fields` in `columns` columns from the top of `area` and gives their height.
double DrawFields(QPainter& painter, const QRectF& area, const std::vector<PageField>& fields, double points,
                  int columns);

/// Whether layers and notes fit an area of `size` without a name being cut.
bool StructureFits(const QSizeF& size, const PaginaDiStampa& page);

/// Draws layers and notes into `area` and gives the height they took: the largest text of 10 to 7 points at
/// which they fit, in one to three columns.
double DrawStructure(QPainter& painter, const QRectF& area, const PaginaDiStampa& page);

}  // namespace velmar::presentation
