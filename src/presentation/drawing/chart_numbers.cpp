#include "presentation/drawing/chart_numbers.h"

#include <optional>
#include <vector>

#include "foundation/decimal.h"

namespace velmar::presentation {
namespace {

struct NamedCurve {
  const std::string& name;
  const acoustics::Spectrum& levels;
};

/// The curves beside the calculated one, as far as they are there.
std::vector<NamedCurve> CurvesBeside(const CurveChart& chart) {
  std::vector<NamedCurve> curves;
  const auto add = [&](const std::string& name, const std::optional<acoustics::Spectrum>& levels) {
    if (levels) curves.push_back({name, *levels});
  };
  add(chart.words.base, chart.base);
  add(chart.words.laboratory, chart.laboratory);
  add(chart.words.in_situ, chart.in_situ);
  add(chart.words.former, chart.marks.former);
  for (const FurtherCurve& curve : chart.further) curves.push_back({curve.name, curve.values});
  return curves;
}

bool IsRated(std::size_t band) {
  return band >= acoustics::kFirstRatedBand && band <= acoustics::kLastRatedBand;
}

std::optional<double> ReferenceAt(const CurveChart& chart, std::size_t band) {
  if (!chart.shift || !IsRated(band)) return std::nullopt;
  return chart.reference.at(band - acoustics::kFirstRatedBand) + *chart.shift;
}

std::string Cell(const std::optional<double>& level_db) {
  return '\t' + (level_db ? FormatFixed(*level_db, 1) : std::string());
}

std::optional<double> Known(double level_db) {
  return level_db == 0.0 ? std::nullopt : std::optional(level_db);
}

}  // namespace

std::vector<ChartNumber> NumbersAt(const CurveChart& chart, std::size_t band) {
  std::vector<ChartNumber> numbers;
  if (band < chart.first_band || band > chart.last_band) return numbers;
  if (const auto level = Known(chart.values.at(band))) numbers.push_back({chart.words.calculated, *level});
  if (const auto level = ReferenceAt(chart, band)) numbers.push_back({chart.words.reference, *level});
  for (const NamedCurve& curve : CurvesBeside(chart)) {
    if (curve.levels.at(band) != 0.0) numbers.push_back({curve.name, curve.levels.at(band)});
  }
  if (chart.marks.deviations && IsRated(band) && chart.values.at(band) != 0.0) {
    const double deviation = DeviationsOf(chart).at(band - acoustics::kFirstRatedBand);
    if (deviation > 0.0) numbers.push_back({chart.words.deviation, deviation});
  }
  return numbers;
}

std::string NumbersTable(const CurveChart& chart) {
  std::string table = chart.words.frequency_axis + '\t' + chart.words.calculated;
  if (chart.shift) table += '\t' + chart.words.reference;
  for (const NamedCurve& curve : CurvesBeside(chart)) {
    table += '\t' + curve.name;
  }
  table += '\n';
  for (std::size_t band = chart.first_band; band <= chart.last_band; ++band) {
    table += FormatShortest(acoustics::BandCentre(band)) + Cell(Known(chart.values.at(band)));
    if (chart.shift) table += Cell(ReferenceAt(chart, band));
    for (const NamedCurve& curve : CurvesBeside(chart)) {
      table += Cell(Known(curve.levels.at(band)));
    }
    table += '\n';
  }
  return table;
}

}  // namespace velmar::presentation
