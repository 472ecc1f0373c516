#pragma once

#include <cstddef>
#include <optional>
#include <variant>
#include <vector>

#include "acoustics/bands.h"
#include "models/layered/cavity.h"
#include "models/layered/leaf.h"

namespace velmar::models {

inline constexpr std::size_t kMostLeaves = 4;

/// Leaves and cavities from the source side to the receiving side.
struct LayeredElement {
  double width_m = 0.0;                   ///< 0.1 to 100
  double height_m = 0.0;                  ///< 0.1 to 100
  std::vector<LayeredLeaf> leaves{};      ///< 1 to 4
  std::vector<LayeredCavity> cavities{};  ///< one fewer than leaves
  /// Distance of the wood studs or battens that the leaves are fixed to directly, 0.1 to 10, or 0 for none:
  /// the bays between them are stiff below their first bending mode.
  double bay_width_m = 0.0;
  /// Whether leaves meet a common frame at head and floor: tracks, plates, the frame of a stud wall.
  bool framed = false;
};

/// What of an element was refused.
enum class LayeredField {
  kWidth,
  kHeight,
  kLeafCount,
  kCavityCount,
  kBayWidth,
  kLayerCount,
  kThickness,
  kDensity,
  kYoungsModulus,
  kPoissonsRatio,
  kLossFactor,
  kInterlayerThickness,
  kInterlayerDensity,
  kInterlayerShearModulus,
  kInterlayerExponent,
  kInterlayerLossTangent,
  kCoreThickness,
  kCoreDensity,
  kCoreShearModulus,
  kCoreCompressionModulus,
  kCoreLossFactor,
  kSurfaceMass,
  kBendingStiff,
  kBendingSoft,
  kFillThickness,
  kFlowResistivity,
  kFillDensity,
  kConnectionDensity,
  kConnectionCompliance,
};

/// Why an element cannot be calculated: the first value outside what the model takes, with the range.
struct LayeredRefusal {
  LayeredField field{};
  std::size_t part = 0;   ///< number of the leaf or cavity, from 0
  std::size_t layer = 0;  ///< number of the layer, fill or connection in it, from 0
  double value = 0.0;
  double lowest = 0.0;
  double highest = 0.0;
};

/// The first value of `element` that the model does not take, or nothing.
std::optional<LayeredRefusal> FindLayeredRefusal(const LayeredElement& element);

/// How finely angle and band are integrated. Both refine themselves until the rules of two orders agree.
struct LayeredIntegration {
  double tolerance = 1e-3;  ///< largest difference of the two rules, share of the whole; above 0
  int pieces = 1;           ///< how often each starting interval is cut, 1 and above; 2 doubles every node
};

struct LayeredPrediction {
  acoustics::Spectrum reduction_index_db{};                 ///< R, never below 0
  acoustics::Spectrum cavity_path_db{};                     ///< R of leaves and cavities alone
  std::optional<acoustics::Spectrum> structural_path_db{};  ///< R of all connections and tracks together
  double surface_mass_kg_m2 = 0.0;                          ///< of the leaves
  double thickness_m = 0.0;                                 ///< orthotropic plates count nothing
};

using LayeredOutcome = std::variant<LayeredPrediction, LayeredRefusal>;

/// The airborne sound insulation of up to four leaves in a laboratory, per third of an octave.
///
/// Impedances are carried from the receiving side to the source side, angle by angle; the diffuse field takes
/// all angles up to grazing, the element's finite size is in the radiation (SpatialWindow). A single leaf
/// gets the resonant transmission below 0.85 fc besides (EN ISO 12354-1, annex B). Connections and the tracks
/// of a frame add their power (ConnectionTransmission). Transmission is averaged over angle and band until
/// both converge.
///
/// With three or four leaves the connections of a cavity raise what passes the whole stack in the ratio in
/// which they raise what passes their two leaves alone; tracks join the outermost leaves.
///
/// Not covered: leaks, niches, modes of the bays above the first, resonances across hollow blocks.
/// @return the refusal when a value lies outside the model's range; a prediction is always finite
LayeredOutcome PredictLayered(const LayeredElement& element, const LayeredIntegration& integration = {});

}  // namespace velmar::models
