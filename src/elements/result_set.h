#pragma once

#include <optional>
#include <vector>

#include "acoustics/bands.h"
#include "acoustics/range_left.h"

namespace velmar::elements {

/// The outcome of a run. A quantity that the calculation does not write is absent. Levels in dB; the single
/// numbers are whole unless said otherwise.
struct ResultSet {
  /// R, or Ln for impact sound; 0 in a facade band for which a part has no value.
  std::optional<acoustics::Spectrum> spectrum;

  std::optional<double> shift;  ///< X of the reference curve
  std::optional<double> rw;
  std::optional<double> c;
  std::optional<double> ctr;
  std::optional<double> relation_rating;  ///< RwRelation, single precision, not whole
  std::optional<double> delta_rw;  ///< improvement by a lining (whole) or a floating screed (not whole)

  std::optional<double> lnw;
  std::optional<double> ci;
  std::optional<double> delta_lnw;          ///< improvement by the floating screed, not whole
  std::optional<double> rw_estimate;        ///< airborne estimate of a floor, not whole
  std::optional<double> delta_rw_estimate;  ///< not whole

  std::optional<double> critical_frequency_hz;  ///< Fc; the mean of the leaves for a double wall
  std::optional<double> loss_factor;            ///< EtaInt
  std::optional<double> mass_kg_m2;             ///< Mass
  std::optional<double> bending_stiffness_nm;   ///< Bending

  /// The ranges that were left because the user chose to go on; they belong to the result wherever it goes.
  std::vector<acoustics::RangeLeft> ranges_left{};

  bool operator==(const ResultSet&) const = default;
};

}  // namespace velmar::elements
