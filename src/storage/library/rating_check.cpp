#include "storage/library/rating_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "acoustics/airborne_rating.h"
#include "acoustics/impact_rating.h"
#include "acoustics/octave_rating.h"
#include "foundation/failure.h"

namespace velmar::storage {
namespace {

using acoustics::Spectrum;

/// Ratings are whole decibels; a difference below this is rounding.
constexpr double kSameRating = 0.05;

/// Normalised impact level of the heavy reference floor of ISO 717-2, 100 Hz to 3150 Hz, and its rating.
constexpr std::array<double, acoustics::kRatedBandCount> kReferenceFloor = {
    67, 67.5, 68, 68.5, 69, 69.5, 70, 70.5, 71, 71.5, 72, 72, 72, 72, 72, 72};
constexpr double kReferenceFloorRating = 78.0;

/// The spectrum of `test`, with 0 outside the rated bands where it has none; nothing when a rated band lacks.
std::optional<Spectrum> RatedThirds(const MeasuredTest& test) {
  Spectrum spectrum{};
  for (std::size_t i = 0; i < spectrum.size(); ++i) spectrum.at(i) = test.bands.at(i).value_or(0.0);
  for (std::size_t i = 0; i < acoustics::kRatedBandCount; ++i) {
    if (!test.bands.at(acoustics::kFirstRatedBand + i)) return std::nullopt;
  }
  return spectrum;
}

std::optional<acoustics::OctaveSpectrum> RatedOctavesOf(const MeasuredTest& test) {
  constexpr std::size_t kFirst = 1;  // 125 Hz
  constexpr std::size_t kLast = 5;   // 2000 Hz
  acoustics::OctaveSpectrum octaves{};
  for (std::size_t i = kFirst; i <= kLast; ++i) {
    if (!test.octaves.at(i)) return std::nullopt;
    octaves.at(i) = *test.octaves.at(i);
  }
  return octaves;
}

RatingCheck OfThirds(const Spectrum& spectrum, const std::string& prefix) {
  RatingCheck check{.basis = RatingBasis::kThirds};
  if (prefix == "Ln") {
    check.rating = acoustics::ImpactRatingOfShift(acoustics::FindImpactShift(spectrum));
    check.adaptation = acoustics::FindImpactAdaptationTerm(spectrum, *check.rating);
  } else if (prefix == "DLn") {
    Spectrum covered{};
    for (std::size_t i = 0; i < kReferenceFloor.size(); ++i) {
      const std::size_t band = acoustics::kFirstRatedBand + i;
      covered.at(band) = kReferenceFloor.at(i) - spectrum.at(band);
    }
    check.rating =
        kReferenceFloorRating - acoustics::ImpactRatingOfShift(acoustics::FindImpactShift(covered));
  } else {
    check.rating = acoustics::RatingOfShift(acoustics::FindShift(spectrum));
    const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(spectrum, *check.rating);
    check.adaptation = terms.c;
    check.other_adaptation = terms.ctr;
  }
  return check;
}

RatingCheck OfBands(const LibraryFolder& folder, const MeasuredTest& test) {
  const bool is_lining = folder.table.name == "DRw_laboratorio";
  if (is_lining) return {};
  if (const auto thirds = RatedThirds(test)) return OfThirds(*thirds, folder.band_prefix);
  const bool is_airborne = folder.band_prefix == "R" || folder.band_prefix == "Dn";
  const auto octaves = RatedOctavesOf(test);
  if (!is_airborne || !octaves) return {};
  const double rating = acoustics::RateOctaves(*octaves);
  const acoustics::AdaptationTerms terms = acoustics::FindOctaveTerms(*octaves, rating);
  return {RatingBasis::kOctaves, rating, terms.c, terms.ctr};
}

}  // namespace

RatingCheck CheckRating(const LibraryFolder& folder, const MeasuredTest& test) {
  try {
    RatingCheck check = OfBands(folder, test);
    check.differs = check.rating && test.rating && std::abs(*check.rating - *test.rating) > kSameRating;
    return check;
  } catch (const ArithmeticFailure&) {
    return {};
  }
}

TestUses UsesOf(const MeasuredTest& test) {
  const auto is_set = [](const std::optional<double>& value) { return value.has_value(); };
  return {.facade_by_bands = RatedThirds(test).has_value(),
          .facade_by_rating = test.rating.has_value(),
          .comparison = std::ranges::any_of(test.bands, is_set) || std::ranges::any_of(test.octaves, is_set)};
}

}  // namespace velmar::storage
