#include "validation/layered_input.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "foundation/decimal.h"
#include "validation/element_kind.h"

namespace velmar::validation {
namespace {

using elements::Calculation;
using elements::Family;
using elements::Frame;
using elements::Setup;

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kMetresPerCentimetre = 0.01;
constexpr double kPascalPerGigapascal = 1e9;
constexpr double kHeavyLeaf_kg_m2 = 60.0;
constexpr double kPlaster_kg_m3 = 1150.0;
constexpr double kLaminatedLossFactor = 0.01;
constexpr double kAcousticLossFactor = 0.05;
constexpr double kPlyYoungsModulusPa = 72e9;
constexpr double kPlyPoissonsRatio = 0.22;

/// A sheet of a set-up in SI units.
models::SolidLayer SolidOf(const elements::StructuralMaterial& slot) {
  return {.thickness_m = slot.thickness_mm * kMetresPerMillimetre,
          .density_kg_m3 = slot.density_kg_m3,
          .youngs_modulus_pa = slot.youngs_modulus_gpa * kPascalPerGigapascal,
          .poissons_ratio = slot.poissons_ratio,
          .loss_factor = slot.loss_factor};
}

using Solids = std::vector<models::SolidLayer>;

Solids SolidsOf(const elements::LeafLayers& leaf) {
  Solids solids;
  for (int i = 0; i < leaf.count; ++i) {
    const auto& row = leaf.rows.at(static_cast<std::size_t>(i));
    solids.insert(solids.end(), static_cast<std::size_t>(std::max(1, row.multiplicity)), SolidOf(row.slot));
  }
  return solids;
}

Solids SolidsOf(const elements::SeaLeaf& side) {
  Solids solids;
  for (int i = 0; i < side.count; ++i)
    solids.push_back(SolidOf(side.rows.at(static_cast<std::size_t>(i)).slot));
  return solids;
}

double MassOf(const Solids& solids) {
  double mass = 0.0;
  for (const models::SolidLayer& solid : solids) mass += solid.density_kg_m3 * solid.thickness_m;
  return mass;
}

models::SolidKind SolidKindOf(const models::SolidLayer& solid, bool heavy) {
  const double rho = solid.density_kg_m3;
  const double c = rho > 0.0 ? std::sqrt(std::max(0.0, solid.youngs_modulus_pa) / rho) : 0.0;
  if (rho >= 2400.0 && rho <= 2600.0 && c >= 4000.0) return models::SolidKind::kGlass;
  if (heavy) return models::SolidKind::kMasonry;
  if (c < 900.0) return models::SolidKind::kOther;  // limp sheets
  if (rho >= 2600.0) return models::SolidKind::kMetal;
  if (rho >= 1300.0) return models::SolidKind::kMasonry;
  if (rho < 900.0 && c >= 3000.0) return models::SolidKind::kWood;
  return models::SolidKind::kPlasterboard;
}

models::LaminatedPane LaminatedOf(const models::SolidLayer& pane) {
  models::LaminatedPane laminated;
  if (pane.loss_factor >= kAcousticLossFactor) laminated.interlayer = models::kAcousticInterlayer;
  models::SolidLayer ply = pane;
  ply.thickness_m = std::max(0.0, pane.thickness_m - laminated.interlayer.thickness_m) / 2.0;
  ply.youngs_modulus_pa = kPlyYoungsModulusPa;
  ply.poissons_ratio = kPlyPoissonsRatio;
  laminated.outer = ply;
  laminated.inner = ply;
  return laminated;
}

models::LayeredLeaf LeafOf(Solids solids) {
  const bool heavy = MassOf(solids) >= kHeavyLeaf_kg_m2;
  bool plastered = heavy;
  for (models::SolidLayer& solid : solids) {
    solid.kind = SolidKindOf(solid, heavy);
    const bool board =
        solid.kind == models::SolidKind::kPlasterboard || solid.kind == models::SolidKind::kMasonry;
    plastered = plastered || (board && solid.density_kg_m3 >= kPlaster_kg_m3);
  }
  if (solids.size() == 1 && solids[0].kind == models::SolidKind::kGlass &&
      solids[0].loss_factor >= kLaminatedLossFactor) {
    return LaminatedOf(solids[0]);
  }
  return models::LayeredPlate{.layers = std::move(solids),
                              .joint = plastered ? models::LeafJoint::kBonded : models::LeafJoint::kSlipping};
}

models::CavityFill Fibre(double thickness_m, double resistivity, double density) {
  return {.kind = models::FillKind::kFibre,
          .thickness_m = thickness_m,
          .flow_resistivity_pa_s_m2 = resistivity > 0.0 ? resistivity : kUsualFlowResistivity,
          .density_kg_m3 = density > 0.0 ? density : kUsualFibreDensity};
}

models::CavityFill FibreOf(const elements::FibrousMaterial& slot) {
  const double thickness_m = slot.thickness_mm * kMetresPerMillimetre;
  return Fibre(thickness_m, thickness_m > 0.0 ? slot.flow_resistance_pa_s_m / thickness_m : 0.0,
               slot.density_kg_m3);
}

/// The fills in front, air behind them up to `depth_m`. Fills that are too thick are pressed into the depth.
std::vector<models::CavityFill> FilledUp(std::vector<models::CavityFill> fills, double depth_m) {
  double left_m = depth_m;
  for (models::CavityFill& fill : fills) {
    fill.thickness_m = std::min(fill.thickness_m, left_m);
    left_m -= fill.thickness_m;
  }
  if (left_m > 0.0) fills.push_back({.kind = models::FillKind::kAir, .thickness_m = left_m});
  return fills;
}

std::optional<std::vector<models::CavityFill>> FillsOf(const elements::Cavity& cavity) {
  const std::optional<double> depth_mm = ParseDecimal(cavity.depth_text);
  if (!depth_mm || *depth_mm < 0.0) return std::nullopt;
  const double depth_m = *depth_mm * kMetresPerMillimetre;
  std::vector<models::CavityFill> fills;
  if (cavity.kind == elements::CavityKind::kFibrous) {
    const double entered_m = ParseDecimal(cavity.fibre_text).value_or(0.0) * kMetresPerMillimetre;
    fills.push_back(Fibre(entered_m > 0.0 ? entered_m : depth_m, 0.0, 0.0));
  }
  if (cavity.kind == elements::CavityKind::kGenericMaterial) {
    for (int i = 0; i < std::min(cavity.layers.count, elements::CavityLayers::kCapacity); ++i) {
      const auto& row = cavity.layers.rows.at(static_cast<std::size_t>(i));
      if (!row.slot.porous) return std::nullopt;
      fills.insert(fills.end(), static_cast<std::size_t>(std::max(1, row.multiplicity)), FibreOf(row.slot));
    }
  }
  return FilledUp(std::move(fills), depth_m);
}

std::optional<std::vector<models::CavityFill>> FillsOf(const elements::SeaCavity& cavity) {
  if (cavity.type != elements::SeaCavityType::kEmpty && cavity.type != elements::SeaCavityType::kFibre) {
    return std::nullopt;
  }
  const std::optional<double> depth_mm = ParseDecimal(cavity.depth_text);
  if (!depth_mm || *depth_mm < 0.0) return std::nullopt;
  std::vector<models::CavityFill> fills;
  if (cavity.type == elements::SeaCavityType::kFibre) fills.push_back(FibreOf(cavity.fibres[0].slot));
  return FilledUp(std::move(fills), *depth_mm * kMetresPerMillimetre);
}

/// Distance of the supports of boards in m.
double StudDistance(const Setup& setup) {
  const double entered = std::abs(ParseDecimal(setup.support_distance_text).value_or(0.0));
  if (entered <= 0.0) return kUsualStudDistanceM;
  if (elements::RowOf(*setup.calculation).family == Family::kSharp) return entered * kMetresPerCentimetre;
  if (*setup.calculation == Calculation::kDoubleWallSeaPlasterboardLine) {
    return std::abs(ParseDecimal(setup.width_text).value_or(0.0)) / entered;
  }
  return kUsualStudDistanceM;
}

void Connect(models::LayeredElement& element, Frame frame, double stud_distance_m) {
  element.framed = frame != Frame::kNone && frame != Frame::kUnframed;
  double compliance = 0.0;
  switch (frame) {
    case Frame::kNone:
    case Frame::kUnframed:
    case Frame::kSeparate:
      return;
    case Frame::kWoodStuds:
      compliance = models::kWoodStudCompliance;
      element.bay_width_m = stud_distance_m;
      break;
    case Frame::kSteelStuds:
      compliance = models::kSteelStudCompliance;
      break;
    case Frame::kResilientStuds:
    case Frame::kResilientChannels:
      compliance = models::kResilientCompliance;
      break;
  }
  element.cavities[0].connections.push_back(
      {.kind = models::ConnectionKind::kLine, .density = 1.0 / stud_distance_m, .compliance = compliance});
}

/// Leaves and what lies between them, as one of the families holds them.
struct Parts {
  Solids first{};
  Solids second{};
  std::optional<std::vector<models::CavityFill>> fills{};
  bool is_double = false;
};

std::optional<Parts> PartsOfSetup(const Setup& setup) {
  switch (elements::RowOf(*setup.calculation).family) {
    case Family::kSingle:
      return Parts{.first = SolidsOf(setup.leaf1)};
    case Family::kSeaSingle:
      return Parts{.first = SolidsOf(setup.sea_leaf1)};
    case Family::kDouble:
      if (*setup.calculation == Calculation::kFloorWithFloatingScreed) return std::nullopt;
      [[fallthrough]];
    case Family::kSharp:
      return Parts{SolidsOf(setup.leaf1), SolidsOf(setup.leaf2), FillsOf(setup.cavity), true};
    case Family::kSea:
      return Parts{SolidsOf(setup.sea_leaf1), SolidsOf(setup.sea_leaf2), FillsOf(setup.sea_cavity), true};
    default:
      return std::nullopt;
  }
}

bool IsGlazed(ElementKind kind) {
  return kind == ElementKind::kInsulatingUnit || kind == ElementKind::kDoubleWindow;
}

bool AreBoards(ElementKind kind) { return kind >= ElementKind::kWoodStuds && kind <= ElementKind::kBoards; }

}  // namespace

Frame AssumedFrame(const Setup& setup) {
  switch (KindOf(setup)) {
    case ElementKind::kStuds:
    case ElementKind::kConnectedBoards:
      return Frame::kSteelStuds;
    case ElementKind::kResilientChannels:
      return Frame::kResilientChannels;
    case ElementKind::kSeparateFrames:
    case ElementKind::kUnconnectedBoards:
    case ElementKind::kBoards:
      return Frame::kSeparate;
    default:
      return Frame::kNone;
  }
}

std::optional<models::LayeredElement> LayeredElementOf(const Setup& setup, Frame frame) {
  if (!setup.calculation) return std::nullopt;
  const ElementKind kind = KindOf(setup);
  if (kind == ElementKind::kMasonryCavityWall) return std::nullopt;
  std::optional<Parts> parts = PartsOfSetup(setup);
  const std::optional<double> width_m = ParseDecimal(setup.width_text);
  const std::optional<double> height_m = ParseDecimal(setup.height_text);
  if (!parts || !width_m || !height_m) return std::nullopt;
  models::LayeredElement element{.width_m = std::abs(*width_m), .height_m = std::abs(*height_m)};
  element.leaves.push_back(LeafOf(std::move(parts->first)));
  if (!parts->is_double) return element;
  if (!parts->fills) return std::nullopt;
  element.leaves.push_back(LeafOf(std::move(parts->second)));
  element.cavities.push_back(
      {.fills = std::move(*parts->fills),
       .edge = IsGlazed(kind) ? models::CavityEdge::kGlazed : models::CavityEdge::kFramed});
  if (AreBoards(kind)) {
    Connect(element, frame == Frame::kNone ? AssumedFrame(setup) : frame, StudDistance(setup));
  }
  return element;
}

}  // namespace velmar::validation
