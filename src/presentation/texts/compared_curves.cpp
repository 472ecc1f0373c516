#include "presentation/texts/compared_curves.h"

#include <algorithm>
#include <utility>

#include "acoustics/airborne_numbers.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::presentation {
namespace {

constexpr const char* kAirborneSymbol = "Rw";
constexpr const char* kImpactSymbol = "Ln,w";

/// The numbers that a result and a variant both keep.
struct Numbers {
  const std::optional<acoustics::Spectrum>& spectrum;
  const std::optional<double>& rw;
  const std::optional<double>& c;
  const std::optional<double>& ctr;
  const std::optional<double>& lnw;
  const std::optional<double>& ci;
};

std::optional<double> Whole(const std::optional<double>& value) {
  return value ? std::optional(RoundToEven(*value)) : std::nullopt;
}

acoustics::BandLevels KnownLevels(const acoustics::Spectrum& spectrum) {
  acoustics::BandLevels levels{};
  for (std::size_t band = 0; band < spectrum.size(); ++band) {
    if (spectrum[band] != 0.0) levels[band] = spectrum[band];
  }
  return levels;
}

std::optional<ComparedCurve> CurveOf(std::string name, const Numbers& numbers,
                                     elements::Calculation calculation) {
  if (!numbers.spectrum) return std::nullopt;
  ComparedCurve curve;
  curve.name = std::move(name);
  curve.levels = *numbers.spectrum;
  const elements::Family family = elements::RowOf(calculation).family;
  if (family == elements::Family::kImpact) {
    curve.symbol = kImpactSymbol;
    curve.rating = Whole(numbers.lnw);
    curve.term = Whole(numbers.ci);
    return curve;
  }
  curve.symbol = kAirborneSymbol;
  if (IsLining(family)) {
    const acoustics::AirborneNumbers resulting = acoustics::FindAirborneNumbers(KnownLevels(curve.levels));
    curve.rating = resulting.rw;
    curve.term = resulting.c;
    curve.other_term = resulting.ctr;
    return curve;
  }
  curve.rating = Whole(numbers.rw);
  curve.term = Whole(numbers.c);
  curve.other_term = Whole(numbers.ctr);
  return curve;
}

std::string Unsigned(const std::optional<double>& value, int decimals) {
  return value ? FormatFixed(*value, decimals) : kNoValue;
}

std::string Number(std::size_t index) { return std::to_string(index + 1); }

DataTable RatingsOf(const Comparison& comparison, const Words& words) {
  DataTable table{.title = words(kComparisonTitleRow),
                  .heads = {words(kCurveNumberRow), words(kCurveHeadingRow)},
                  .weights = {1.0, 9.0}};
  for (std::string& head : RatingHeads(comparison.is_impact))
    table.heads.push_back(std::move(head) + " [dB]");
  if (comparison.against) table.heads.push_back("Δ [dB]");
  table.weights.resize(table.heads.size(), 2.0);
  for (std::size_t i = 0; i < comparison.curves.size(); ++i) {
    const ComparedCurve& curve = comparison.curves[i];
    std::vector<std::string> row = {Number(i), curve.name, RatingCell(curve, comparison.is_impact),
                                    SignedCell(curve.term)};
    if (!comparison.is_impact) row.push_back(SignedCell(curve.other_term));
    if (comparison.against)
      row.push_back(i == *comparison.against
                        ? kNoValue
                        : SignedCell(RatingDifference(curve, comparison.curves[*comparison.against])));
    table.rows.push_back(std::move(row));
  }
  return table;
}

/// A row of a table of bands, unless all its cells are empty.
void AddBand(DataTable& table, std::size_t band, std::vector<std::string> cells) {
  if (std::ranges::all_of(cells, [](const std::string& cell) { return cell == kNoValue; })) return;
  cells.insert(cells.begin(), FormatShortest(acoustics::BandCentre(band)));
  table.rows.push_back(std::move(cells));
}

DataTable LevelsTable(const Comparison& comparison, const Words& words) {
  DataTable table{.title = words(kComparedLevelsRow), .heads = {words(kFrequencyRow)}};
  for (std::size_t i = 0; i < comparison.curves.size(); ++i) table.heads.push_back(Number(i));
  table.weights.assign(table.heads.size(), 1.0);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    std::vector<std::string> cells;
    for (const ComparedCurve& curve : comparison.curves) {
      const double level = curve.levels[band];
      cells.push_back(Unsigned(level == 0.0 ? std::nullopt : std::optional(level), 1));
    }
    AddBand(table, band, std::move(cells));
  }
  return table;
}

