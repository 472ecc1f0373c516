#include "acoustics/impact_rating.h"

#include <cmath>
#include <string>

#include "acoustics/logarithm.h"
#include "acoustics/unfavourable_deviations.h"
#include "foundation/failure.h"
#include "foundation/rounding.h"

namespace velmar::acoustics {
namespace {

constexpr std::size_t k500Hz = 7;
// Far beyond any level in dB; up to here every trial shift is an exact whole number.
constexpr double kLargestLevel = 1e6;

}  // namespace

double FindImpactShift(const Spectrum& impact_level) {
  double sum = 0.0;
  for (std::size_t band = kFirstRatedBand; band <= kLastRatedBand; ++band) {
    if (!(std::abs(impact_level[band]) < kLargestLevel)) {
      throw ArithmeticFailure("band " + std::to_string(band) + " holds no level that can be rated");
    }
    sum += impact_level[band];
  }
  double shift = RoundToEven((sum - 117.0) / 16.0);
  while (!(SumOf(UnfavourableDeviations(impact_level, kImpactReference, shift, Unfavourable::kAbove)) <
           kAllowedDeviationDb))
    shift += 1.0;
  return shift;
}

double ImpactRatingOfShift(double shift) { return kImpactReference[k500Hz] + shift; }

double FindImpactAdaptationTerm(const Spectrum& impact_level, double lnw) {
  double energy = 0.0;
  for (std::size_t band = kFirstRatedBand; band <= kLastRatedBand; ++band) {
    energy += std::pow(10.0, impact_level[band] / 10.0);
  }
  return RoundToEven(RequireFinite(10.0 * Log10(energy) - 15.0 - lnw, "adaptation term"));
}

}  // namespace velmar::acoustics
