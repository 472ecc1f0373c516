#include "acoustics/airborne_rating.h"

#include <cmath>

#include "acoustics/logarithm.h"
#include "acoustics/rating_spectra.h"
#include "acoustics/unfavourable_deviations.h"
#include "foundation/failure.h"
#include "foundation/rounding.h"

namespace velmar::acoustics {
namespace {

using RatedValues = std::array<double, kRatedBandCount>;

constexpr std::size_t k500Hz = 7;
// Far beyond any level in dB; up to here every trial shift is an exact whole number.
constexpr double kLargestLevel = 1e6;

constexpr RatedValues kTraffic = {-20, -20, -18, -16, -15, -14, -13, -12,
                                  -11, -9,  -8,  -9,  -10, -11, -13, -15};

double AdaptationTerm(const RatedValues& source, const Spectrum& reduction_index, double rw) {
  double energy = 0.0;
  for (std::size_t j = 0; j < kRatedBandCount; ++j) {
    energy += std::pow(10.0, (source[j] - reduction_index[j + kFirstRatedBand]) / 10.0);
  }
  return RoundToEven(RequireFinite(-10.0 * Log10(energy) - rw, "adaptation term"));
}

}  // namespace

double FindShift(const Spectrum& reduction_index) {
  double sum = 0.0;
  for (std::size_t band = kFirstRatedBand; band <= kLastRatedBand; ++band) {
    if (!(std::abs(reduction_index[band]) < kLargestLevel)) {
      throw ArithmeticFailure("band " + std::to_string(band) + " holds no level that can be rated");
    }
    sum += reduction_index[band];
  }
  double shift = RoundToEven((sum + 140.0) / 16.0);
  while (!(SumOf(UnfavourableDeviations(reduction_index, kAirborneReference, shift, Unfavourable::kBelow)) <
           kAllowedDeviationDb))
    shift -= 1.0;
  return shift;
}

double RatingOfShift(double shift) { return kAirborneReference[k500Hz] + shift; }

AdaptationTerms FindAdaptationTerms(const Spectrum& reduction_index, double rw) {
  return {.c = AdaptationTerm(kPinkNoise, reduction_index, rw),
          .ctr = AdaptationTerm(kTraffic, reduction_index, rw)};
}

}  // namespace velmar::acoustics
