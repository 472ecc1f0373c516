#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "presentation/drawing/curve_chart.h"

namespace velmar::presentation {

/// The value of one curve in a band.
struct ChartNumber {
  std::string name{};
  double level_db = 0.0;
};

/// What every curve of `chart` has in `band`, the calculated one first; at the end the deviation, where it is
/// unfavourable and shaded. A curve without a value there is left out.
std::vector<ChartNumber> NumbersAt(const CurveChart& chart, std::size_t band);

/// All curves as a table for the clipboard: a row a band with one decimal, cells parted by tabs, each row
/// ended by a line feed; a curve without a value in a band leaves its cell empty.
std::string NumbersTable(const CurveChart& chart);

}  // namespace velmar::presentation
