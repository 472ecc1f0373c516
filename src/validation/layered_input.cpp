#include "validation/layered_input.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "calculation/runs/multilayer_input.h"
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
constexpr double kPlaster_kg_m3 = 1150.0;

using Solids = std::vector<models::SolidLayer>;

Solids SolidsOf(const elements::LeafLayers& leaf) {
  Solids solids;
  for (int i = 0; i < leaf.count; ++i) {
    const auto& row = leaf.rows.at(static_cast<std::size_t>(i));
    solids.insert(solids.end(), static_cast<std::size_t>(std::max(1, row.multiplicity)),
                  calculation::SolidLayerOf(row.slot));
  }
  return solids;
}

Solids SolidsOf(const elements::SeaLeaf& side) {
  Solids solids;
  for (int i = 0; i < side.count; ++i)
    solids.push_back(calculation::SolidLayerOf(side.rows.at(static_cast<std::size_t>(i)).slot));
  return solids;
}

double MassOf(const Solids& solids) {
  double mass = 0.0;
  for (const models::SolidLayer& solid : solids) mass += solid.density_kg_m3 * solid.thickness_m;
  return mass;
}

models::LayeredLeaf LeafOf(Solids solids) {
  const bool heavy = MassOf(solids) >= models::kHeavyLeaf;
  bool plastered = heavy;
  for (models::SolidLayer& solid : solids) {
    solid.kind = models::KindOfSolid(solid.density_kg_m3, solid.youngs_modulus_pa, heavy);
    const bool board =
        solid.kind == models::SolidKind::kPlasterboard || solid.kind == models::SolidKind::kMasonry;
    plastered = plastered || (board && solid.density_kg_m3 >= kPlaster_kg_m3);
  }
  if (solids.size() == 1 && calculation::IsLaminatedPane(solids[0]))
    return calculation::LaminatedPaneOf(solids[0]);
  return models::LayeredPlate{.layers = std::move(solids),
                              .joint = plastered ? models::LeafJoint::kBonded : models::LeafJoint::kSlipping};
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
    fills.push_back(calculation::FibreFill(entered_m > 0.0 ? entered_m : depth_m, 0.0, 0.0));
  }
  if (cavity.kind == elements::CavityKind::kGenericMaterial) {
    for (int i = 0; i < std::min(cavity.layers.count, elements::CavityLayers::kCapacity); ++i) {
      const auto& row = cavity.layers.rows.at(static_cast<std::size_t>(i));
      if (!row.slot.porous) return std::nullopt;
      fills.insert(fills.end(), static_cast<std::size_t>(std::max(1, row.multiplicity)),
                   calculation::FibreFillOf(row.slot));
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
  if (cavity.type == elements::SeaCavityType::kFibre)
    fills.push_back(calculation::FibreFillOf(cavity.fibres[0].slot));
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
