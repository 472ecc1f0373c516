#include "models/sea/lining_rating.h"

#include <cmath>
#include <stdexcept>

#include "acoustics/airborne_rating.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "models/sea/lining_checks.h"

namespace velmar::models {

LiningRating RateLining(const acoustics::Spectrum& reduction_index_db, float base_rw_db) {
  LiningRating rating;
  rating.shift = acoustics::FindShift(reduction_index_db);
  const double improved_rw = acoustics::RatingOfShift(rating.shift);
  rating.delta_rw = RoundToEven(improved_rw - static_cast<double>(base_rw_db));
  const double reduced_rw = improved_rw - rating.delta_rw;
  const auto terms = acoustics::FindAdaptationTerms(reduction_index_db, reduced_rw);
  rating.c = terms.c;
  rating.ctr = terms.ctr;
  rating.rw = RoundToEven(rating.delta_rw + reduced_rw);
  return rating;
}

double GenericLiningImprovement(float lining_mass_kg_m2, float base_mass_kg_m2, float depth_m,
                                float base_rw_db) {
  if (!(depth_m > 0.0F)) throw ArithmeticFailure(kZeroCavityDepthRow, "a lining without a cavity");
  const float resonance_hz =
      160.0F * std::sqrt((1.0F / lining_mass_kg_m2 + 1.0F / base_mass_kg_m2) * (0.111F / depth_m));
  const double improvement = 72.0 - (20.0 * acoustics::Log10(static_cast<double>(resonance_hz)) +
                                     static_cast<double>(base_rw_db) / 2.0);
  return RequireFinite(improvement, "improvement of a lining");
}

LiningRating RateGenericLining(const LiningInput& input) {
  if (!IsGeneric(input.variant) || !CheckLining(input).empty()) {
    throw std::invalid_argument("the lining has not passed its check");
  }
  LiningRating rating;
  rating.delta_rw = RoundToEven(
      GenericLiningImprovement(static_cast<float>(GenericLiningMass(input)), input.base_mass_kg_m2,
                               static_cast<float>(input.cavity.depth_mm * 0.001), *input.base_rw_db));
  rating.rw = RoundToEven(rating.delta_rw + static_cast<double>(*input.base_rw_db));
  return rating;
}

}  // namespace velmar::models