DataTable DifferencesTable(const Comparison& comparison, std::size_t against, const Words& words) {
  const ComparedCurve& from = comparison.curves.at(against);
  DataTable table{
      .title = words(kComparedDifferencesRow) + ' ' + Number(against) + " (" + from.name + ") [dB]",
      .heads = {words(kFrequencyRow)}};
  std::vector<BandDifferences> columns;
  for (std::size_t i = 0; i < comparison.curves.size(); ++i) {
    if (i == against) continue;
    table.heads.push_back(Number(i) + " - " + Number(against));
    columns.push_back(DifferencesOf(comparison.curves[i], from));
  }
  table.weights.assign(table.heads.size(), 1.0);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    std::vector<std::string> cells;
    for (const BandDifferences& column : columns) cells.push_back(SignedCell(column[band], 1));
    AddBand(table, band, std::move(cells));
  }
  return table;
}

}  // namespace

std::optional<ComparedCurve> ComparedResult(std::string name, const elements::ResultSet& result,
                                            elements::Calculation calculation) {
  return CurveOf(std::move(name), {result.spectrum, result.rw, result.c, result.ctr, result.lnw, result.ci},
                 calculation);
}

std::optional<ComparedCurve> ComparedVariant(std::string name, const elements::VariantResult& result,
                                             elements::Calculation calculation) {
  return CurveOf(std::move(name), {result.spectrum, result.rw, result.c, result.ctr, result.lnw, result.ci},
                 calculation);
}

BandDifferences DifferencesOf(const ComparedCurve& curve, const ComparedCurve& from) {
  BandDifferences differences{};
  for (std::size_t band = 0; band < differences.size(); ++band) {
    if (curve.levels[band] != 0.0 && from.levels[band] != 0.0)
      differences[band] = curve.levels[band] - from.levels[band];
  }
  return differences;
}

std::optional<double> RatingDifference(const ComparedCurve& curve, const ComparedCurve& from) {
  if (!curve.rating || !from.rating || curve.symbol != from.symbol) return std::nullopt;
  return *curve.rating - *from.rating;
}

std::string RatingCell(const ComparedCurve& curve, bool is_impact) {
  if (!curve.rating) return kNoValue;
  const std::string value = FormatShortest(RoundToEven(*curve.rating, 1));
  const bool is_of_column = curve.symbol == (is_impact ? kImpactSymbol : kAirborneSymbol);
  return is_of_column || curve.symbol.empty() ? value : curve.symbol + ' ' + value;
}

std::string SignedCell(const std::optional<double>& value, int decimals) {
  if (!value) return kNoValue;
  const double shown = RoundToEven(*value, decimals);
  if (shown == 0.0) return FormatFixed(0.0, decimals);
  return (shown > 0.0 ? "+" : "") + FormatFixed(shown, decimals);
}

std::vector<std::string> RatingHeads(bool is_impact) {
  if (is_impact) return {kImpactSymbol, "Ci"};
  return {kAirborneSymbol, "C", "Ctr"};
}

void AddComparison(CalculationData& data, const Comparison& comparison, const Words& words) {
  if (comparison.curves.size() < 2) return;
  data.tables.push_back(RatingsOf(comparison, words));
  data.tables.push_back(LevelsTable(comparison, words));
  if (comparison.against) data.tables.push_back(DifferencesTable(comparison, *comparison.against, words));
}

}  // namespace velmar::presentation
