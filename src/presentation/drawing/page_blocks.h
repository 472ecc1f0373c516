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
  double largest_height = 0.0;    ///< rows above it are told by an ellipsis
};

/// Draws `table` from the top of `area` and gives its height. Cells break to lines; the text shrinks to 7
/// points before rows are left out.
double DrawTable(QPainter& painter, const QRectF& area, const PageTable& table, const TableStyle& style);

/// Draws `fields` in `columns` columns from the top of `area` and gives their height. A value takes up to
/// three lines.
double DrawFields(QPainter& painter, const QRectF& area, const std::vector<PageField>& fields, double points,
                  int columns);

/// Draws layers and notes into `area` and gives the height they took: the largest text of 10 to 7 points at
/// which they fit, in one to three columns.
double DrawStructure(QPainter& painter, const QRectF& area, const PaginaDiStampa& page);

}  // namespace velmar::presentation
