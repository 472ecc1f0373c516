#include "presentation/drawing/chart_scale.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "foundation/rounding.h"

namespace velmar::presentation {
namespace {

/// Between two lines of the grid, dB; beyond these by tens again.
constexpr std::array<double, 3> kRoundSteps = {1.0, 2.0, 5.0};
constexpr int kSteps = static_cast<int>(kAxisLabelCount) - 1;
/// What is left above the highest line for a curve, in steps: all but the room of a dot.
constexpr double kRoomAbove = 0.8;

/// What a chart of 10 to 80 dB has room for.
constexpr double kLowestShown = 0.0;
constexpr double kHighestShown = 90.0;

bool Leaves(const acoustics::Spectrum& values, const CurveChart& chart) {
  return std::any_of(values.begin() + static_cast<std::ptrdiff_t>(chart.first_band),
                     values.begin() + static_cast<std::ptrdiff_t>(chart.last_band) + 1,
                     [](double level) { return level < kLowestShown || level > kHighestShown; });
}

void Widen(ChartRange& range, double value) {
  if (value > range.maximum) range.maximum = value;
  if (value != 0.0 && value < range.minimum) range.minimum = value;
}

/// From the lowest to the highest value of the chart and its octaves; 10 to 80 dB without any.
ChartRange RangeOfValues(const CurveChart& chart) {
  ChartRange range;
  bool any = false;
  const auto widen = [&](const acoustics::Spectrum& values) {
    for (const double value : values) {
      if (value == 0.0) continue;
      if (!any) range = {value, value};
      any = true;
      Widen(range, value);
    }
  };
  widen(chart.values);
  if (chart.octaves) widen(*chart.octaves);
  return range;
}

/// The smallest round range whose paper holds every level of `extremes`.
ChartRange RoundRange(const ChartRange& extremes) {
  for (double decade = 1.0;; decade *= 10.0) {
    for (const double round : kRoundSteps) {
      const double step = round * decade;
      const double lowest = std::floor(extremes.minimum / step) * step;
      if (extremes.maximum <= lowest + (kSteps + kRoomAbove) * step) return {lowest, lowest + kSteps * step};
    }
  }
}

/// Lowest and highest level of all that the chart shows; 10 to 80 dB where it shows nothing.
ChartRange ExtremesOf(const CurveChart& chart) {
  std::vector<double> levels;
  const auto add = [&](const acoustics::Spectrum& curve) {
    for (std::size_t band = chart.first_band; band <= chart.last_band; ++band) {
      if (curve[band] != 0.0 && std::isfinite(curve[band])) levels.push_back(curve[band]);
    }
  };
  add(chart.values);
  for (const auto* curve : {&chart.base, &chart.laboratory, &chart.in_situ}) {
    if (*curve) add(**curve);
  }
  for (const FurtherCurve& curve : chart.further) add(curve.values);
  if (chart.shift) {
    for (const double reference : chart.reference) levels.push_back(reference + *chart.shift);
  }
  if (levels.empty()) return {};
  const auto [lowest, highest] = std::ranges::minmax_element(levels);
  return {*lowest, *highest};
}

}  // namespace

ChartRange RangeOf(const CurveChart& chart) {
  ChartRange range;
  if (chart.fits_values) {
    range = RangeOfValues(chart);
  } else if (chart.autoscale) {
    range = RoundRange(ExtremesOf(chart));
  }
  if (range.maximum == range.minimum) range.maximum += 1.0;
  return range;
}

void ShowWhole(CurveChart& chart) {
  for (const auto* curve : {&chart.base, &chart.laboratory, &chart.in_situ})
    chart.autoscale = chart.autoscale || (*curve && Leaves(**curve, chart));
  for (const FurtherCurve& curve : chart.further)
    chart.autoscale = chart.autoscale || Leaves(curve.values, chart);
  // Only upwards: a fitted scale follows a low reference curve no better.
  const bool high_reference =
      chart.shift && *std::ranges::max_element(chart.reference) + *chart.shift > kHighestShown;
  chart.autoscale = chart.autoscale || high_reference || Leaves(chart.values, chart);
}

std::array<int, kAxisLabelCount> AxisLabels(const ChartRange& range) {
  std::array<int, kAxisLabelCount> labels{};
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const double value = (range.maximum - range.minimum) * static_cast<double>(i) / 7.0 + range.minimum;
    labels[i] = static_cast<int>(RoundToEven(value));
  }
  return labels;
}

double LogicalY(double level_db, const ChartRange& range) {
  return 80.0 + (level_db - range.maximum) * (70.0 / (range.maximum - range.minimum));
}

std::vector<ChartSegment> CurveSegments(const acoustics::Spectrum& values, std::size_t first,
                                        std::size_t last) {
  std::vector<ChartSegment> segments;
  std::size_t from = acoustics::kBandCount - 1;
  std::size_t to = 0;
  for (std::size_t band = first; band < last; ++band) {
    if (to > from) {
      segments.push_back({from, to});
      from = to;
    }
    if (values[band] != 0.0) from = band;
    if (values[band + 1] != 0.0) to = band + 1;
  }
  if (to > from) segments.push_back({from, to});
  return segments;
}

std::vector<std::size_t> DottedBands(const acoustics::Spectrum& values, std::size_t first, std::size_t last) {
  std::vector<std::size_t> bands;
  for (std::size_t band = first; band <= last; ++band) {
    if (values[band] != 0.0) bands.push_back(band);
  }
  return bands;
}

}  // namespace velmar::presentation
