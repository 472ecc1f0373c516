#include "presentation/drawing/chart_scale.h"

#include <algorithm>

#include "foundation/rounding.h"

namespace velmar::presentation {
namespace {

constexpr std::size_t kStartBand = 10;  // 500 Hz
// The reference values that take part in the range: 100 Hz upwards, 2500 Hz downwards.
constexpr std::size_t kRaisingReference = 0;
constexpr std::size_t kLoweringReference = 14;

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

/// From the lowest to the highest value; 10 to 80 dB without any.
ChartRange RangeOfValues(const acoustics::Spectrum& values) {
  ChartRange range;
  bool any = false;
  for (const double value : values) {
    if (value == 0.0) continue;
    if (!any) range = {value, value};
    any = true;
    Widen(range, value);
  }
  return range;
}

}  // namespace

ChartRange RangeOf(const CurveChart& chart) {
  ChartRange range;
  if (chart.fits_values) {
    range = RangeOfValues(chart.values);
  } else if (chart.autoscale) {
    range = {chart.values[kStartBand], chart.values[kStartBand]};
    for (std::size_t band = chart.first_band + 1; band <= chart.last_band; ++band) {
      Widen(range, chart.values[band]);
      if (chart.base) Widen(range, (*chart.base)[band]);
      for (const auto* overlay : {&chart.laboratory, &chart.in_situ}) {
        if (*overlay && (**overlay)[band] != 0.0) Widen(range, (**overlay)[band]);
      }
      for (const FurtherCurve& curve : chart.further) {
        if (curve.values[band] != 0.0) Widen(range, curve.values[band]);
      }
    }
    if (chart.shift) {
      range.maximum = std::max(range.maximum, chart.reference[kRaisingReference] + *chart.shift);
      range.minimum = std::min(range.minimum, chart.reference[kLoweringReference] + *chart.shift);
    }
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
