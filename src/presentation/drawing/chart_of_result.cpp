#include "acoustics/airborne_rating.h"
#include "acoustics/impact_rating.h"
#include "elements/catalogue.h"
#include "foundation/message_rows.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/texts/box_number.h"
#include "presentation/texts/results_table.h"

namespace velmar::presentation {
namespace {

acoustics::Spectrum BandsOf(const elements::BandTexts& texts) {
  acoustics::Spectrum bands{};
  for (std::size_t i = 0; i < bands.size(); ++i) bands[i] = NumberOf(texts[i]);
  return bands;
}

}  // namespace

CurveChart EmptyChart(const Words& words) {
  CurveChart chart;
  chart.words.frequency_axis = words(kFrequencyRow);
  return chart;
}

CurveChart EmptyChartOf(const elements::Setup& setup, const std::string& note, const Words& words) {
  CurveChart chart = EmptyChart(words);
  chart.words.note = note;
  if (!setup.calculation) return chart;
  chart.words.level_axis = ValueHeading(elements::RowOf(*setup.calculation).family, words);
  chart.words.calculated = words(kCalculatedCurveRow);
  return chart;
}

std::optional<CurveChart> CurveChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                       const Words& words) {
  if (!setup.calculation || !result.spectrum || !result.shift) return std::nullopt;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  if (row.model == elements::Model::kGenericLining) return std::nullopt;
  if (row.family == elements::Family::kFacade && setup.facade.simplified) return std::nullopt;

  CurveChart chart = EmptyChart(words);
  chart.values = *result.spectrum;
  chart.reference = ReferenceCurve(row.family);
  chart.shift = result.shift;
  if (IsLining(row.family)) {
    chart.first_band = acoustics::kFirstRatedBand;
    chart.last_band = acoustics::kLastRatedBand;
    chart.base = BandsOf(setup.base.band_texts);
  }
  chart.words.level_axis = ValueHeading(row.family, words);
  chart.words.calculated = words(kCalculatedCurveRow);
  chart.words.reference = words(kReferenceCurveRow);
  chart.words.laboratory = words(kLaboratoryCurveRow);
  chart.words.in_situ = words(kInSituRow);
  chart.words.base = words(kBaseCurveRow);
  chart.unfavourable = row.family == elements::Family::kImpact ? acoustics::Unfavourable::kAbove
                                                               : acoustics::Unfavourable::kBelow;
  return chart;
}

}  // namespace velmar::presentation
