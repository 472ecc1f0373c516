#pragma once

#include <optional>

#include "storage/library/measured_test.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// Which bands of a test give a rating.
enum class RatingBasis { kNone, kThirds, kOctaves };

/// The rating that the bands of a test give, beside the one it states.
struct RatingCheck {
  RatingBasis basis = RatingBasis::kNone;
  std::optional<double> rating{};            ///< dB; absent without a basis
  std::optional<double> adaptation{};        ///< C, or Ci
  std::optional<double> other_adaptation{};  ///< Ctr

  /// Whether the stated rating is another than the bands give; false where either is missing.
  bool differs = false;
};

/// Rates the bands of `test` anew: R, Dn,e and R' by ISO 717-1 (one-third octaves from 100 Hz to 3150 Hz, or
/// else octaves from 125 Hz to 2000 Hz), Ln and L'n by ISO 717-2 and the improvement of a floor covering over
/// its reference floor (one-third octaves alone). Linings have no rating of their own: their bands are an
/// improvement of a base that the row does not hold. Bands that no rating can come of are no basis.
RatingCheck CheckRating(const LibraryFolder& folder, const MeasuredTest& test);

/// What a test can serve for as it stands. The area of a part is typed in the facade, so none is asked here.
struct TestUses {
  bool facade_by_bands = false;   ///< every band from 100 Hz to 3150 Hz
  bool facade_by_rating = false;  ///< the rating that its folder's calculations read
  bool comparison = false;        ///< any band, third octave or octave
};

TestUses UsesOf(const MeasuredTest& test);

}  // namespace velmar::storage
