#include "presentation/texts/results_table.h"

#include "acoustics/airborne_rating.h"
#include "acoustics/impact_rating.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/result_lines.h"

namespace velmar::presentation {
namespace {

using elements::Family;

constexpr std::size_t kRatingRow = acoustics::kBandCount;

ResultsTableRow Shown(std::string title, std::string value) {
  return {.title = std::move(title), .value = std::move(value), .reference = {}, .visible = true};
}

void FillBands(ResultsTable& table, const elements::ResultSet& result, Family family, const BandSpan& span) {
  for (std::size_t band = span.first; band <= span.last; ++band) {
    ResultsTableRow& row = table.rows[band];
    row = Shown(FormatShortest(acoustics::BandCentre(band)), FormatLevel((*result.spectrum)[band]));
    row.reference = ReferenceLevel(family, result.shift, band);
  }
}

}  // namespace

const std::array<double, acoustics::kRatedBandCount>& ReferenceCurve(Family family) {
  return family == Family::kImpact ? acoustics::kImpactReference : acoustics::kAirborneReference;
}

std::string ValueHeading(Family family, const Words& words) {
  return words(family == Family::kImpact ? kImpactHeadingRow : kAirborneHeadingRow);
}

std::optional<BandSpan> ShownBands(const elements::Setup& setup) {
  if (!setup.calculation) return std::nullopt;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.model == elements::Model::kGenericLining) return std::nullopt;
  if (row.family == Family::kFacade && setup.facade.simplified) return std::nullopt;
  if (IsLining(row.family)) {
    return BandSpan{acoustics::kFirstRatedBand, acoustics::kLastRatedBand};
  }
  return BandSpan{0, acoustics::kBandCount - 1};
}

ResultsTable ResultsTableOf(const elements::Setup& setup, const elements::ResultSet& result,
                            const Words& words) {
  ResultsTable table;
  if (!setup.calculation) return table;
  const Family family = elements::RowOf(*setup.calculation).family;
  table.frequency_heading = words(kFrequencyRow);
  table.value_heading = ValueHeading(family, words);
  table.reference_heading = words(kReferenceHeadingRow);
  const std::optional<BandSpan> span = ShownBands(setup);
  if (span && result.spectrum) FillBands(table, result, family, *span);
  if (family == Family::kImpact) {
    table.rows[kRatingRow] = Shown("Lnw [dB]", FormatLevel(result.lnw));
    table.rows[kRatingRow + 1] = Shown("Ci [dB]", FormatTerm(result.ci));
  } else {
    table.rows[kRatingRow] = Shown("Rw [dB]", FormatLevel(result.rw));
    table.rows[kRatingRow + 1] = Shown("C [dB]", FormatTerm(result.c));
    table.rows[kRatingRow + 2] = Shown("Ctr [dB]", FormatTerm(result.ctr));
  }
  return table;
}

std::string ClipboardText(const ResultsTable& table) {
  std::string text =
      table.frequency_heading + '\t' + table.value_heading + '\t' + table.reference_heading + '\n';
  for (const ResultsTableRow& row : table.rows) {
    text += row.title + '\t' + row.value;
    if (!row.reference.empty()) text += '\t' + row.reference;
    text += '\n';
  }
  return text;
}

}  // namespace velmar::presentation
