#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "acoustics/bands.h"
#include "foundation/catalogue_rows.h"
#include "foundation/message.h"

namespace velmar::models {

/// What a database or a test report tells of one part of a facade. The sign of a band value is dropped; 0
/// means that the part has no value in that band.
struct FacadePart {
  double rating_db = 0.0;           ///< Rw, or Dn,e,w of a small element
  double c_db = 0.0;                ///< adaptation term for pink noise
  double ctr_db = 0.0;              ///< adaptation term for road traffic
  acoustics::Spectrum bands_db{};   ///< R, or Dn,e of a small element
  double surface_mass_kg_m2 = 0.0;  ///< m'
};

/// A window, a door, a vent or a small element in the opaque part.
struct FacadeComponent {
  FacadePart part{};
  double area_m2 = 0.0;     ///< its sign is dropped; 0 means a small element, rated by Dn,e
  int tightness_class = 0;  ///< air tightness after EN 12207, 0 to 4
};

/// All that the calculation of a composite facade reads.
struct CompositeElementInput {
  double area_m2 = 0.0;  ///< S, the whole element; its sign is dropped
  FacadePart opaque{};   ///< takes the area that the components leave
  std::vector<FacadeComponent> components{};
};

/// Why a composite element cannot be calculated: the lines of the box that says so.
struct CompositeRefusal {
  Message message;
};

/// "A band value is missing", three rows that stand one below the other.
inline constexpr MessageRow kMissingBandRows[] = {kMissingBandsRow, kMissingBandsWhereRow,
                                                  kMissingBandsAdviceRow};

/// The band form's outcome.
struct CompositeSpectrum {
  acoustics::Spectrum
      reduction_index_db{};         ///< 0 in a band, outside the rated ones, where a part has no value
  double surface_mass_kg_m2 = 0.0;  ///< mean over the area
};

/// The simplified form's outcome, whole dB, ties to even.
struct CompositeRating {
  double rw_db = 0.0;
  double c_db = 0.0;
  double ctr_db = 0.0;
  double surface_mass_kg_m2 = 0.0;  ///< mean over the area
};

/// What a frame of this air-tightness class takes from the component's reduction index, dB.
/// @param tightness_class 0 (no correction) to 4
/// @throws std::out_of_range beyond these
double TightnessCorrection(int tightness_class);

/// The share of a component in the whole area, percent. Nothing when the whole area is 0 or no number.
std::optional<double> ComponentSharePercent(double component_area_m2, double area_m2);

/// The reduction index per band: the energy that the parts let through, each weighted by its share of the
/// area, small elements by 10 m² of reference absorption (EN 12354-3, 4.2).
/// @return the refusal when the components fill the area or a part has no value in a rated band (100 Hz to
/// 3150 Hz)
/// @throws ArithmeticFailure when a band comes to no finite level
/// @throws std::out_of_range for an unknown air-tightness class
std::variant<CompositeSpectrum, CompositeRefusal> CalculateCompositeSpectrum(
    const CompositeElementInput& input);

/// The same from the single numbers alone: Rw from the ratings, C and Ctr from ratings and terms added. Only
/// Rw sees the air-tightness correction, the two terms do not: stored results depend on it.
/// @return the refusal when the components fill the area
/// @throws ArithmeticFailure when a rating is not a finite number
/// @throws std::out_of_range for an unknown air-tightness class
std::variant<CompositeRating, CompositeRefusal> CalculateCompositeRating(const CompositeElementInput& input);

/// The share of each part in the energy that the element lets through, the opaque part first; they add up to
/// 1. Of A-weighted pink noise in front of it (spectrum no. 1 of ISO 717-1, 100 Hz to 3150 Hz), so that what
/// a part lets through in each band counts as in Rw + C.
/// @return nothing when the components fill the area, a part has no value in a rated band, or nothing finite
/// comes through
/// @throws std::out_of_range for an unknown air-tightness class
std::optional<std::vector<double>> SharesByBands(const CompositeElementInput& input);

/// The same from the ratings alone, as in the sum that makes Rw.
/// @return nothing when the components fill the area or nothing finite comes through
/// @throws std::out_of_range for an unknown air-tightness class
std::optional<std::vector<double>> SharesByRating(const CompositeElementInput& input);

}  // namespace velmar::models
