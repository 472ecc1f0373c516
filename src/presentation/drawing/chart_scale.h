#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "acoustics/bands.h"
#include "presentation/drawing/curve_chart.h"

namespace velmar::presentation {

/// What the chart's 10 to 80 lines stand for, dB.
struct ChartRange {
  double minimum = 10.0;
  double maximum = 80.0;
};

/// Logical size of the chart: one unit a band across, 90 upwards.
inline constexpr double kChartWidth = 20.0;
inline constexpr double kChartHeight = 90.0;

inline constexpr std::size_t kAxisLabelCount = 8;

/// The range that `chart` shows. With `autoscale` the smallest one with lines at multiples of 1, 2, 5, 10,
/// ... dB that keeps every curve of the chart on the paper, the reference curve included; a band without a
/// value counts nowhere.
ChartRange RangeOf(const CurveChart& chart);

/// The labels of the dB axis from bottom to top, whole numbers, ties to even.
std::array<int, kAxisLabelCount> AxisLabels(const ChartRange& range);

/// Logical height of `level_db`: 10 for the minimum, 80 for the maximum.
double LogicalY(double level_db, const ChartRange& range);

/// A stretch of a curve between two bands that hold a value.
struct ChartSegment {
  std::size_t from = 0;
  std::size_t to = 0;

  bool operator==(const ChartSegment&) const = default;
};

/// The stretches that join the bands of `values` from `first` to `last`; a band at 0 has no value and is
/// bridged.
std::vector<ChartSegment> CurveSegments(const acoustics::Spectrum& values, std::size_t first,
                                        std::size_t last);

/// The bands from `first` to `last` that hold a value and so carry a dot.
std::vector<std::size_t> DottedBands(const acoustics::Spectrum& values, std::size_t first, std::size_t last);

}  // namespace velmar::presentation
