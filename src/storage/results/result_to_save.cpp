#include "storage/results/result_to_save.h"

#include "acoustics/impact_numbers.h"
#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

using elements::Family;

std::optional<double> AreaOf(const elements::Setup& setup, Family family) {
  switch (family) {
    case Family::kFacade:
      return ParseDecimal(setup.base.area_text);
    case Family::kLining:
    case Family::kCeiling:
      if (setup.base.rating_text.empty()) return std::nullopt;
      return ParseDecimal(setup.base.area_text);
    default: {
      const auto width = ParseDecimal(setup.width_text);
      const auto height = ParseDecimal(setup.height_text);
      if (!width || !height) return std::nullopt;
      return *width * *height;
    }
  }
}

void TakeRatings(const elements::ResultSet& result, ResultTable table, SavedResult& row) {
  switch (table) {
    case ResultTable::kAirborne:
      row.rating = result.rw;
      break;
    case ResultTable::kImpact:
      row.rating = result.lnw;
      row.adaptation = result.ci;
      if (result.spectrum) {
        row.other_adaptation = acoustics::FindImpactNumbers(acoustics::LevelsOf(*result.spectrum)).ci_50_2500;
      }
      return;
    case ResultTable::kLining:
      row.rating = result.delta_rw;
      break;
  }
  row.adaptation = result.c;
  row.other_adaptation = result.ctr;
}

}  // namespace

ResultTable TableFor(Family family) {
  switch (family) {
    case Family::kImpact:
      return ResultTable::kImpact;
    case Family::kLining:
    case Family::kCeiling:
      return ResultTable::kLining;
    default:
      return ResultTable::kAirborne;
  }
}

SavedResult ResultToSave(const elements::Setup& setup, const elements::ResultSet& result,
                         const ResultHeading& heading) {
  const Family family = elements::RowOf(setup.calculation.value()).family;
  const bool facade = family == Family::kFacade;
  SavedResult row;
  row.name = heading.name;
  row.description = facade ? CutFacadeDescription(heading.description) : CutDescription(heading.description);
  row.messages = heading.messages;
  row.area_m2 = AreaOf(setup, family);
  row.thickness_mm = heading.thickness_mm;
  row.mass_kg_m2 = facade && result.mass_kg_m2 ? result.mass_kg_m2 : heading.mass_kg_m2;
  TakeRatings(result, TableFor(family), row);
  if (result.spectrum) {
    for (std::size_t band = 0; band < row.bands.size(); ++band) {
      const double value = result.spectrum->at(band);
      if (!facade || value != 0.0) row.bands.at(band) = value;
    }
  }
  row.critical_frequency_hz = result.critical_frequency_hz;
  row.loss_factor = result.loss_factor;
  return row;
}

}  // namespace velmar::storage
