#pragma once

#include <array>
#include <optional>
#include <string>

#include "acoustics/bands.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// How some records write a band that was not measured.
inline constexpr double kNotMeasuredDb = -1.0;

/// One value in dB per band; nothing, or kNotMeasuredDb, in a band that was not measured.
using BandValues = std::array<std::optional<double>, acoustics::kBandCount>;

/// Where a structure comes from.
enum class PartOrigin { kStoredResult, kMeasurement };

/// What the single number and the bands of a structure are.
enum class PartQuantity {
  kReductionIndex,    ///< R and Rw
  kElementDifference  ///< Dn,e and Dn,e,w of a small element, which has no area
};

/// A stored result or a measured test, as far as a facade or the base of a lining takes it.
struct FacadePart {
  std::string name{};
  std::string description{};
  std::optional<double> rating_db{};
  std::optional<double> c_db{};
  std::optional<double> ctr_db{};
  std::optional<double> area_m2{};
  std::optional<double> mass_kg_m2{};
  std::optional<double> thickness_mm{};
  BandValues bands_db{};
  PartOrigin origin = PartOrigin::kStoredResult;
  PartQuantity quantity = PartQuantity::kReductionIndex;
};

/// `value` as a box holds it: the shortest text that gives it back, with a decimal comma; empty for nothing.
std::string BoxText(const std::optional<double>& value);

/// The opaque part of a facade becomes `part`. The area beside it is that of the whole facade and stays as it
/// was entered: the area of a specimen has nothing to do with it. A missing mass counts as 0.
void TakeAsOpaquePart(elements::Setup& setup, const FacadePart& part);

/// The element under a lining or ceiling becomes `part`, with its thickness, 0 when that is not known, and
/// its area: that of a measurement where it has one, that of a stored result where none was entered.
void TakeAsLiningBase(elements::Setup& setup, const FacadePart& part);

/// Component `number` (1 to 9) becomes `part`. A small element has the area "-"; a part without an area
/// leaves the one that was typed. The tightness class stays.
/// @throws std::out_of_range for another number
void TakeAsComponent(elements::Setup& setup, int number, const FacadePart& part);

}  // namespace velmar::calculation
